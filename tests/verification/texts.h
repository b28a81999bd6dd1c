#pragma once

#include <string>

#include "catalogue/text_catalogue.h"

namespace orlin::testing {

inline std::string Text(int number) { return TextCatalogue().GetLocalTextBASE(static_cast<std::int16_t>(number)); }

}  // namespace orlin::testing
