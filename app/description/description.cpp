#include "app/description/description.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "OrlinCustomDialogs/host/keys.h"

namespace orlin {
namespace {

using shown::Control;
using shown::LabelRole;

std::string Spoken(const std::string& caption) {
  auto spoken = PlainCaption(caption);
  while (spoken.ends_with(' ') || spoken.ends_with(':')) spoken.pop_back();
  return spoken;
}

bool IsSingleLine(const Control& control) {
  return control.Kind() == ControlKind::TextBox && !control.AsTextField()->MultiLine();
}

std::string FrameOf(const Control& control) {
  for (const auto* frame = control.Parent(); frame != nullptr; frame = frame->Parent()) {
    if (auto caption = Spoken(frame->Caption()); !caption.empty()) return caption;
  }
  return {};
}

std::vector<std::string> AllRows(const shown::RowList& list) {
  std::vector<std::string> rows;
  for (int row = 0; row < list.ListCount(); ++row) rows.push_back(list.List(row));
  return rows;
}

told::Choice ChoiceOf(const Control& box) {
  // A text that was typed is in no row.
  const auto text = box.AsTextField()->Text();
  if (box.AsRowList()->ListIndex() < 0 && text.empty()) return {};
  return {{text}, false, {}};
}

told::Choice ChoiceIn(const shown::RowList& list, bool labelled) {
  told::Choice choice;
  choice.Many = list.Choice() != shown::Choice::One;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (choice.Many ? list.Selected(row) : row == list.ListIndex()) choice.Chosen.push_back(list.List(row));
  }
  if (!choice.Many && choice.Chosen.empty() && !labelled) choice.Rows = AllRows(list);
  return choice;
}

/// Reads the controls of a dialog in their order.
class Teller {
 public:
  explicit Teller(const shown::Dialog& dialog) : dialog_(dialog) {}

  std::vector<ToldControl> Tell() {
    FindJoined();
    FindCaptions();
    FindColours();
    for (const auto* control : dialog_.Controls()) {
      if (control->IsShown()) Tell(*control);
    }
    return std::move(told_);
  }

 private:
  /// A unit is told with what stands before it, and a box behind a unit or a separator with these.
  void FindJoined() {
    std::map<const Control*, const Control*> lastIn;  // a container
    for (const auto* control : dialog_.Controls()) {
      if (!control->IsShown()) continue;
      const auto* before = std::exchange(lastIn[control->Parent()], control);
      if (control->Role() == LabelRole::Unit) joined_[control] = Joins::WithBlank;
      if (control->Role() == LabelRole::Separator) joined_[control] = Joins::WithoutBlank;
      if (joined_.contains(before) && IsSingleLine(*control)) joined_[control] = joined_[before];
    }
  }

  /// Several labels may stand before a control: the last one names it, and the others are texts.
  void FindCaptions() {
    for (const auto* control : dialog_.Controls()) {
      if (!control->IsShown() || joined_.contains(control)) continue;
      const auto* named = control->Names();
      if (named != nullptr && !Spoken(control->Caption()).empty()) labels_[named] = control;
    }
  }

  void FindColours() {
    for (const auto* control : dialog_.Controls()) {
      if (control->Role() != LabelRole::ColourKey || !control->IsShown() || !control->BackColor()) continue;
      meanings_[*control->BackColor()] = Spoken(control->ToldBy()->Caption());
      explained_.insert(control->ToldBy());
    }
  }

  void Tell(const Control& control) {
    switch (control.Kind()) {
      case ControlKind::Label:
        return TellText(control);
      case ControlKind::TextBox:
        return Add(control, told::Text{control.AsTextField()->Text()});
      case ControlKind::ComboBox:
        return Add(control, ChoiceOf(control));
      case ControlKind::ListBox:
        return Add(control, ChoiceIn(*control.AsRowList(), labels_.contains(&control)));
      case ControlKind::CheckBox:
      case ControlKind::OptionButton:
        return Add(control, told::Mark{control.AsMark()->IsOn()});
      case ControlKind::Grid:
        return Add(control, TableOf(*control.AsTable()));
      default:
        return;
    }
  }

  void TellText(const Control& label) {
    const auto text = PlainCaption(label.Caption());
    if (joined_.contains(&label)) return Add(label, told::Text{text});
    const auto* named = label.Names();
    const auto caption = labels_.find(named);
    const bool isCaption =
        named != nullptr && (!named->IsShown() || (caption != labels_.end() && caption->second == &label));
    if (text.empty() || isCaption || explained_.contains(&label)) return;
    // "Code of zone 5", and further on "4000"
    if (const auto* heading = label.ToldBy(); heading != nullptr) {
      const auto told =
          std::find_if(told_.begin(), told_.end(), [&](auto& one) { return one.Name == heading->Name(); });
      if (told != told_.end()) {
        auto& shown = std::get<told::Text>(told->Shows).Shown;
        told->Caption = Spoken(shown);
        told->Name = label.Name();
        shown = text;
        return;
      }
    }
    Add(label, told::Text{text});
  }

  void Add(const Control& control, decltype(ToldControl::Shows) shows) {
    ToldControl one;
    one.Name = control.Name();
    one.Kind = control.Kind();
    const auto label = labels_.find(&control);
    if (control.AsMark() != nullptr) one.Caption = Spoken(control.Caption());
    if (one.Caption.empty() && label != labels_.end()) one.Caption = Spoken(label->second->Caption());
    one.Frame = FrameOf(control);
    one.Enabled = control.WithinReach();
    const auto joins = joined_.find(&control);
    if (joins != joined_.end() && !told_.empty()) one.Joins = joins->second;
    one.Shows = std::move(shows);
    told_.push_back(std::move(one));
  }

  [[nodiscard]] told::Table TableOf(const shown::Table& grid) const {
    told::Table table;
    table.FixedRows = grid.FixedRows();
    table.FixedCols = grid.FixedCols();
    for (int row = 0; row < grid.Rows(); ++row) {
      auto& cells = table.Cells.emplace_back();
      for (int col = 0; col < grid.Cols(); ++col) {
        const auto& cell = grid.CellAt(row, col);
        cells.push_back(cell.Text);
        const auto meaning = meanings_.find(cell.Color);
        if (meaning != meanings_.end()) table.Remarks.push_back({row, col, meaning->second});
      }
    }
    return table;
  }

  const shown::Dialog& dialog_;
  std::map<const Control*, Joins> joined_;
  std::map<const Control*, const Control*> labels_;
  std::map<std::int32_t, std::string> meanings_;  // of colours
  std::set<const Control*> explained_;            // labels that are among the meanings
  std::vector<ToldControl> told_;
};

}  // namespace

std::vector<ToldControl> Tell(const shown::Dialog& dialog) { return Teller(dialog).Tell(); }

}  // namespace orlin
