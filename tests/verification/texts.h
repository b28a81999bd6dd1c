#pragma once

#include <string>
#include <vector>

#include "support/dialog_test.h"

namespace orlin::testing {

using Strings = std::vector<std::string>;

/// What `DialogRun::Fields` gives for messages or titles with these texts; 0 stands for none.
inline std::vector<Json> Texts(const std::vector<int>& numbers) {
  std::vector<Json> texts;
  for (const int number : numbers) {
    if (number != 0) texts.emplace_back(Text(number));
  }
  return texts;
}

}  // namespace orlin::testing
