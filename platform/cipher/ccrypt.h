#pragma once

#include <cstdint>
#include <string>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// The cipher of the password that the settings keep for an ODBC source.
///
/// It hides the password from a glance at the settings, and from a search for it; it does not keep it from anybody who
/// has this program, for the key is here. Keep the settings readable by those only who may know the password.
///
/// The text is "1:" and hexadecimal digits: four bytes of a seed that differs each time, four of a check, then each
/// byte of the password combined with a stream of numbers that grows from the seed. The check is a sum (FNV-1a) over
/// seed and password, so that a text that was cut or mistyped is found.
class CCrypt : public EncryptionComponent {
 public:
  /// `Failure` 5 for a text that `EncryptString` did not make.
  std::string DecryptString(const std::string& enciphered) override;
  /// The text of a password of any bytes; another one each time.
  [[nodiscard]] static std::string EncryptString(const std::string& plain);
};

}  // namespace orlin
