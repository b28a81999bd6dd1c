#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/calls/arguments.h"
#include "support/dialog_test.h"

namespace orlin::testing {

using Words = std::vector<std::string>;

/// The captions of labels and the rows of lists are these texts.
inline void ExpectTexts(const DialogRun& run,
                        const std::vector<std::pair<std::string, std::vector<std::int16_t>>>& controls) {
  for (const auto& [name, numbers] : controls) {
    const auto control = run.Control(name);
    Json texts = Json::array();
    for (const auto number : numbers) texts.push_back(Text(number));
    EXPECT_EQ(control.contains("list") ? control.at("list") : Json{control.at("caption")}, texts) << name;
  }
}

/// The one message of a run.
inline void ExpectMessage(const DialogRun& run, std::int16_t text, std::int16_t title, int flags) {
  const auto message = run.Events("message").at(0);
  EXPECT_EQ((Json{message.at("text"), message.at("title"), message.at("flags")}),
            (Json{Text(text), Text(title), flags}));
}

/// The call of a zone editor, without its script.
struct Call {
  std::string Class;
  Words Arguments;
  Words Levels = {};

  [[nodiscard]] DialogRun Play(const std::string& script) const {
    return testing::Play(Class, Arguments, script, {.Levels = Levels});
  }
};

/// Every argument came back as it went in.
inline void ExpectUntouched(const Call& call, const DialogRun& run) {
  const auto& publicClass = *FindPublicClass(call.Class);
  const auto given = BindArguments(publicClass, call.Arguments, {});
  for (std::size_t i = 0; i < given.size(); ++i) {
    const auto& name = publicClass.Parameters()[i].Name;
    if (name == kSecurityLevels) continue;
    EXPECT_EQ(run.Argument(name), given[i]) << name << Json(call.Arguments);
  }
}

/// Ends of the show other than OK give 1 and change nothing.
inline void ExpectOnlyOkWrites(const Call& call, const std::string& changes, const Words& ends) {
  for (const auto& end : ends) {
    const auto run = call.Play(changes + "\n" + end);
    EXPECT_EQ(run.Result, 1) << end;
    ExpectUntouched(call, run);
  }
}

}  // namespace orlin::testing
