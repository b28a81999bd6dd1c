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

void Add(ordered_json& state, const shown::TextField& box) {
  state["text"] = box.Text();
  state["locked"] = box.Locked();
  state["maxLength"] = box.MaxLength();
  state["selStart"] = box.SelStart();
  state["selLength"] = box.SelLength();
}

void Add(ordered_json& state, const shown::RowList& list) {
  state["listIndex"] = list.ListIndex();
  state["list"] = Rows(list.ListCount(), [&](int row) { return list.List(row); });
  state["itemData"] = Rows(list.ListCount(), [&](int row) { return list.ItemData(row); });
  if (list.Choice() == shown::Choice::One) return;
  state["selected"] = Rows(list.ListCount(), [&](int row) { return list.Selected(row); });
}

void Add(ordered_json& state, const shown::Stepper& buttons) {
  state["value"] = buttons.Value();
  state["min"] = buttons.Min();
  state["max"] = buttons.Max();
}

void Add(ordered_json& state, const shown::Table& grid) {
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

void Add(ordered_json& state, const shown::Control& control) {
  if (HasCaption(control.Kind())) state["caption"] = control.Caption();
  if (control.Kind() == ControlKind::StatusBar) state["text"] = control.Caption();
  if (control.Kind() == ControlKind::CheckBox) state["value"] = control.AsMark()->IsOn() ? 1 : 0;
  if (control.Kind() == ControlKind::OptionButton) state["value"] = control.AsMark()->IsOn();
  if (const auto* box = control.AsTextField()) Add(state, *box);
  if (const auto* list = control.AsRowList()) Add(state, *list);
  if (const auto* buttons = control.AsStepper()) Add(state, *buttons);
  if (const auto* timer = control.AsTicker()) state["interval"] = timer->Interval();
  if (const auto* grid = control.AsTable()) Add(state, *grid);
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
  Add(state, control);
  return state;
}

}  // namespace orlin
