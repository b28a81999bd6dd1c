#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "OrlinCustomDialogs/components.h"

#include "store/data_list_file.h"

namespace orlin {

/// Where the accounts lie.
struct DataListPlaces {
  /// The data list; nothing: the file that the settings name, else the built-in data list.
  std::optional<DataListEntries> Entries;
  /// The folder in which drive letters are folders.
  std::filesystem::path DrivesFolder;
};

/// The data list of the account store. "ACCESS" is a SQLite file, "ODBC" any source of unixODBC.
///
/// Failures: 5 for an entry that the list lacks and for a query of another form, 3049 for a database that cannot be
/// opened, 3078 for one that lacks the table, 3027, 3026 and 3260 for one that is read-only, full, or kept locked by
/// another program for longer than `TimeOutInterval`, 3146 for any other call that the database refused.
class DataList : public DListComponent {
 public:
  explicit DataList(DataListPlaces places) : places_(std::move(places)) {}

  void SetNetWorkDListPath(const std::string& path) override { networkPath_ = path; }
  void SetLocalDListPath(const std::string& path) override { localPath_ = path; }
  void SetTimeOutInterval(std::int16_t seconds) override { timeOutInterval_ = seconds; }
  void SetMaxTimeOut(std::int16_t seconds) override { maxTimeOut_ = seconds; }
  // A database keeps its own backups, and knows its users by their names alone.
  void SetBackupMode(std::int16_t /*mode*/) override {}
  void SetUserID(const std::string& /*id*/) override {}
  void SetWorkstationName(const std::string& /*name*/) override {}
  void SetWarningLevel(std::int16_t /*level*/) override {}
  void SetPassword(const std::string& password) override { password_ = password; }
  void SetUserName(const std::string& name) override { userName_ = name; }
  void SetMakesMissingFile(bool makes) override { makesMissingFile_ = makes; }

  std::int32_t DgetDLIST(const std::string& sListName, std::int16_t reserved) override;
  std::string DBTYPE() override { return entry_.DBTYPE; }
  std::string DBDRV() override { return entry_.DBDRV; }
  std::string DBDIR() override { return entry_.DBDIR; }
  std::string DBNAME() override { return entry_.DBNAME; }
  std::int32_t DOPEN(const std::string& sListName, std::int16_t reserved, DatabasePtr& db) override;
  std::int32_t CreateDynaWise(const DatabasePtr& db, RecordsetPtr& rs, const std::string& query, std::int16_t kind,
                              const std::string& table, Mode mode) override;
  std::int32_t AddNewDsWise(const RecordsetPtr& rs, std::int16_t kind, const std::string& reserved) override;
  std::int32_t EditDsWise(const RecordsetPtr& rs, std::int16_t kind, const std::string& reserved) override;
  std::int32_t UpdateDsWise(const RecordsetPtr& rs, std::int16_t kind, const std::string& reserved) override;
  std::int32_t DeleteDsWise(const RecordsetPtr& rs, std::int16_t kind, const std::string& reserved) override;

 private:
  [[nodiscard]] DataListEntries Entries() const;
  [[nodiscard]] DataListEntry EntryNamed(const std::string& name) const;
  [[nodiscard]] DatabasePtr Open(const DataListEntry& entry);

  DataListPlaces places_;
  std::string networkPath_;
  std::string localPath_;
  std::int16_t timeOutInterval_ = 6;
  std::int16_t maxTimeOut_ = 30;
  std::string userName_;
  std::string password_;
  bool makesMissingFile_ = false;
  DataListEntry entry_;
};

}  // namespace orlin
