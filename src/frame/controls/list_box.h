#pragma once

#include "frame/controls/row_list.h"

namespace orlin {

struct ListState {
  shown::Choice Choice = shown::Choice::One;
  bool HasHeading = false;  ///< its first row tells what the others are
  ControlState Common = {};
};

class ListBox : public Control, public RowList {
 public:
  ListBox(const Container& in, std::string_view name, const ListState& state = {})
      : Control(ControlKind::ListBox, in, name, {}, state.Common),
        RowList(static_cast<Control&>(*this)),
        choice_(state.Choice),
        hasHeading_(state.HasHeading) {}

  [[nodiscard]] shown::RowList* AsRowList() noexcept override { return this; }
  [[nodiscard]] shown::Choice Choice() const noexcept override { return choice_; }
  [[nodiscard]] std::string SpokenName() const override { return hasHeading_ ? List(0) : Control::SpokenName(); }

  /// `Failure` 380 where there is no such row.
  void SetSelected(int row, bool on);

  Event<> Click;
  Event<int> ItemCheck;

 private:
  void TakeKey(const Key& key) override;
  void Select(int row, By by) override;
  void Chosen(int row, By by) override;

  shown::Choice choice_;
  bool hasHeading_;
};

}  // namespace orlin
