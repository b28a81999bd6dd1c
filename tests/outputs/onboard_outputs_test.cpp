#include "outputs_test.h"

namespace orlin::testing {
namespace {

std::string Option(std::size_t index) { return "optOption(" + std::to_string(index) + ")"; }

TEST(OnboardOutputs, EachTypeShowsItsOptionsAndComesBack) {
  const Numbers texts{1248, 1249, 1214, 1250, 1216, 1217, 1218, 1219, 1220, 1221, 1251, 1252, 1253, 1915};
  for (std::size_t position = 0; position < texts.size(); ++position) {
    const int code = static_cast<int>(position) + (position < 12 ? 0 : 1);
    SCOPED_TRACE(code);
    const bool forced = code == 14;
    const auto captions = forced       ? Numbers{1261, 1246, 1243, 1245}
                          : code == 3  ? Then({513}, 1254, 1256)
                          : code == 10 ? Then({513}, 1257, 1260)
                                       : Then({513}, 1261, 1263);
    const auto run = Open(Onboard("\"" + std::to_string(code) + "\"", "\"2\""), "dump\nclick cmdOK");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Output 1"));
    EXPECT_EQ(Seen(run, "cmbType", {"list", "listIndex"}), (Json{Texts(texts), position}));
    for (std::size_t i = 0; i < captions.size(); ++i) {
      EXPECT_EQ(Seen(run, Option(i), {"caption", "visible", "enabled"}),
                (Json{Text(captions[i]), true, !forced || i == 0}));
    }
    EXPECT_EQ(run.Control(Option(4))["visible"], captions.size() == 5);
    EXPECT_EQ(Back(run, {"vType", "vOption"}), (Values{Integer(code), Integer(forced ? 1 : 2)}));
  }
  EXPECT_EQ(Open(Onboard("12", "0"), "click cmdOK").Argument("vType"), Integer(13));
}

TEST(OnboardOutputs, OptionSurvivesAChangeOfTypeWhereItCan) {
  // Types are picked by rows, in hexadecimal.
  const struct {
    std::string Type, Option, Picks, Selection;
    int After;
  } cases[] = {{"14", "0", "", "10000", 1},  {"14", "1", "", "01000", 1},   {"14", "3", "", "00010", 1},
               {"10", "4", "9", "00010", 3}, {"10", "4", "9A", "00010", 3}, {"10", "4", "D9", "10000", 0},
               {"2", "4", "A", "00001", 4},  {"2", "3", "", "00010", 3}};
  for (const auto& [type, option, picks, selection, after] : cases) {
    std::string script, selected;
    for (const char row : picks)
      script += "select cmbType " + std::to_string(std::stoi(std::string{row}, nullptr, 16)) + "\n";
    const auto run = Open(Onboard(type, option), script + "dump\nclick cmdOK");
    for (std::size_t i = 0; i < 5; ++i) selected += run.Control(Option(i))["value"] ? '1' : '0';
    EXPECT_EQ(selected, selection) << type << option << picks;
    EXPECT_EQ(run.Argument("vOption"), Integer(after)) << type << option << picks;
    EXPECT_EQ(run.Control(Option(4))["visible"], run.Control("cmbType")["listIndex"] == 10) << picks;
    EXPECT_EQ(run.Control(Option(1))["enabled"], type != "14") << picks;
  }
  EXPECT_EQ(Open(Onboard("2", "1"), "click optOption(3)\nclick cmdOK").Argument("vOption"), Integer(3));
}

}  // namespace
}  // namespace orlin::testing
