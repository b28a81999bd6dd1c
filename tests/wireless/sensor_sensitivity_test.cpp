#include "catalogue/text_catalogue.h"
#include "support/frame_fixture.h"
#include "wireless/frmWirelessSensorSensitivity.h"

namespace orlin::testing {
namespace {

/// The dialog that no public class opens, through its own `Display`.
class SensorSensitivityTest : public FrameTest {
 protected:
  SensorSensitivityTest() {
    Platform platform;
    platform.Host = Host;
    platform.Components["LocalText.clsLocalText"] = [] { return std::make_shared<TextCatalogue>(); };
    UsePlatform(std::move(platform));
  }

  std::int32_t Display(int option, Value& value, const SecurityLevels& levels = {}) {
    return frmWirelessSensorSensitivity().Display(static_cast<std::int16_t>(option), value,
                                                  std::make_shared<SecurityLevels>(levels));
  }
  static void PickAndConfirm(shown::Dialog& dialog, const char* list, int row) {
    auto& box = dynamic_cast<shown::ComboBox&>(*dialog.Find(list));
    if (row >= 0) {
      EXPECT_FALSE(box.PickRow(row));
    }
    dialog.Find("cmdOK")->Press();
  }
};

TEST_F(SensorSensitivityTest, TwoLevelsCarryZeroAndFour) {
  const struct {
    int Raw;
    int Row;  // picked; -1: none
    int After;
  } cases[] = {{0, -1, 0}, {4, -1, 4}, {0, 1, 4}, {4, 0, 0}};
  for (const auto& one : cases) {
    Host->Operate = [&](auto& dialog) {
      EXPECT_FALSE(dialog.Find("cmbType2")->Enabled());
      PickAndConfirm(dialog, "cmbType1", one.Row);
    };
    Value value(static_cast<std::int16_t>(one.Raw));
    EXPECT_EQ(Display(1, value), 0);
    EXPECT_EQ(value, Value(static_cast<std::int16_t>(one.After)));
  }
  for (const int none : {1, 2, 5}) {
    Value value(static_cast<std::int16_t>(none));
    EXPECT_EQ(Display(1, value), failures::InvalidPropertyValue);
  }
}

TEST_F(SensorSensitivityTest, OtherKindsUseThePositionsOfTheSecondList) {
  Host->Operate = [&](auto& dialog) {
    EXPECT_FALSE(dialog.Find("cmbType1")->Enabled());
    auto& list = dynamic_cast<shown::ComboBox&>(*dialog.Find("cmbType2"));
    EXPECT_EQ(list.ListCount(), 14);
    EXPECT_EQ(list.List(13), TextCatalogue().GetLocalTextBASE(1915));
    PickAndConfirm(dialog, "cmbType2", 13);
  };
  Value value("5");
  EXPECT_EQ(Display(2, value), 0);
  EXPECT_EQ(value, Value(std::int16_t{13}));
  Value beyond(std::int16_t{14});
  EXPECT_EQ(Display(2, beyond), failures::InvalidPropertyValue);
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
