#include "OrlinCustomDialogs/host/form.h"

#include <algorithm>

namespace orlin {
namespace {

using shown::Control;
using shown::LabelRole;

bool IsMark(const Control& control) { return control.AsMark() != nullptr; }

bool IsTall(const Control& control) {
  if (control.Kind() == ControlKind::ListBox || control.Kind() == ControlKind::Grid) return true;
  return control.Kind() == ControlKind::TextBox && control.AsTextField()->MultiLine();
}

bool IsField(const Control& control) {
  return control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::ComboBox || IsTall(control);
}

bool WantsLabel(const Control& control) { return IsField(control) || (IsMark(control) && control.Caption().empty()); }

/// The first control behind a label that takes the focus, and has the label's index where it has one: a label stays
/// where it is, whichever of the controls behind it is visible.
const Control* FirstBehind(const std::vector<Control*>& all, std::vector<Control*>::const_iterator label) {
  const auto found = std::find_if(std::next(label), all.end(), [&](const auto* control) {
    return control->TakesFocus() && control->Parent() == (*label)->Parent() &&
           ((*label)->Index() < 0 || control->Index() == (*label)->Index());
  });
  return found == all.end() ? nullptr : *found;
}

/// The label of each field: the last one before it that stands for it.
std::map<const Control*, Control*> LabelsOf(const std::vector<Control*>& all) {
  std::map<const Control*, Control*> labels;
  for (auto at = all.begin(); at != all.end(); ++at) {
    if ((*at)->Kind() != ControlKind::Label || (*at)->Role() != LabelRole::Name) continue;
    const auto* named = FirstBehind(all, at);
    if (named != nullptr && WantsLabel(*named)) labels[named] = *at;
  }
  return labels;
}

/// Reads the controls of one container in order.
class Planner {
 public:
  Planner(std::vector<Control*> inside, std::map<const Control*, Control*>& labels)
      : inside_(std::move(inside)), labels_(labels) {}

  std::vector<FormRow> Plan() {
    for (at_ = 0; at_ < inside_.size(); ++at_) Place(*inside_[at_]);
    return std::move(rows_);
  }

 private:
  void Place(Control& control) {
    switch (control.Kind()) {
      case ControlKind::Timer:
      case ControlKind::StatusBar:
        return;
      case ControlKind::Label:
        return PlaceLabel(control);
      case ControlKind::UpDown:
        return Continue(control);
      case ControlKind::Frame:
        return Add({FormRow::Kind::Frame, nullptr, {{&control}}});
      case ControlKind::Button:
        if (!rows_.empty() && rows_.back().What == FormRow::Kind::Buttons) return Continue(control);
        return Add({FormRow::Kind::Buttons, nullptr, {{&control}}});
      case ControlKind::CheckBox:
      case ControlKind::OptionButton:
        return PlaceMark(control);
      default:
        return PlaceField(control);
    }
  }

  void Add(FormRow row) {
    rows_.push_back(std::move(row));
    joinsNext_ = false;
  }

  void Continue(Control& control) {
    if (rows_.empty() || rows_.back().Lines.empty()) {
      return Add({FormRow::Kind::Field, nullptr, {{&control}}});
    }
    auto& line = rows_.back().Lines.back();
    // Up-down buttons stand at the box, in front of its unit.
    const auto& last = *line.back();
    const bool beforeUnit = control.Kind() == ControlKind::UpDown && last.Role() == LabelRole::Unit;
    line.insert(beforeUnit ? std::prev(line.end()) : line.end(), &control);
  }

  [[nodiscard]] Control* LabelOf(const Control& control) const {
    const auto found = labels_.find(&control);
    return found == labels_.end() ? nullptr : found->second;
  }

  [[nodiscard]] bool FieldIsOpen() const {
    return !rows_.empty() && (rows_.back().What == FormRow::Kind::Field || rows_.back().What == FormRow::Kind::Tall);
  }

  void PlaceLabel(Control& label) {
    switch (label.Role()) {
      case LabelRole::Unit:
      case LabelRole::Separator:
        Continue(label);
        joinsNext_ = true;
        return;
      case LabelRole::Value:
        return PlaceBeside(label, FormRow::Kind::Pair);
      case LabelRole::ColourKey:
        return PlaceBeside(label, FormRow::Kind::Text);
      case LabelRole::Name: {
        const bool namesField =
            std::any_of(labels_.begin(), labels_.end(), [&](const auto& entry) { return entry.second == &label; });
        if (namesField) return;
        break;
      }
      case LabelRole::Text:
        break;
    }
    Add({FormRow::Kind::Text, &label, {}});
  }

  // A value or a colour stands with the text that tells what it is.
  void PlaceBeside(Control& label, FormRow::Kind kind) {
    const auto text =
        std::find_if(rows_.begin(), rows_.end(), [&](const auto& row) { return row.Label == label.ToldBy(); });
    if (text == rows_.end()) return Add({FormRow::Kind::Text, &label, {}});
    text->What = kind;
    text->Lines = {{&label}};
  }

