#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/value.h"

namespace [[using gnu: visibility("default")]] orlin {

/// The text catalogue, created by name as "LocalText.clsLocalText".
class LocalTextComponent : public Object {
 public:
  /// The text with that number, in UTF-8, or an empty text.
  virtual std::string GetLocalTextBASE(std::int16_t id) = 0;

  /// The text with that number in the languages that the catalogue knows beside the one that it speaks. What a host
  /// hands over may be written in any of them.
  virtual std::vector<std::string> GetOtherLanguagesBASE(std::int16_t id) {
    static_cast<void>(id);
    return {};
  }
};

/// One failure as it is handed to the fault log.
struct FaultRecord {
  std::int32_t Number = 0;
  std::string Date;  ///< in the form of the operator's locale
  std::string Time;  ///< likewise
  std::string ModuleName;
  std::string ProcedureName;
  std::int16_t WarningLevel = 0;
};

/// The fault log, created by name as "FaultObject.clsFaultObject". It holds one record at a time.
/// None of its operations should raise a failure: the dialogs go on when a fault cannot be written.
class FaultObjectComponent : public Object {
 public:
  virtual void SetAppName(const std::string& name) = 0;
  virtual void SetAppVersion(const std::string& version) = 0;
  virtual void SetWarningLevel(std::int16_t level) = 0;
  /// The file that `LogError` writes to.
  virtual void SetAppErrorFile(const std::string& file) = 0;

  /// Takes up one failure.
  virtual void Add(const FaultRecord& fault) = 0;
  /// Attaches further text to the record.
  virtual void SetAddlText(const std::string& text) = 0;
  /// Shows the record to the operator.
  virtual void MsgBox() = 0;
  /// Appends the record to the fault file.
  virtual void LogError() = 0;
  /// Forgets the record.
  virtual void Clear() = 0;
};

/// One column of the current row of a recordset. Valid as long as the recordset.
class RecordsetField {
 public:
  RecordsetField() = default;
  RecordsetField(const RecordsetField&) = delete;
  RecordsetField& operator=(const RecordsetField&) = delete;
  virtual ~RecordsetField() = default;

  /// A text or a number; Empty where the row holds nothing there. May raise a `Failure`.
  [[nodiscard]] virtual orlin::Value Value() = 0;
  /// Takes effect with the next `UpdateDsWise`; only between `AddNewDsWise` or `EditDsWise` and that.
  virtual void SetValue(const orlin::Value& value) = 0;
};

/// The rows of a query, the first of which is the current one.
class Recordset : public Object {
 public:
  /// Whether there is no current row.
  [[nodiscard]] virtual bool Eof() = 0;
  /// The column of that name, found without regard to case; `Failure` 5 where the rows have none.
  [[nodiscard]] virtual RecordsetField& Fields(const std::string& name) = 0;
  /// Gives up what was begun and not stored. Allowed any number of times.
  virtual void Close() = 0;
};

/// An open database.
class Database : public Object {
 public:
  /// Allowed any number of times.
  virtual void Close() = 0;
};

using RecordsetPtr = std::shared_ptr<Recordset>;
using DatabasePtr = std::shared_ptr<Database>;

/// The data list of the account store, created by name as "storeObj.clsDList". It knows the databases by the names of
/// its entries, and opens, reads and writes them.
///
/// Operations that return a number return 0, or the number of a failure; they raise none.
class DListComponent : public Object {
 public:
  /// What a recordset is opened for.
  enum Mode : std::int16_t { Writing = 0, Reading = 4 };
  /// The only kind of recordset that the library asks for: one whose rows can be changed.
  static constexpr std::int16_t kDynamicRows = 2;

  virtual void SetNetWorkDListPath(const std::string& path) = 0;
  virtual void SetLocalDListPath(const std::string& path) = 0;
  virtual void SetTimeOutInterval(std::int16_t seconds) = 0;
  virtual void SetMaxTimeOut(std::int16_t seconds) = 0;
  virtual void SetBackupMode(std::int16_t mode) = 0;
  virtual void SetUserID(const std::string& id) = 0;
  virtual void SetWorkstationName(const std::string& name) = 0;
  virtual void SetWarningLevel(std::int16_t level) = 0;
  /// The password for the next opening.
  virtual void SetPassword(const std::string& password) = 0;
  /// The user name for the next opening; set for "ODBC" alone.
  virtual void SetUserName(const std::string& name) = 0;
  /// Whether a file database that is missing can be opened next: it has no rows, and is made when the first one is
  /// stored. Off at creation.
  virtual void SetMakesMissingFile(bool makes) = 0;

  /// Looks an entry up and fills the four properties below.
  [[nodiscard]] virtual std::int32_t DgetDLIST(const std::string& sListName, std::int16_t reserved) = 0;
  /// "ACCESS" for a file database, "ODBC" for a source, in any case of the letters.
  [[nodiscard]] virtual std::string DBTYPE() = 0;
  /// The drive letter, the directory and the file name of a file database. The path is drive, ":", directory, file
  /// name.
  [[nodiscard]] virtual std::string DBDRV() = 0;
  [[nodiscard]] virtual std::string DBDIR() = 0;
  [[nodiscard]] virtual std::string DBNAME() = 0;

