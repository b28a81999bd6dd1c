#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

#include "OrlinCustomDialogs/failure.h"

#include "frame/controls/control.h"

namespace orlin {

/// Controls of one kind under one name, told apart by their index: "cmbDigit(0)", "cmbDigit(1)" ..., or counted from
/// another `First`.
template <class Kind, std::size_t Size, std::size_t First = 0>
class ControlArray {
 public:
  /// Members without captions, all in the same initial state.
  ControlArray(const Container& in, std::string_view name)
      : ControlArray(in, name, std::array<CaptionSource, Size>{}) {}
  /// One caption for each index, from the first.
  ControlArray(const Container& in, std::string_view name, const std::array<CaptionSource, Size>& captions)
      : ControlArray(in, name, captions, std::make_index_sequence<Size>()) {}

  /// `Failure` 9 outside the array.
  [[nodiscard]] Kind& operator[](std::integral auto index) { return members_[Checked(index)]; }
  [[nodiscard]] const Kind& operator[](std::integral auto index) const { return members_[Checked(index)]; }
  [[nodiscard]] static constexpr std::size_t size() noexcept { return Size; }
  [[nodiscard]] auto begin() noexcept { return members_.begin(); }
  [[nodiscard]] auto end() noexcept { return members_.end(); }
  [[nodiscard]] auto begin() const noexcept { return members_.begin(); }
  [[nodiscard]] auto end() const noexcept { return members_.end(); }

  /// One handler for the `Click` of all members, which gets the index.
  template <class Handler>
  void OnClick(Handler handler) {
    for (std::size_t i = 0; i < Size; ++i) members_[i].Click = [handler, i] { handler(static_cast<int>(First + i)); };
  }

 private:
  template <std::size_t... Indexes>
  ControlArray(const Container& in, std::string_view name, const std::array<CaptionSource, Size>& captions,
               std::index_sequence<Indexes...>)
      : members_{Make(in, name, captions[Indexes], static_cast<int>(First + Indexes))...} {}

  static std::size_t Checked(std::integral auto index) {
    if (std::cmp_less(index, First) || std::cmp_greater_equal(index, First + Size)) {
      throw Failure(failures::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index) - First;
  }

  static Kind Make(const Container& in, std::string_view name, const CaptionSource& caption, int index) {
    if constexpr (std::is_constructible_v<Kind, const Container&, std::string_view, const CaptionSource&>) {
      return Kind(in, name, caption, {}, index);
    } else {
      return Kind(in, name, {}, index);
    }
  }

  std::array<Kind, Size> members_;
};

}  // namespace orlin
