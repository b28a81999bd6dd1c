#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

#include "app/usage/usage_error.h"

namespace orlin {

/// The parameters of a panel as a host application keeps them, in a file:
///
///     {
///       "panel": "Willow",
///       "levels": ["AuthorityLevel=2,2"],
///       "parameters": [
///         {
///           "name": "Zone 5, function code",
///           "class": "clsZoneFunctionsWillow",
///           "arguments": {"ZoneNum": "5", "ZoneCode": "\"5146\""},
///           "levels": []
///         }
///       ]
///     }
///
/// The arguments hold what the host stores (see `PublicClass`), written as on the command line, so that their kind is
/// kept: 5 is an Integer, 5L a Long, 5D a Double, "\"5\"" a String, [1,0*7] an array. Those that are not there are
/// empty, or 0. The levels of the account come before those of a parameter, "NAME=VIEW,EDIT" each. What else stands in
/// the file stays there.
///
/// Others may work on the file at the same time, also other processes.
class Account {
 public:
  struct Parameter {
    std::string Name;
    const PublicClass* Class = nullptr;
    std::vector<std::string> Arguments;  ///< NAME=VALUE, in the order of the file
    std::vector<std::string> Levels;     ///< NAME=VIEW,EDIT
  };

  /// Reads the file. `UsageError` where it cannot be read, or makes no sense.
  explicit Account(std::filesystem::path file);

  [[nodiscard]] const std::string& Panel() const noexcept { return panel_; }
  [[nodiscard]] const std::vector<Parameter>& Parameters() const noexcept { return parameters_; }

  [[nodiscard]] const std::filesystem::path& File() const noexcept { return file_; }

  /// Reads the file again, and tells whether it has changed. `UsageError` as when it was first read; this account then
  /// stays as it is.
  bool ReadAgain();

  /// The values of a parameter as they are stored, one for each parameter of its class; for `SecurityLevels` the
  /// rights.
  [[nodiscard]] std::vector<Value> ValuesOf(std::size_t parameter) const;

  /// Stores new values of a parameter in the file as it stands now, changing nothing else in it; no other writer can do
  /// so meanwhile. The file holds either the old values or the new ones, whatever happens. From then on this account is
  /// what stands there. Tells whether the file was changed, which needs values that are not in it.
  ///
  /// `ChangedMeanwhile` where another writer has given this parameter other values since it was read here.
  /// `UsageError` where the file can no longer be read, has lost the parameter, or cannot be written; neither the file
  /// nor this account changes.
  bool Store(std::size_t parameter, const std::vector<Value>& values);

 private:
  Account(std::filesystem::path file, std::string text);
  void Read();
  [[nodiscard]] std::optional<std::size_t> SameAs(const Account& other, std::size_t parameter) const;

  std::filesystem::path file_;
  std::string text_;  // of the file
  std::string panel_;
  std::vector<Parameter> parameters_;
};

/// A parameter was not stored: it is no longer what it was when it was read.
class ChangedMeanwhile : public UsageError {
 public:
  ChangedMeanwhile(const std::string& what, std::vector<Value> found) : UsageError(what), Found(std::move(found)) {}

  std::vector<Value> Found;  ///< the values that stand there now
};

}  // namespace orlin
