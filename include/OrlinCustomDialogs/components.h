#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// The text catalogue, created by name as "LocalText.clsLocalText".
class LocalTextComponent : public Object {
 public:
  /// The text with that number, in UTF-8, or an empty text.
  virtual std::string GetLocalTextBASE(std::int16_t id) = 0;
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

/// The data list of the account store, created by name as "storeObj.clsDList".
class DListComponent : public Object {
 public:
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
