#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

#include "frame/services/modGeneral.h"
#include "frame/values/skip_failure.h"

namespace orlin {

/// The numbers from `First` to `Last`, for texts that follow one another in the catalogue.
template <std::int16_t First, std::int16_t Last>
[[nodiscard]] consteval auto TextRun() {
  std::array<std::int16_t, Last - First + 1> numbers{};
  std::iota(numbers.begin(), numbers.end(), First);
  return numbers;
}

/// Appends a catalogue text to a list. One that fails is left out.
template <class List>
void AddLocalText(List& list, std::int16_t number) {
  SkipFailure([&] { list.AddItem(GetLocalText(number)); });
}

/// Likewise several, in order.
template <class List, class Numbers>
void AddLocalTexts(List& list, const Numbers& numbers) {
  for (const std::int16_t number : numbers) AddLocalText(list, number);
}

/// Fills a list anew and selects the row that was selected before or, in a list that has become shorter, its last
/// one. Failures are skipped.
template <class List, class Fill>
void RefillList(List& list, Fill fill) {
  const int remembered = list.ListIndex();
  list.Clear();
  fill();
  SkipFailure([&] { list.SetListIndex(std::min<int>(remembered, list.ListCount() - 1)); });
}

}  // namespace orlin
