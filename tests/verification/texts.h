#pragma once

#include <string>
#include <vector>

#include "catalogue/text_catalogue.h"
#include "support/dialog_test.h"

namespace orlin::testing {

inline std::string Text(int number) { return TextCatalogue().GetLocalTextBASE(static_cast<std::int16_t>(number)); }

/// What `DialogRun::Fields` gives for messages or titles with these texts; 0 stands for none.
inline std::vector<Json> Texts(const std::vector<int>& numbers) {
  std::vector<Json> texts;
  for (const int number : numbers) {
    if (number != 0) texts.emplace_back(Text(number));
  }
  return texts;
}

}  // namespace orlin::testing
