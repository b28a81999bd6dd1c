#include "outputs_test.h"

namespace orlin::testing {
namespace {

DialogRun Open(const std::string& type, const std::string& option, const std::string& script) {
  return Play("clsOnboardOutputsBirch", {"vName=Output 1", "vType=" + type, "vOption=" + option}, script);
}

std::string Option(std::size_t index) { return "optOption(" + std::to_string(index) + ")"; }

/// One digit for each option: 1 for the one that is selected.
std::string Selection(const DialogRun& run, std::optional<std::size_t> dump = {}) {
  std::string selection;
  for (std::size_t i = 0; i < 5; ++i) selection += run.Control(Option(i), dump)["value"] ? '1' : '0';
  return selection;
}

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
    const auto run = Open("\"" + std::to_string(code) + "\"", "\"2\"", "dump\nclick cmdOK");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Output 1"));
    EXPECT_EQ(Seen(run, "cmbType", {"list", "listIndex"}), (Json{Texts(texts), position}));
    for (std::size_t i = 0; i < captions.size(); ++i) {
      EXPECT_EQ(Seen(run, Option(i), {"caption", "visible", "enabled"}),
                (Json{Text(captions[i]), true, !forced || i == 0}));
    }
    EXPECT_EQ(run.Control(Option(4))["visible"], captions.size() == 5);
    EXPECT_EQ(Back(run, {"vType", "vOption"}), (Values{Integer(code), Integer(forced ? 1 : 2)}));
  }
  EXPECT_EQ(Open("12", "0", "click cmdOK").Argument("vType"), Integer(13));
}

TEST(OnboardOutputs, LastTypeForcesItsOption) {
  for (const auto& [option, selection] : {std::pair{"0", "10000"}, {"1", "01000"}, {"3", "00010"}}) {
    const auto run = Open("14", option, "dump\nclick cmdOK");
    EXPECT_EQ(Selection(run), selection);
    EXPECT_EQ(run.Argument("vOption"), Integer(1));
  }
}

TEST(OnboardOutputs, OptionSurvivesAChangeOfTypeWhereItCan) {
  auto run = Open("10", "4", "select cmbType 9\ndump\nselect cmbType 10\ndump\nclick cmdOK");
  EXPECT_EQ(Selection(run, 0), "00010");
  EXPECT_EQ(run.Control(Option(4), 0)["visible"], false);
  EXPECT_EQ(Selection(run), "00010");
  EXPECT_EQ(run.Control(Option(4))["visible"], true);
  EXPECT_EQ(run.Argument("vOption"), Integer(3));

  run = Open("10", "4", "select cmbType 13\nselect cmbType 9\ndump\nclick cmdOK");
  EXPECT_EQ(Selection(run), "10000");
  EXPECT_EQ(run.Control(Option(1))["enabled"], true);
  EXPECT_EQ(run.Argument("vOption"), Integer(0));
  // Hidden on its type, shown on another.
  EXPECT_EQ(Open("2", "4", "select cmbType 10\nclick cmdOK").Argument("vOption"), Integer(4));
  EXPECT_EQ(Open("2", "1", "click optOption(3)\nclick cmdOK").Argument("vOption"), Integer(3));
}

}  // namespace
}  // namespace orlin::testing