  /// Opens the database of an entry; sets `db` only where it returns 0.
  [[nodiscard]] virtual std::int32_t DOPEN(const std::string& sListName, std::int16_t reserved, DatabasePtr& db) = 0;

  /// Sets `rs` to the rows of a query on one table. `query` has the form
  /// `SELECT * FROM [table] WHERE [column] = value AND ...`; names stand in brackets, a text stands in single quotation
  /// marks with each one inside it doubled, a number stands as it is.
  [[nodiscard]] virtual std::int32_t CreateDynaWise(const DatabasePtr& db, RecordsetPtr& rs, const std::string& query,
                                                    std::int16_t kind, const std::string& table, Mode mode) = 0;
  /// Begins a new row.
  [[nodiscard]] virtual std::int32_t AddNewDsWise(const RecordsetPtr& rs, std::int16_t kind,
                                                  const std::string& reserved) = 0;
  /// Begins a change of the current row.
  [[nodiscard]] virtual std::int32_t EditDsWise(const RecordsetPtr& rs, std::int16_t kind,
                                                const std::string& reserved) = 0;
  /// Stores the row that was begun, whole or not at all.
  [[nodiscard]] virtual std::int32_t UpdateDsWise(const RecordsetPtr& rs, std::int16_t kind,
                                                  const std::string& reserved) = 0;
  /// Deletes the current row.
  [[nodiscard]] virtual std::int32_t DeleteDsWise(const RecordsetPtr& rs, std::int16_t kind,
                                                  const std::string& reserved) = 0;
};

/// The engine of the file databases, for a trial opening and for what lies at a path. Paths have the form that a data
/// list gives: drive letter, ":", directory, file name.
class DatabaseEngine {
 public:
  DatabaseEngine() = default;
  DatabaseEngine(const DatabaseEngine&) = delete;
  DatabaseEngine& operator=(const DatabaseEngine&) = delete;
  virtual ~DatabaseEngine() = default;

  /// Opens a file database; raises a `Failure` where it cannot be opened.
  [[nodiscard]] virtual DatabasePtr OpenDatabase(const std::string& path, bool exclusive, bool readOnly,
                                                 const std::string& connect) = 0;
  [[nodiscard]] virtual bool FileExists(const std::string& path) = 0;
};

/// The cipher of the stored password, created by name as "Kesmit.Encryption.CCrypt".
class EncryptionComponent : public Object {
 public:
  /// The plain text. Raises a `Failure` for what is no enciphered text; the failure tells nothing of its content.
  [[nodiscard]] virtual std::string DecryptString(const std::string& enciphered) = 0;
};

/// The machine-wide settings store, in the three operations that the library uses.
class SettingsStore {
 public:
  enum class Hive { LocalMachine };
  using Key = std::int32_t;
  enum class Type { String, Other };
  struct Setting {
    Type type = Type::String;
    std::string Bytes;  ///< 8-bit text as it is stored, which may hold zero characters
  };

  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  virtual ~SettingsStore() = default;

  /// A key that is open until `RegCloseKey`, or nothing where it cannot be opened. Names of keys and values
  /// are found without regard to case.
  virtual std::optional<Key> RegOpenKeyA(Hive hive, const std::string& subKey) = 0;
  /// The value of that name, or nothing where the key has none.
  virtual std::optional<Setting> RegQueryValueExA(Key key, const std::string& valueName) = 0;
  virtual void RegCloseKey(Key key) = 0;
};

/// Reads and writes single bits of a number; bit 0 is the least significant.
class BitRoutines {
 public:
  BitRoutines() = default;
  BitRoutines(const BitRoutines&) = delete;
  BitRoutines& operator=(const BitRoutines&) = delete;
  virtual ~BitRoutines() = default;

  /// Not zero if the bit is set.
  virtual std::int16_t BitGet0(const std::int16_t& value, std::int32_t bit) = 0;
  /// Stores the lowest `count` bits of `newValue` in `value`, from the bit on.
  virtual void BitPack0(std::int16_t& value, std::int32_t bit, std::int32_t count, std::int16_t newValue) = 0;
};

/// The present date and time, as texts in the form of the operator's locale.
class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  virtual std::string Date() = 0;
  virtual std::string Time() = 0;
  /// Date, a blank, time.
  virtual std::string DateAndTime() = 0;
};

/// Makes one component. May raise a `Failure`; an empty pointer counts as 429.
using ComponentFactory = std::function<ObjectPtr()>;

/// Creates the component that is installed under that name (see `UsePlatform`), or the public class
/// "OrlinCustomDialogs.<class>" once `DllRegisterServer` has registered it. `Failure` 429 where there is none.
[[nodiscard]] ObjectPtr CreateObject(std::string_view name);

}  // namespace orlin
