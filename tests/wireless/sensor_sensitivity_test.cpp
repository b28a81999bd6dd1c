#include "support/broken_catalogue.h"
#include "support/dialog_test.h"
#include "wireless/frmWirelessSensorSensitivity.h"

namespace orlin::testing {
namespace {

/// The dialog that no public class opens, through its own `Display`.
class SensorSensitivityTest : public BrokenCatalogueTest {
 protected:
  std::int32_t Display(int option, Value& value, const SecurityLevels& levels = {}) {
    return frmWirelessSensorSensitivity().Display(static_cast<std::int16_t>(option), value,
                                                  std::make_shared<SecurityLevels>(levels));
  }
};

TEST_F(SensorSensitivityTest, EachKindUsesItsList) {
  const struct {
    int Kind;
    Value Raw;
    int Picked;  // -1: nothing
    int After;
  } cases[] = {
      {1, Integer(0), -1, 0}, {1, Integer(4), -1, 4}, {1, Integer(0), 1, 4}, {1, Integer(4), 0, 0}, {2, "5", 13, 13}};
  for (auto [kind, value, picked, after] : cases) {
    Host->Operate = [&, row = picked, first = kind == 1](auto& dialog) {
      auto& list = *dialog.Find(first ? "cmbType1" : "cmbType2")->AsRowList();
      EXPECT_EQ(list.ListCount(), first ? 2 : 14);
      EXPECT_EQ(list.List(first ? 0 : 13) == Text(1915), !first);
      EXPECT_FALSE(dialog.Find(first ? "cmbType2" : "cmbType1")->Enabled());
      EXPECT_FALSE(row >= 0 && list.PickRow(row));
      dialog.Find("cmdOK")->Press();
    };
    EXPECT_EQ(Display(kind, value), 0);
    EXPECT_EQ(value, Integer(after));
  }
  for (const auto& [kind, none] : {std::pair{1, 1}, {1, 2}, {1, 5}, {2, 14}}) {
    auto value = Integer(none);
    EXPECT_EQ(Display(kind, value), failures::InvalidPropertyValue) << kind << " " << none;
  }
}

TEST_F(SensorSensitivityTest, EveryRecordOfRightsHidesOrDisablesTheLists) {
  SecurityLevels levels;
  levels.Add("AuthorityLevel", 1, 1);
  levels.Add("Anything", 2, 2);
  Host->Operate = [](auto& dialog) {
    for (const char* name : {"lblOptions", "cmbType1", "cmbType2"}) {
      EXPECT_FALSE(dialog.Find(name)->Visible() || dialog.Find(name)->Enabled()) << name;
    }
    EXPECT_EQ(dialog.Caption(), "Wireless  Sensor Sensitivity");
  };
  Value value(std::int16_t{0});
  EXPECT_EQ(Display(1, value, levels), 1);
}

}  // namespace
}  // namespace orlin::testing
