#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// The rows of one table in which every column of the conditions has its value.
struct Query {
  struct Condition {
    std::string Column;
    Value Wanted;  ///< a String or a Long
  };
  std::string Table;
  std::vector<Condition> Conditions;
};

/// Takes a query of the library apart (see `DListComponent::CreateDynaWise`), so that its values reach the database as
/// values, whatever is in them, and never as a part of a statement. `Failure` 5 for any other text.
[[nodiscard]] Query ParseQuery(std::string_view text);

}  // namespace orlin
