#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "OrlinCustomDialogs/value.h"

// Tests of dialogs: each plays a script on a public class, as orlin-host does, in this process.

namespace orlin {

/// A value in a test's message, as the command line writes it: 5, 5L, 2.5D, "text", [1,empty].
void PrintTo(const Value& value, std::ostream* out);

}  // namespace orlin

namespace orlin::testing {

using Json = nlohmann::ordered_json;

/// 5 as an Integer; a plain 5 is a Long.
inline Value Integer(int number) { return static_cast<std::int16_t>(number); }

/// The words of a line, which has a blank between them.
std::vector<std::string> SplitAtBlanks(const std::string& line);

/// How orlin-host ended, and what it printed.
struct Ended {
  int Status = -1;
  std::string Out;
  std::string Err;
};

/// Runs orlin-host in this process, where no window can be opened: the words of its command line, with a blank between
/// them, and what stands on its standard input.
Ended RunHost(const std::string& line, const std::string& input = {});

/// The English text with that number, with a variable of it filled in.
std::string Text(int number, const std::string& variable = {}, const std::string& value = {});

/// What a call stands on, as far as it is not the usual.
struct PlayOptions {
  std::vector<std::string> Levels = {};                    ///< NAME=VIEW,EDIT
  std::map<std::string, Value> Objects = {};               ///< arguments that no text writes
  std::optional<std::string> Catalogue = {};               ///< the text of the file
  std::optional<std::string> Settings = {};                ///< likewise
  std::optional<std::string> DataList = {};                ///< likewise
  std::optional<std::filesystem::path> Drives = {};        ///< the folder
  std::optional<std::string> Now = "2025-03-31 14:07:09";  ///< nothing: the clock runs
  /// The test looks at the actions that were refused; else each fails it.
  bool MayRefuse = false;
};

/// What came of a call, and what happened on the way.
struct DialogRun {
  std::vector<Json> Lines;  ///< of the trace
  std::optional<std::int32_t> Result;
  std::int32_t Raised = 0;  ///< the failure that the public class let through
  std::map<std::string, Value> Arguments;

  [[nodiscard]] const Value& Argument(const std::string& name) const { return Arguments.at(name); }
  /// The lines of one kind: "message", "state", "refused" ...
  [[nodiscard]] std::vector<Json> Events(std::string_view kind) const;
  /// One field of each of these lines, in order: the texts of all messages, for example.
  [[nodiscard]] std::vector<Json> Fields(std::string_view kind, const std::string& field) const;
  /// A control as a `dump` showed it: the dump with that number, counted from 0, or the last one.
  [[nodiscard]] Json Control(const std::string& name, std::optional<std::size_t> dump = {}) const;
  [[nodiscard]] Json Focus(std::optional<std::size_t> dump = {}) const;
};

/// Calls `Display` of a public class with arguments "NAME=VALUE" and an operator that plays the script. The test fails
/// on a message that no `answer` of the script was for, on an answer that is left over, and on an action that is
/// refused.
///
///     const auto run = Play("clsZoneFunctionsWillow", {"ZoneNum=5", R"(ZoneCode="4000")"}, "click cmdOK");
///     EXPECT_EQ(run.Result, 0);
///     EXPECT_EQ(run.Argument("ZoneCode"), "5111");
DialogRun Play(std::string_view publicClass, const std::vector<std::string>& arguments, std::string_view script,
               const PlayOptions& options = {});

}  // namespace orlin::testing
