#include "script/state.h"

#include <nlohmann/json.hpp>

namespace orlin {
namespace {

using nlohmann::ordered_json;

bool HasCaption(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Button:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      return true;
    default:
      return false;
  }
}

/// A JSON array of `count` values.
template <class Make>
ordered_json Rows(int count, Make make) {
  auto rows = ordered_json::array();
  for (int i = 0; i < count; ++i) rows.push_back(make(i));
  return rows;
}

void Add(ordered_json& state, const shown::TextControl& box, const std::string& text) {
  state["text"] = text;
  state["locked"] = box.Locked();
  state["maxLength"] = box.MaxLength();
  state["selStart"] = box.SelStart();
  state["selLength"] = box.SelLength();
}

void Add(ordered_json& state, const shown::RowList& list) {
  state["listIndex"] = list.ListIndex();
  state["list"] = Rows(list.ListCount(), [&](int row) { return list.List(row); });
  state["itemData"] = Rows(list.ListCount(), [&](int row) { return list.ItemData(row); });
}

void Add(ordered_json& state, const shown::ListBox& list) {
  Add(state, static_cast<const shown::RowList&>(list));
  if (list.Choice() == shown::Choice::One) return;
  state["selected"] = Rows(list.ListCount(), [&](int row) { return list.Selected(row); });
}

void Add(ordered_json& state, const shown::UpDown& buttons) {
  state["value"] = buttons.Value();
  state["min"] = buttons.Min();
  state["max"] = buttons.Max();
}

void Add(ordered_json& state, const shown::Grid& grid) {
  const auto cells = [&](auto field) {
    return Rows(grid.Rows(),
                [&](int row) { return Rows(grid.Cols(), [&](int col) { return field(grid.CellAt(row, col)); }); });
  };
  state["rows"] = grid.Rows();
  state["cols"] = grid.Cols();
  state["row"] = grid.Row();
  state["col"] = grid.Col();
  state["cells"] = cells([](const auto& cell) { return cell.Text; });
  state["colours"] = cells([](const auto& cell) { return cell.Color; });
  state["bold"] = cells([](const auto& cell) { return cell.Bold; });
  state["editing"] = grid.Editing();
}

void AddOwn(ordered_json& state, const shown::Control& control) {
  switch (control.Kind()) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Button:
      break;
    case ControlKind::CheckBox:
      state["value"] = dynamic_cast<const shown::CheckBox&>(control).Value();
      break;
    case ControlKind::OptionButton:
      state["value"] = dynamic_cast<const shown::OptionButton&>(control).Value();
      break;
    case ControlKind::TextBox: {
      const auto& box = dynamic_cast<const shown::TextBox&>(control);
      Add(state, box, box.Text());
      break;
    }
    case ControlKind::ComboBox: {
      const auto& box = dynamic_cast<const shown::ComboBox&>(control);
      Add(state, box, box.Text());
      Add(state, static_cast<const shown::RowList&>(box));
      break;
    }
    case ControlKind::ListBox:
      Add(state, dynamic_cast<const shown::ListBox&>(control));
      break;
    case ControlKind::UpDown:
      Add(state, dynamic_cast<const shown::UpDown&>(control));
      break;
    case ControlKind::StatusBar:
      state["text"] = dynamic_cast<const shown::StatusBar&>(control).Text();
      break;
    case ControlKind::Timer:
      state["interval"] = dynamic_cast<const shown::Timer&>(control).Interval();
      break;
    case ControlKind::Grid:
      Add(state, dynamic_cast<const shown::Grid&>(control));
      break;
  }
}

}  // namespace

ordered_json StateOf(const shown::Control& control) {
  ordered_json state;
  state["kind"] = KindName(control.Kind());
  state["visible"] = control.Visible();
  state["enabled"] = control.Enabled();
  state["left"] = control.Left();
  state["top"] = control.Top();
  state["width"] = control.Width();
  if (HasCaption(control.Kind())) state["caption"] = control.Caption();
  AddOwn(state, control);
  return state;
}

}  // namespace orlin
