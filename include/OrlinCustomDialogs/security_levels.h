#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/value.h"

namespace [[using gnu: visibility("default")]] orlin {

/// What one part of a parameter requires of the operator, or, under the name "AuthorityLevel", what he has.
struct SecurityLevel {
  std::string Name;
  std::int16_t ViewLevel = 0;
  std::int16_t EditLevel = 0;
};

/// The rights of one call: an ordered collection of records, each reachable by position and by its name.
///
/// The record "AuthorityLevel" holds the levels of the operator. Every other record is named after a part of a
/// parameter: a dialog hides that part where the operator's `ViewLevel` is below the record's, and disables it
/// where his `EditLevel` is. Names that a dialog does not know have no effect.
///
///     auto levels = std::make_shared<orlin::SecurityLevels>();
///     levels->Add("AuthorityLevel", 2, 1);
///     levels->Add("Trouble On", 0, 2);  // visible, but not to be changed
class SecurityLevels : public Object {
 public:
  /// Appends a record. `Failure` 457 where the name is there already; names are keys, without regard to case.
  void Add(std::string name, std::int16_t viewLevel, std::int16_t editLevel);

  [[nodiscard]] std::int32_t Count() const noexcept;
  /// The record at a position, counted from 1; `Failure` 9 outside.
  [[nodiscard]] const SecurityLevel& Item(std::int32_t position) const;
  /// The record of that name; `Failure` 5 where there is none.
  [[nodiscard]] const SecurityLevel& Item(std::string_view key) const;

  [[nodiscard]] auto begin() const noexcept { return records_.begin(); }
  [[nodiscard]] auto end() const noexcept { return records_.end(); }

 private:
  [[nodiscard]] const SecurityLevel* Find(std::string_view key) const noexcept;

  std::vector<SecurityLevel> records_;
};

}  // namespace orlin
