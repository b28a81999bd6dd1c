#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "frame/controls/control.h"

namespace orlin {

/// What list boxes and combo boxes have in common: rows, and one of them selected.
class RowList : public shown::RowList {
 public:
  RowList(const RowList&) = delete;
  RowList& operator=(const RowList&) = delete;

  [[nodiscard]] std::int16_t ListCount() const noexcept final { return static_cast<std::int16_t>(rows_.size()); }
  [[nodiscard]] std::int16_t ListIndex() const noexcept final { return listIndex_; }
  [[nodiscard]] const std::string& List(int row) const noexcept final;
  [[nodiscard]] std::int32_t ItemData(int row) const final;
  [[nodiscard]] bool Selected(int row) const noexcept final;
  Refusal PickRow(int row) final;
  Refusal MarkRow(int row, bool on) final;

  void AddItem(std::string text);
  void AddItem(std::string text, std::int32_t itemData);
  /// `Failure` 380 outside 0 to `ListCount`.
  void InsertItem(std::string text, int row);
  void SetItemData(int row, std::int32_t itemData);
  /// The row of the last `AddItem`, or -1.
  [[nodiscard]] std::int16_t NewIndex() const noexcept { return newIndex_; }
  void Clear();
  /// Selects a row, or none with -1; `Failure` 380 beyond.
  void SetListIndex(int row);
  /// Selects the row that a raw value names; unlike in `SetListIndex`, -1 names none and fails with 380.
  void SelectRow(int row);

 protected:
  /// The owner is the control that this is a part of.
  explicit RowList(Control& owner) : owner_(owner) {}
  ~RowList() = default;

  [[nodiscard]] bool HasRow(int row) const noexcept { return row >= 0 && row < ListCount(); }
  /// Picks a row for Up, Down, Home, End, Page Up and Page Down; tells whether the key was one of them.
  bool PickByKey(const Key& key);
  /// Picks the next row that begins with the characters typed so far.
  void PickByTyping(char32_t character);
  void PutListIndex(int row) noexcept { listIndex_ = static_cast<std::int16_t>(row); }
  /// Chooses a row of a list of many choices, or gives it up; `Failure` 380 where there is no such row.
  void Choose(int row, bool on, By by);
  /// Makes a row, which exists, or -1, the selected one, and fires what is due.
  virtual void Select(int row, By by) = 0;
  /// A row was chosen or given up.
  virtual void Chosen(int row, By by) = 0;
  virtual void RowsCleared() {}

 private:
  struct Row {
    std::string Text;
    std::int32_t ItemData = 0;
    bool Selected = false;
  };

  [[nodiscard]] Row& RowAt(int row);

  Control& owner_;
  std::vector<Row> rows_;
  std::int16_t listIndex_ = -1;
  std::int16_t newIndex_ = -1;
  std::u32string typed_;          // in small letters
  std::uint32_t typedSince_ = 0;  // the pause of the dialog before it
};

}  // namespace orlin
