#include "app/description/description.h"

#include <algorithm>
#include <map>
#include <utility>

#include "OrlinCustomDialogs/host/form.h"
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

/// Reads the form of a dialog row by row.
class Teller {
 public:
  Teller(const shown::Dialog& dialog, Wording wording) : form_(FormOf(dialog)), wording_(wording) {}

  std::vector<ToldControl> Tell() {
    FindColours(form_.Body);
    for (const auto& [frame, rows] : form_.Frames) FindColours(rows);
    Tell(form_.Body);
    return std::move(told_);
  }

 private:
  [[nodiscard]] std::string Words(const Control& control, const std::string& text) const {
    return wording_ == Wording::Translated ? control.Translated(text) : text;
  }
  [[nodiscard]] std::string CaptionOf(const Control& control) const { return Words(control, control.Caption()); }

  void FindColours(const std::vector<FormRow>& rows) {
    for (const auto& row : rows) {
      const auto* key = row.What == FormRow::Kind::Text && !row.Lines.empty() ? row.Lines.front().front() : nullptr;
      if (key != nullptr && key->IsShown() && key->BackColor()) meanings_[*key->BackColor()] = row.Label;
    }
  }

  void Tell(const std::vector<FormRow>& rows) {
    for (const auto& row : rows) {
      switch (row.What) {
        case FormRow::Kind::Buttons:
          break;
        case FormRow::Kind::Frame:
          Tell(form_.Frames.at(row.Lines.front().front()));
          break;
        case FormRow::Kind::Text:
          TellText(*row.Label);
          break;
        case FormRow::Kind::Pair:
          TellPair(*row.Label, *row.Lines.front().front());
          break;
        default:
          for (const auto& line : row.Lines) TellLine(line);
      }
    }
  }

  void TellText(const Control& label) {
    const auto isMeaning = [&](const auto& entry) { return entry.second == &label; };
    if (std::any_of(meanings_.begin(), meanings_.end(), isMeaning)) return;
    if (label.IsShown() && !label.Caption().empty()) Add(label, told::Text{PlainCaption(CaptionOf(label))});
  }

  /// "Code of zone 5", and further on "4000"
  void TellPair(const Control& heading, const Control& value) {
    const bool told = value.IsShown() && !value.Caption().empty();
    TellText(told ? value : heading);
    if (told && heading.IsShown()) told_.back().Caption = Spoken(CaptionOf(heading));
  }

  /// A unit is told with what stands before it, and a box behind a unit or a separator with these.
  void TellLine(const FormLine& line) {
    auto joins = Joins::No;
    for (const auto* control : line) {
      if (!control->IsShown() || control->Kind() == ControlKind::UpDown) continue;
      if (control->Role() == LabelRole::Unit) joins = Joins::WithBlank;
      if (control->Role() == LabelRole::Separator) joins = Joins::WithoutBlank;
      const auto before = told_.size();
      TellControl(*control);
      if (told_.size() > before && before > 0) told_.back().Joins = joins;
    }
  }

  void TellControl(const Control& control) {
    switch (control.Kind()) {
      case ControlKind::Label:
        return Add(control, told::Text{PlainCaption(CaptionOf(control))});
      case ControlKind::TextBox:
        return Add(control, told::Text{Words(control, control.AsTextField()->Text())});
      case ControlKind::ComboBox:
        return Add(control, ChoiceOf(control));
      case ControlKind::ListBox:
        return Add(control, ChoiceIn(control));
      case ControlKind::CheckBox:
      case ControlKind::OptionButton:
        return Add(control, told::Mark{control.AsMark()->IsOn()});
      case ControlKind::Grid:
        return Add(control, TableOf(control));
      default:
        return;
    }
  }

  [[nodiscard]] std::string LabelOf(const Control& control) const {
    const auto label = form_.Labels.find(&control);
    return label != form_.Labels.end() && label->second->IsShown() ? Spoken(CaptionOf(*label->second)) : std::string();
  }

  void Add(const Control& control, decltype(ToldControl::Shows) shows) {
    ToldControl one;
    one.Name = control.Name();
    one.Kind = control.Kind();
    if (control.AsMark() != nullptr) one.Caption = Spoken(CaptionOf(control));
    if (one.Caption.empty()) one.Caption = LabelOf(control);
    one.Frame = FrameOf(control);
    one.Enabled = control.WithinReach();
    one.Shows = std::move(shows);
    told_.push_back(std::move(one));
  }

  [[nodiscard]] std::string FrameOf(const Control& control) const {
    for (const auto* frame = control.Parent(); frame != nullptr; frame = frame->Parent()) {
      if (auto caption = Spoken(CaptionOf(*frame)); !caption.empty()) return caption;
    }
    return {};
  }

  [[nodiscard]] told::Choice ChoiceOf(const Control& box) const {
    // A text that was typed is in no row.
    const auto text = box.AsTextField()->Text();
    if (box.AsRowList()->ListIndex() < 0 && text.empty()) return {};
    return {{Words(box, text)}, false, {}};
  }

  [[nodiscard]] told::Choice ChoiceIn(const Control& control) const {
    const auto& list = *control.AsRowList();
    told::Choice choice;
    choice.Many = list.Choice() != shown::Choice::One;
    std::vector<std::string> rows;
    for (int row = 0; row < list.ListCount(); ++row) {
      rows.push_back(Words(control, list.List(row)));
      if (choice.Many ? list.Selected(row) : row == list.ListIndex()) choice.Chosen.push_back(rows.back());
    }
    if (!choice.Many && choice.Chosen.empty() && LabelOf(control).empty()) choice.Rows = std::move(rows);
    return choice;
  }

  [[nodiscard]] told::Table TableOf(const Control& control) const {
    const auto& grid = *control.AsTable();
    told::Table table;
    table.FixedRows = grid.FixedRows();
    table.FixedCols = grid.FixedCols();
    for (int row = 0; row < grid.Rows(); ++row) {
      auto& cells = table.Cells.emplace_back();
      for (int col = 0; col < grid.Cols(); ++col) {
        const auto& cell = grid.CellAt(row, col);
        cells.push_back(Words(control, cell.Text));
        const auto meaning = meanings_.find(cell.Color);
        if (meaning != meanings_.end()) table.Remarks.push_back({row, col, Spoken(CaptionOf(*meaning->second))});
      }
    }
    return table;
  }

  Form form_;
  Wording wording_;
  std::map<std::int32_t, const Control*> meanings_;  // of colours: the labels that tell them
  std::vector<ToldControl> told_;
};

}  // namespace

std::vector<ToldControl> Tell(const shown::Dialog& dialog, Wording wording) { return Teller(dialog, wording).Tell(); }

}  // namespace orlin
