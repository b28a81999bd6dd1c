#include "app/calls/edit.h"

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/components.h"

#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

/// The trace of a call of a class that does what it is told.
std::string Trace(PublicClass::Call display, const std::string& script = {}, StandardPlatformOptions platform = {}) {
  const PublicClass called("clsAny", {{"vOne", ParameterKind::Any, true, false}, {"SecurityLevels"}},
                           std::move(display));
  std::ostringstream out;
  Run({called, {Value(), Value()}, ParseScript(script), false, std::move(platform)}, out);
  return out.str();
}

TEST(Run, TellsTheResultAndAllArgumentsButTheRights) {
  const std::pair<Value, std::string> values[] = {
      {Value(), R"("Empty","value":null)"},
      {70000, R"("Long","value":70000)"},
      {2.5, R"("Double","value":2.5)"},
      {true, R"("Boolean","value":true)"},
      {"a\"b\\c\n\x01", R"("String","value":"a\"b\\c\n\u0001")"},
      {"\u20AC\U0001F512a\xFF\xC3", "\"String\",\"value\":\"\u20AC\U0001F512a\uFFFD\uFFFD\""},
      {Array({Integer(1), "x", Array({Value()})}, 1),
       R"("Array","value":[1,"x",[null]],"types":["Integer","String","Array"],"lower":1)"},
      {std::make_shared<Object>(), R"("Object","value":null)"}};
  for (const auto& [value, told] : values) {
    for (const bool fails : {false, true}) {
      const auto trace = Trace([&, &held = value](auto& arguments) {
        arguments[0] = held;
        return fails ? throw Failure(380) : 7;
      });
      EXPECT_EQ(trace, std::string(R"({"event":"return","result":)") + (fails ? R"(null,"raised":380)" : "7") +
                           R"(,"arguments":{"vOne":{"type":)" + told + "}}}\n");
    }
  }
}

TEST(Run, LogsFaultsInTheTraceAndInTheFile) {
  const TemporaryFolder folder;
  StandardPlatformOptions platform;
  platform.FaultFile = folder.Path() / "faults";
  const auto fails = [](auto&) {
    auto log = std::dynamic_pointer_cast<FaultObjectComponent>(CreateObject("FaultObject.clsFaultObject"));
    log->Add({13, "", "", "frmAny", "Display()", 0});
    log->SetAddlText("more");
    log->MsgBox();
    log->LogError();
    return 13;
  };
  const auto trace = Trace(fails, "answer 1", platform);
  EXPECT_TRUE(trace.starts_with("{\"event\":\"message\"")) << trace;
  EXPECT_NE(
      trace.find(R"j({"event":"fault","number":13,"module":"frmAny","procedure":"Display()","additional":"more",)j"
                 R"("shown":true})"
                 "\n{\"event\":\"return\",\"result\":13,"),
      std::string::npos)
      << trace;
  EXPECT_NE(ContentOf(*platform.FaultFile).find("number=13"), std::string::npos);
}

}  // namespace
}  // namespace orlin::testing
