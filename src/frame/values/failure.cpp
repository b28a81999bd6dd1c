#include "OrlinCustomDialogs/failure.h"

#include <utility>

namespace orlin {
namespace {

std::string UsualDescription(std::int32_t number) {
  switch (number) {
    case failures::InvalidCall:
      return "Invalid procedure call or argument";
    case failures::Overflow:
      return "Overflow";
    case failures::SubscriptOutOfRange:
      return "Subscript out of range";
    case failures::DivisionByZero:
      return "Division by zero";
    case failures::TypeMismatch:
      return "Type mismatch";
    case failures::NoObject:
      return "Object not set";
    case failures::InvalidPropertyValue:
      return "Invalid property value";
    case failures::ObjectRequired:
      return "Object required";
    case failures::CannotCreateObject:
      return "Component cannot create object";
    case failures::KeyExists:
      return "The key is in the collection already";
    case failures::DatabaseFull:
      return "The database has no room left";
    case failures::DatabaseReadOnly:
      return "The database cannot be changed";
    case failures::CannotOpenDatabase:
      return "Cannot open database";
    case failures::NoSuchTable:
      return "The database lacks the table";
    case failures::DatabaseCallFailed:
      return "A call to the database failed";
    case failures::DatabaseLocked:
      return "The database is locked by another program";
    default:
      return "Failure " + std::to_string(number);
  }
}

}  // namespace

Failure::Failure(std::int32_t number) : Failure(number, UsualDescription(number)) {}

Failure::Failure(std::int32_t number, std::string description)
    : number_(number), description_(std::move(description)) {}

}  // namespace orlin
