#include <tuple>

#include <gtest/gtest.h>

#include "store/data_list.h"

namespace orlin::testing {
namespace {

TEST(DataList, KeepsWhatTheLibrarySets) {
  DataList list({"list.ini", "drives"});
  list.SetNetWorkDListPath("N:\\list");
  list.SetLocalDListPath("C:\\list");
  list.SetTimeOutInterval(6);
  list.SetMaxTimeOut(30);
  list.SetBackupMode(1);
  list.SetUserID("Orlin");
  list.SetWorkstationName("here");
  list.SetWarningLevel(2);
  list.SetPassword("secret");

  const auto& [network, local, interval, most, backup, user, station, level, password] = list.Setup();
  EXPECT_EQ(std::tie(network, local, user, station, password),
            std::tuple("N:\\list", "C:\\list", "Orlin", "here", "secret"));
  EXPECT_EQ(std::tie(interval, most, backup, level), std::tuple(6, 30, 1, 2));
  EXPECT_EQ(list.Places().File, "list.ini");
  EXPECT_EQ(list.Places().DrivesFolder, "drives");
}

}  // namespace
}  // namespace orlin::testing
