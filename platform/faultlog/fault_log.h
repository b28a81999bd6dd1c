#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/platform/logged_fault.h"

#include "faultlog/fault_file.h"

namespace orlin {

/// What the fault objects of a program share.
struct FaultLogOptions {
  /// Shows faults to the operator. Null: nobody does.
  std::shared_ptr<DialogHost> Host;
  std::shared_ptr<FaultFile> File = std::make_shared<FaultFile>();
  /// Called for each fault that is logged, whether or not the file could be written. May be empty.
  std::function<void(const LoggedFault&)> OnLogged;
};

/// The fault log. `LogError` appends one line to the file, fields `name=value` with a tab between them:
///
///     time=05/01/25 12:00:00  app=Tolmar 1.0.0  level=0  number=13  module=...  procedure=...  text=...
///
/// Control characters and backslashes in a field stand as `\t \n \r \\` or `\xHH`, so that a record is always one
/// line. Without a record, `MsgBox` and `LogError` do nothing.
class FaultLog : public FaultObjectComponent {
 public:
  explicit FaultLog(FaultLogOptions options);

  void SetAppName(const std::string& name) override { appName_ = name; }
  void SetAppVersion(const std::string& version) override { appVersion_ = version; }
  /// Each record brings its own.
  void SetWarningLevel(std::int16_t) override {}
  void SetAppErrorFile(const std::string& file) override { appErrorFile_ = file; }

  void Add(const FaultRecord& fault) override;
  void SetAddlText(const std::string& text) override;
  void MsgBox() override;
  void LogError() override;
  void Clear() override;

 private:
  struct Entry {
    FaultRecord Record;
    std::string AdditionalText;
    bool Shown = false;
  };

  FaultLogOptions options_;
  std::string appName_;
  std::string appVersion_;
  std::string appErrorFile_;
  std::optional<Entry> entry_;
};

}  // namespace orlin
