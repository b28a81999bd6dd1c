#pragma once

#include "frame/controls/row_list.h"
#include "frame/controls/text_field.h"

namespace orlin {

struct ComboState {
  bool HasEditField = false;
  ControlState Common = {};
};

/// A drop-down list, or, with an edit field, a combo box.
class ComboBox : public Control, public TextField, public RowList {
 public:
  ComboBox(const Container& in, std::string_view name, const ComboState& state = {}, int index = -1)
      : Control(ControlKind::ComboBox, in, name, {}, state.Common, index),
        TextField(static_cast<Control&>(*this), {}),
        RowList(static_cast<Control&>(*this)),
        hasEditField_(state.HasEditField) {}

  [[nodiscard]] shown::TextField* AsTextField() noexcept override { return this; }
  [[nodiscard]] shown::RowList* AsRowList() noexcept override { return this; }
  [[nodiscard]] std::string Text() const override { return hasEditField_ ? TextField::Text() : List(ListIndex()); }
  [[nodiscard]] bool HasEditField() const noexcept override { return hasEditField_; }
  [[nodiscard]] shown::Choice Choice() const noexcept override { return shown::Choice::One; }

  Event<> Click;

 private:
  void TakeKey(const Key& key) override;
  // A text that is typed, or set by code, is no row.
  void TextChanged() override { PutListIndex(-1); }
  void Select(int row, By by) override;
  void Chosen(int, By) override {}
  void RowsCleared() override { PutText(""); }

  bool hasEditField_;
};

}  // namespace orlin