  void PlaceMark(Control& mark) {
    if (auto* label = LabelOf(mark)) return Add({FormRow::Kind::Mark, label, {{&mark}}});
    // In the midst of the controls that share a label.
    const auto next = std::find_if(inside_.begin() + static_cast<std::ptrdiff_t>(at_) + 1, inside_.end(),
                                   [](const auto* control) { return !IsMark(*control); });
    const bool between = next != inside_.end() && IsField(**next) && LabelOf(**next) == nullptr;
    if (between && FieldIsOpen()) return rows_.back().Lines.push_back({&mark});
    Add({FormRow::Kind::Mark, nullptr, {{&mark}}});
  }

  void PlaceField(Control& field) {
    const auto kind = IsTall(field) ? FormRow::Kind::Tall : FormRow::Kind::Field;
    auto* label = LabelOf(field);
    if (label == nullptr && joinsNext_ && field.Kind() == ControlKind::TextBox && !IsTall(field)) {
      Continue(field);
    } else if (label == nullptr && FieldIsOpen()) {
      rows_.back().Lines.push_back({&field});
      if (rows_.back().Label != nullptr && field.SpokenName().empty()) labels_[&field] = rows_.back().Label;
      if (kind == FormRow::Kind::Tall) rows_.back().What = kind;
    } else {
      Add({kind, label, {{&field}}});
    }
    joinsNext_ = false;
  }

  std::vector<Control*> inside_;
  std::map<const Control*, Control*>& labels_;
  std::size_t at_ = 0;
  bool joinsNext_ = false;
  std::vector<FormRow> rows_;
};

/// Takes the buttons off the end of the dialog's own controls.
FormLine TakeButtons(std::vector<Control*>& inside) {
  const auto isEnd = [](const Control* control) {
    return control->Kind() == ControlKind::Button || control->Kind() == ControlKind::Timer ||
           control->Kind() == ControlKind::StatusBar;
  };
  const auto first = std::find_if_not(inside.rbegin(), inside.rend(), isEnd).base();
  FormLine buttons;
  std::copy_if(first, inside.end(), std::back_inserter(buttons),
               [](const auto* control) { return control->Kind() == ControlKind::Button; });
  inside.erase(first, inside.end());
  return buttons;
}

std::vector<Control*> ControlsIn(const shown::Dialog& dialog, const Control* container) {
  std::vector<Control*> inside;
  std::copy_if(dialog.Controls().begin(), dialog.Controls().end(), std::back_inserter(inside),
               [&](const auto* control) { return control->Parent() == container; });
  return inside;
}

}  // namespace

Form FormOf(const shown::Dialog& dialog) {
  Form form;
  form.Labels = LabelsOf(dialog.Controls());
  for (auto* control : dialog.Controls()) {
    if (control->Kind() == ControlKind::StatusBar) form.Status = control;
    if (control->Kind() == ControlKind::Frame) {
      form.Frames[control] = Planner(ControlsIn(dialog, control), form.Labels).Plan();
    }
  }
  auto inside = ControlsIn(dialog, nullptr);
  const auto buttons = TakeButtons(inside);
  form.Body = Planner(std::move(inside), form.Labels).Plan();

  // The last two end the dialog; what comes before them, and is neither default nor cancel button, does something else.
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    const bool ends =
        i + 2 >= buttons.size() || buttons[i] == dialog.DefaultButton() || buttons[i] == dialog.CancelButton();
    (ends ? form.RightButtons : form.LeftButtons).push_back(buttons[i]);
  }
  return form;
}

std::string Form::NameOf(const Control& control) const {
  if (!control.Caption().empty()) return control.TranslatedCaption();
  if (auto spoken = control.SpokenName(); !spoken.empty()) return spoken;
  if (const auto label = Labels.find(&control); label != Labels.end()) return label->second->TranslatedCaption();
  const auto* frame = control.Parent();
  return frame != nullptr && !frame->Caption().empty() ? frame->TranslatedCaption()
                                                       : control.Form().TranslatedCaption();
}

bool Form::Shows(const Control& control) const {
  if (control.Kind() != ControlKind::Label || !control.Visible()) return control.Visible();
  const auto frame = Frames.find(control.Parent());
  const auto& rows = frame == Frames.end() ? Body : frame->second;
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& known) { return known.Label == &control; });
  if (row == rows.end() || row->Lines.empty() || !row->Lines.front().front()->TakesFocus()) return true;
  return std::any_of(row->Lines.begin(), row->Lines.end(), [](const auto& line) {
    return std::any_of(line.begin(), line.end(),
                       [](const auto* part) { return part->TakesFocus() && part->Visible(); });
  });
}

}  // namespace orlin
