#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace [[using gnu: visibility("default")]] orlin {

/// The numbers of the failures that the library itself raises. All lie above 2, so that a result of
/// `Display` never takes a failure for an outcome. A component of the host may raise any other number.
namespace failures {
inline constexpr std::int32_t InvalidCall = 5;             ///< a call that cannot be done
inline constexpr std::int32_t Overflow = 6;                ///< a number does not fit its type
inline constexpr std::int32_t SubscriptOutOfRange = 9;     ///< index outside an array or a collection
inline constexpr std::int32_t DivisionByZero = 11;         ///< division by zero
inline constexpr std::int32_t TypeMismatch = 13;           ///< a value is not of the kind that is needed
inline constexpr std::int32_t NoObject = 91;               ///< an object is used that does not exist
inline constexpr std::int32_t InvalidPropertyValue = 380;  ///< a value that a control cannot take
inline constexpr std::int32_t ObjectRequired = 424;        ///< a value that is no object stands for one
inline constexpr std::int32_t CannotCreateObject = 429;    ///< no component of that name can be created
inline constexpr std::int32_t KeyExists = 457;             ///< the key is in the collection already
inline constexpr std::int32_t DatabaseFull = 3026;         ///< no room to store a row
inline constexpr std::int32_t DatabaseReadOnly = 3027;     ///< a database does not let itself be changed
inline constexpr std::int32_t CannotOpenDatabase = 3049;   ///< a database cannot be opened
inline constexpr std::int32_t NoSuchTable = 3078;          ///< a database lacks the table
inline constexpr std::int32_t DatabaseCallFailed = 3146;   ///< a call that a database refused, or did not answer
inline constexpr std::int32_t DatabaseLocked = 3260;       ///< another program keeps the database or the row locked
}  // namespace failures

/// A failure: a number that tells what went wrong, and a description for people.
class Failure : public std::exception {
 public:
  /// A failure with the usual description of its number.
  explicit Failure(std::int32_t number);
  Failure(std::int32_t number, std::string description);

  [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
  [[nodiscard]] const std::string& Description() const noexcept { return description_; }
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string description_;
};

}  // namespace orlin
