#include "app/calls/edit.h"

#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/failure.h"

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
  const std::string object = R"("arguments":{"vOne":{"type":"Object","value":null}}})"
                             "\n";
  EXPECT_EQ(Trace([](auto& arguments) {
              arguments[0] = std::make_shared<Object>();
              return 7;
            }),
            R"({"event":"return","result":7,)" + object);
  EXPECT_EQ(Trace([](auto& arguments) -> std::int32_t {
              arguments[0] = std::make_shared<Object>();
              throw Failure(380);
            }),
            R"({"event":"return","result":null,"raised":380,)" + object);
}

TEST(Run, KeepsTheBoundsOfArrays) {
  const auto trace = Trace([](auto& arguments) {
    arguments[0] = Array({1.5, "a"}, 1);
    return 0;
  });
  EXPECT_NE(trace.find(R"({"type":"Array","value":[1.5,"a"],"types":["Double","String"],"lower":1})"),
            std::string::npos)
      << trace;
}

TEST(Run, LogsFaultsInTheTraceAndInTheFile) {
  const TemporaryFolder folder;
  StandardPlatformOptions platform;
  platform.FaultFile = folder.Path() / "faults";
  const auto trace = Trace(
      [](auto&) {
        auto log = std::dynamic_pointer_cast<FaultObjectComponent>(CreateObject("FaultObject.clsFaultObject"));
        log->Add({13, "", "", "frmAny", "Display()", 0});
        log->SetAddlText("more");
        log->MsgBox();
        log->LogError();
        return 13;
      },
      "answer 1", platform);
  const auto message = trace.find("{\"event\":\"message\"");
  const auto fault = trace.find(
      R"j({"event":"fault","number":13,"module":"frmAny","procedure":"Display()","additional":"more","shown":true})j"
      "\n{\"event\":\"return\",\"result\":13,");
  EXPECT_EQ(message, 0U) << trace;
  EXPECT_NE(fault, std::string::npos) << trace;
  std::ifstream file(*platform.FaultFile);
  const std::string logged(std::istreambuf_iterator<char>(file), {});
  EXPECT_NE(logged.find("number=13"), std::string::npos);
}

}  // namespace
}  // namespace orlin::testing
