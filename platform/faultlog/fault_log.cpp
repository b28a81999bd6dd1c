#include "faultlog/fault_log.h"

#include <string_view>
#include <utility>

namespace orlin {
namespace {

std::string Escaped(std::string_view text) {
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\\') {
      escaped += "\\\\";
    } else if (c == '\t') {
      escaped += "\\t";
    } else if (c == '\n') {
      escaped += "\\n";
    } else if (c == '\r') {
      escaped += "\\r";
    } else if (byte < 0x20 || byte == 0x7F) {
      escaped.append("\\x").append({kHexDigits[byte >> 4], kHexDigits[byte & 0xF]});
    } else {
      escaped += c;
    }
  }
  return escaped;
}

// The failure as the operator reads it, its own text first.
std::string MessageText(const FaultRecord& record, const std::string& additionalText) {
  const auto place =
      "Failure " + std::to_string(record.Number) + " in " + record.ModuleName + "." + record.ProcedureName;
  return additionalText.empty() ? place : additionalText + "\n\n" + place;
}

}  // namespace

FaultLog::FaultLog(FaultLogOptions options) : options_(std::move(options)) {}

void FaultLog::Add(const FaultRecord& fault) { entry_ = Entry{fault, {}, false}; }

void FaultLog::SetAddlText(const std::string& text) {
  if (entry_) entry_->AdditionalText = text;
}

void FaultLog::MsgBox() {
  if (!entry_ || options_.Host == nullptr) return;
  options_.Host->ShowMessage({MessageText(entry_->Record, entry_->AdditionalText), Message::Warning, appName_});
  entry_->Shown = true;
}

void FaultLog::LogError() {
  if (!entry_) return;
  const auto& [record, additionalText, shown] = *entry_;
  const std::pair<std::string_view, std::string> fields[] = {
      {"time", record.Date + " " + record.Time},
      {"app", appName_ + " " + appVersion_},
      {"level", std::to_string(record.WarningLevel)},
      {"number", std::to_string(record.Number)},
      {"module", record.ModuleName},
      {"procedure", record.ProcedureName},
      {"text", additionalText},
  };
  std::string line;
  for (const auto& [name, value] : fields) {
    if (!line.empty()) line += '\t';
    line.append(name).append("=").append(Escaped(value));
  }
  options_.File->Append(appErrorFile_, line);
  if (options_.OnLogged) {
    options_.OnLogged({record.Number, record.ModuleName, record.ProcedureName, additionalText, shown});
  }
}

void FaultLog::Clear() { entry_.reset(); }

}  // namespace orlin
