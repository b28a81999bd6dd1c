#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// What the library set on a data list.
struct DataListSetup {
  std::string NetWorkDListPath;
  std::string LocalDListPath;
  std::int16_t TimeOutInterval = 0;  ///< seconds
  std::int16_t MaxTimeOut = 0;       ///< seconds
  std::int16_t BackupMode = 0;
  std::string UserID;
  std::string WorkstationName;
  std::int16_t WarningLevel = 0;
  std::string Password;
};

/// Where the accounts lie.
struct DataListPlaces {
  /// The data-list file; nothing: the built-in data list.
  std::optional<std::filesystem::path> File;
  /// The folder in which drive letters are folders.
  std::optional<std::filesystem::path> DrivesFolder;
};

/// The data list of the account store. It takes up what the library sets.
class DataList : public DListComponent {
 public:
  explicit DataList(DataListPlaces places = {}) : places_(std::move(places)) {}

  [[nodiscard]] const DataListPlaces& Places() const noexcept { return places_; }
  [[nodiscard]] const DataListSetup& Setup() const noexcept { return setup_; }

  void SetNetWorkDListPath(const std::string& path) override;
  void SetLocalDListPath(const std::string& path) override;
  void SetTimeOutInterval(std::int16_t seconds) override;
  void SetMaxTimeOut(std::int16_t seconds) override;
  void SetBackupMode(std::int16_t mode) override;
  void SetUserID(const std::string& id) override;
  void SetWorkstationName(const std::string& name) override;
  void SetWarningLevel(std::int16_t level) override;
  void SetPassword(const std::string& password) override;

 private:
  DataListPlaces places_;
  DataListSetup setup_;
};

}  // namespace orlin
