#include "frame/controls/row_list.h"

#include <algorithm>
#include <limits>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/written_text.h"

#include "frame/dialog/dialog.h"

namespace orlin {
namespace {

/// Whether a row begins with what was typed, in small letters. Blanks that indent it do not count.
bool BeginsWith(std::string_view row, std::u32string_view typed) {
  auto text = FromUtf8(row.substr(std::min(row.find_first_not_of(' '), row.size())));
  std::transform(text.begin(), text.end(), text.begin(), SmallLetter);
  return std::u32string_view(text).starts_with(typed);
}

}  // namespace

const std::string& RowList::List(int row) const noexcept {
  static const std::string none;
  return HasRow(row) ? rows_[static_cast<std::size_t>(row)].Text : none;
}

std::int32_t RowList::ItemData(int row) const {
  if (!HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  return rows_[static_cast<std::size_t>(row)].ItemData;
}

RowList::Row& RowList::RowAt(int row) {
  if (!HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  return rows_[static_cast<std::size_t>(row)];
}

bool RowList::Selected(int row) const noexcept { return HasRow(row) && rows_[static_cast<std::size_t>(row)].Selected; }

void RowList::AddItem(std::string text) { InsertItem(std::move(text), ListCount()); }

void RowList::AddItem(std::string text, std::int32_t itemData) {
  AddItem(std::move(text));
  rows_.back().ItemData = itemData;
}

void RowList::InsertItem(std::string text, int row) {
  owner_.Touch();
  if (row < 0 || row > ListCount() || ListCount() == std::numeric_limits<std::int16_t>::max()) {
    throw Failure(failures::InvalidPropertyValue);
  }
  rows_.insert(rows_.begin() + row, Row{std::move(text)});
  newIndex_ = static_cast<std::int16_t>(row);
  if (listIndex_ >= row) ++listIndex_;
  owner_.Changed();
}

void RowList::SetItemData(int row, std::int32_t itemData) {
  owner_.Touch();
  RowAt(row).ItemData = itemData;
  owner_.Changed();
}

void RowList::Clear() {
  owner_.Touch();
  rows_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  RowsCleared();
  owner_.Changed();
}

void RowList::SetListIndex(int row) {
  owner_.Touch();
  if (row != -1 && !HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  Select(row, By::Code);
}

void RowList::SelectRow(int row) {
  owner_.Touch();
  if (!HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  Select(row, By::Code);
}

Refusal RowList::PickRow(int row) {
  if (Choice() != shown::Choice::One) {
    return owner_.Name() + " is a list of many choices: its rows are selected on or off";
  }
  if (auto refusal = owner_.Approach()) return refusal;
  if (!HasRow(row)) return owner_.Name() + " has no row " + std::to_string(row);
  if (row != listIndex_) Select(row, By::Operator);
  return {};
}

Refusal RowList::MarkRow(int row, bool on) {
  if (Choice() == shown::Choice::One) return owner_.Name() + " is a list of one choice: its rows are picked";
  if (auto refusal = owner_.Approach()) return refusal;
  if (!HasRow(row)) return owner_.Name() + " has no row " + std::to_string(row);
  PutListIndex(row);
  owner_.Changed();
  Choose(row, on, By::Operator);
  return {};
}

void RowList::Choose(int row, bool on, By by) {
  auto& selected = RowAt(row).Selected;
  if (selected == on) return;
  selected = on;
  owner_.Changed();
  Chosen(row, by);
}

bool RowList::PickByKey(const Key& key) {
  const int last = ListCount() - 1;
  const auto target = [&]() -> std::optional<int> {
    switch (key.Code) {
      case keys::Home:
        return 0;
      case keys::End:
        return last;
      case keys::Up:
        return listIndex_ - 1;
      case keys::Down:
        return listIndex_ + 1;
      case keys::PageUp:
        return listIndex_ - shown::kRowsOfAPage;
      case keys::PageDown:
        return listIndex_ + shown::kRowsOfAPage;
      default:
        return std::nullopt;
    }
  }();
  if (!target) return false;
  const int row = std::clamp(*target, 0, std::max(last, 0));
  if (HasRow(row) && row != listIndex_) Select(row, By::Operator);
  return true;
}

void RowList::PickByTyping(char32_t character) {
  const auto pauses = owner_.Owner().TypingPauses();
  if (std::exchange(typedSince_, pauses) != pauses) typed_.clear();
  // The first character leaves the row that stands, further ones may keep it.
  const int first = std::max(typed_.empty() ? listIndex_ + 1 : +listIndex_, 0);
  typed_.push_back(SmallLetter(character));
  for (int i = 0; i < ListCount(); ++i) {
    const int row = (first + i) % ListCount();
    if (!BeginsWith(List(row), typed_) && !BeginsWith(owner_.Translated(List(row)), typed_)) continue;
    if (row != listIndex_) Select(row, By::Operator);
    return;
  }
  typed_.clear();
}

}  // namespace orlin
