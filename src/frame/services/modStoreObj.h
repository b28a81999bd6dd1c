#pragma once

#include <cstdint>
#include <string>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// Makes the store object anew and sets it up. 0, or the number of a failure, which has been reported.
[[nodiscard]] std::int32_t InitStoreObj();

/// The store object; `Failure` 91 where there is none.
[[nodiscard]] DListComponent& Store();

/// Opens the database that an entry of the data list names, on request after a trial opening of a file database, which
/// tells of a bad path in plain words. 0 and the database, or the number of a failure, which has been reported.
[[nodiscard]] std::int32_t OpenSecureDB(const std::string& sListName, DatabasePtr& db, bool bCheckFirst);

}  // namespace orlin
