#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/values/skip_failure.h"

namespace orlin {

/// The name under which the settings, the fault file and the reports run.
inline constexpr std::string_view kAppName = "Tolmar";

/// The text with that catalogue number, or an empty text. Creates the catalogue object where there is none.
[[nodiscard]] std::string GetLocalText(int id);

/// The text, and those of other languages that the catalogue has.
[[nodiscard]] std::vector<std::string> GetLocalTextInAllLanguages(std::int16_t id);

/// The same with the variable %sName% of the text replaced.
[[nodiscard]] std::string GetLocalText(int id, const std::string& sName, const std::string& sValue);

/// The text with every marker %sName% replaced, also one that a value makes with the text beside it; a value that
/// would bring its marker forth without end goes in once for each marker of the text. Upper and lower case differ; a
/// name has no percent sign.
[[nodiscard]] std::string ReplaceVariable(const std::string& sText, const std::string& sName,
                                          const std::string& sValue);

/// Reads the warning level and creates the shared services. 0, or the number of a failure, which has been reported.
[[nodiscard]] std::int32_t InitApplicationVariables();

/// One kind of fault report: who reports, and what the report does beyond logging.
struct FaultKind {
  std::string_view ModuleName;
  std::string_view ProcedureName;
  bool OnlyWithFaultObject = false;  ///< else the lack of the fault object is a failure of its own
  bool Shows = true;
  bool Clears = true;
};

/// Reports a failure to the fault object, which logs it.
void ReportFault(const FaultKind& kind, const Failure& failure, const std::string& additionalText);

/// Runs a statement in a handler that reports failures: one that fails ends there and is reported, with no additional
/// text.
template <class Statement>
void ReportFailure(const FaultKind& kind, Statement&& statement) {
  try {
    statement();
  } catch (const Failure& failure) {
    ReportFault(kind, failure, "");
  }
}

}  // namespace orlin
