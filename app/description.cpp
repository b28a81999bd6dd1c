#include "app/description.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "OrlinCustomDialogs/keys.h"

#include "forms/label_text.h"

namespace orlin {
namespace {

using shown::Control;
using shown::Label;

std::string Spoken(const std::string& caption) {
  auto spoken = PlainCaption(caption);
  while (spoken.ends_with(' ') || spoken.ends_with(':')) spoken.pop_back();
  return spoken;
}

bool IsSingleLine(const Control& control) {
  const auto* box = dynamic_cast<const shown::TextBox*>(&control);
  return box != nullptr && !box->MultiLine();
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

told::Choice Choice(const shown::ComboBox& box) {
  // A text that was typed is in no row.
  if (box.ListIndex() < 0 && box.Text().empty()) return {};
  return {{box.Text()}, false, {}};
}

told::Choice Choice(const shown::ListBox& list, bool labelled) {
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
    FindUnits();
    FindCaptions();
    FindColours();
    for (const auto* control : dialog_.Controls()) {
      if (control->IsShown()) Tell(*control);
    }
    return std::move(told_);
  }

 private:
  /// A short text behind a box, or between two, belongs to the box before it and is no label of the next one.
  void FindUnits() {
    std::map<const Control*, const Control*> lastIn;  // a container
    for (const auto* control : dialog_.Controls()) {
      if (!control->IsShown()) continue;
      const auto* before = std::exchange(lastIn[control->Parent()], control);
      const auto* label = dynamic_cast<const Label*>(control);
      if (before == nullptr) continue;
      if (label != nullptr && BelongsTo(*label, *before)) {
        joined_[label] = IsSeparator(*label) ? Joins::WithoutBlank : Joins::WithBlank;
      } else if (joined_.contains(before) && IsSingleLine(*control)) {
        joined_[control] = joined_[before];
      }
    }
  }

  [[nodiscard]] bool BelongsTo(const Label& label, const Control& before) const {
    if (AccessKey(label.Caption()) != 0) return false;
    if (before.Kind() != ControlKind::UpDown && !IsSingleLine(before) && !joined_.contains(&before)) return false;
    const bool tellsWhatTheBoxMeans = IsSingleLine(before) && label.Names() == nullptr;
    return tellsWhatTheBoxMeans || IsSeparator(label) || IsUnit(label);
  }

  /// Several labels may stand before a control: the last one names it, and the others are texts.
  void FindCaptions() {
    for (const auto* control : dialog_.Controls()) {
      const auto* label = dynamic_cast<const Label*>(control);
      if (label == nullptr || !label->IsShown() || joined_.contains(label)) continue;
      const auto* named = label->Names();
      if (named != nullptr && !Spoken(label->Caption()).empty()) labels_[named] = label;
    }
  }

  /// Labels of a colour stand behind the texts that tell what the colours mean, in the same order.
  void FindColours() {
    std::vector<const Label*> texts;
    std::size_t next = 0;
    for (const auto* control : dialog_.Controls()) {
      const auto* label = dynamic_cast<const Label*>(control);
      if (label == nullptr || !label->IsShown()) {
        texts.clear();
        next = 0;
      } else if (!label->Caption().empty()) {
        texts.push_back(label);
      } else if (label->BackColor() && next < texts.size()) {
        meanings_[*label->BackColor()] = Spoken(texts[next]->Caption());
        explained_.insert(texts[next++]);
      }
    }
  }

  void Tell(const Control& control) {
    switch (control.Kind()) {
      case ControlKind::Label:
        return TellText(dynamic_cast<const Label&>(control));
      case ControlKind::TextBox:
        return Add(control, told::Text{dynamic_cast<const shown::TextBox&>(control).Text()});
      case ControlKind::ComboBox:
        return Add(control, Choice(dynamic_cast<const shown::ComboBox&>(control)));
      case ControlKind::ListBox:
        return Add(control, Choice(dynamic_cast<const shown::ListBox&>(control), labels_.contains(&control)));
      case ControlKind::CheckBox:
        return Add(control, told::Mark{dynamic_cast<const shown::CheckBox&>(control).Value() != 0});
      case ControlKind::OptionButton:
        return Add(control, told::Mark{dynamic_cast<const shown::OptionButton&>(control).Value()});
      case ControlKind::Grid:
        return Add(control, TableOf(dynamic_cast<const shown::Grid&>(control)));
      default:
        return;
    }
  }

  void TellText(const Label& label) {
    const auto text = PlainCaption(label.Caption());
    if (joined_.contains(&label)) return Add(label, told::Text{text});
    const auto* named = label.Names();
    const auto caption = labels_.find(named);
    const bool isCaption =
        named != nullptr && (!named->IsShown() || (caption != labels_.end() && caption->second == &label));
    if (text.empty() || isCaption || explained_.contains(&label)) return;
    // "Code of zone 5", and further on "4000"
    if (IsCode(label)) {
      for (auto& heading : told_) {
        if (heading.Kind != ControlKind::Label || !heading.Caption.empty() || heading.Joins != Joins::No) continue;
        auto& shown = std::get<told::Text>(heading.Shows).Shown;
        heading.Caption = Spoken(shown);
        heading.Name = label.Name();
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
    if (IsMark(control)) one.Caption = Spoken(control.Caption());
    if (one.Caption.empty() && label != labels_.end()) one.Caption = Spoken(label->second->Caption());
    one.Frame = FrameOf(control);
    one.Enabled = control.WithinReach();
    const auto joins = joined_.find(&control);
    if (joins != joined_.end() && !told_.empty()) one.Joins = joins->second;
    one.Shows = std::move(shows);
    told_.push_back(std::move(one));
  }

  [[nodiscard]] told::Table TableOf(const shown::Grid& grid) const {
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
  std::map<const Control*, const Label*> labels_;
  std::map<std::int32_t, std::string> meanings_;  // of colours
  std::set<const Control*> explained_;            // labels that are among the meanings
  std::vector<ToldControl> told_;
};

}  // namespace

std::vector<ToldControl> Tell(const shown::Dialog& dialog) { return Teller(dialog).Tell(); }

}  // namespace orlin
