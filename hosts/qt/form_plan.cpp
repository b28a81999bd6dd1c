#include "qt/form_plan.h"

#include <algorithm>
#include <string>

#include "OrlinCustomDialogs/host/keys.h"

#include "forms/label_text.h"

namespace orlin {
namespace {

using shown::Control;

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
    if ((*at)->Kind() != ControlKind::Label) continue;
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

  FormPlan Plan() {
    FindUnits();
    for (at_ = 0; at_ < inside_.size(); ++at_) Place(*inside_[at_]);
    return std::move(plan_);
  }

 private:
  // A short text right behind a box or its buttons is its unit, or stands between two boxes: no label of the next one.
  // One that names nothing tells what the box means.
  void FindUnits() {
    for (std::size_t i = 1; i < inside_.size(); ++i) {
      auto* label = inside_[i];
      if (label->Kind() != ControlKind::Label || AccessKey(label->Caption()) != 0) continue;
      const auto kind = inside_[i - 1]->Kind();
      const bool behindBox = kind == ControlKind::UpDown ||
                             (kind == ControlKind::TextBox && !IsTall(*inside_[i - 1])) ||
                             std::find(units_.begin(), units_.end(), inside_[i - 1]) != units_.end();
      const bool isResult = kind == ControlKind::TextBox && label->Names() == nullptr;
      const bool isUnit = isResult || IsSeparator(*label) || IsUnit(*label);
      if (!behindBox || !isUnit) continue;
      units_.push_back(label);
      std::erase_if(labels_, [&](const auto& entry) { return entry.second == label; });
    }
  }

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
        if (!plan_.Rows.empty() && plan_.Rows.back().What == FormRow::Kind::Buttons) return Continue(control);
        return Add({FormRow::Kind::Buttons, nullptr, {{&control}}});
      case ControlKind::CheckBox:
      case ControlKind::OptionButton:
        return PlaceMark(control);
      default:
        return PlaceField(control);
    }
  }

  void Add(FormRow row) {
    plan_.Rows.push_back(std::move(row));
    joinsNext_ = false;
  }

  void Continue(Control& control) {
    if (plan_.Rows.empty() || plan_.Rows.back().Lines.empty()) {
      return Add({FormRow::Kind::Field, nullptr, {{&control}}});
    }
    auto& line = plan_.Rows.back().Lines.back();
    // Up-down buttons stand at the box, in front of its unit.
    const auto& last = *line.back();
    const bool beforeUnit =
        control.Kind() == ControlKind::UpDown && last.Kind() == ControlKind::Label && !IsSeparator(last);
    line.insert(beforeUnit ? std::prev(line.end()) : line.end(), &control);
  }

  [[nodiscard]] Control* LabelOf(const Control& control) const {
    const auto found = labels_.find(&control);
    return found == labels_.end() ? nullptr : found->second;
  }

  [[nodiscard]] bool FieldIsOpen() const {
    return !plan_.Rows.empty() &&
           (plan_.Rows.back().What == FormRow::Kind::Field || plan_.Rows.back().What == FormRow::Kind::Tall);
  }

  void PlaceLabel(Control& label) {
    if (std::find(units_.begin(), units_.end(), &label) != units_.end()) {
      Continue(label);
      joinsNext_ = true;
      return;
    }
    const bool namesField =
        std::any_of(labels_.begin(), labels_.end(), [&](const auto& entry) { return entry.second == &label; });
    if (namesField) return;
    if (label.BackColor() && label.Caption().empty()) return PlaceColourKey(label);
    // "Code of zone 5:" "4000"
    const bool isValue = IsCode(label);
    const auto heading = std::find_if(plan_.Rows.begin(), plan_.Rows.end(), [](const auto& row) {
      return row.What == FormRow::Kind::Text && row.Lines.empty();
    });
    if (isValue && heading != plan_.Rows.end()) {
      heading->What = FormRow::Kind::Pair;
      heading->Lines = {{&label}};
      return;
    }
    Add({FormRow::Kind::Text, &label, {}});
  }

  // The colours stand in front of the texts that explain them, in the same order.
  void PlaceColourKey(Control& colour) {
    auto row = plan_.Rows.end();
    while (row != plan_.Rows.begin() && std::prev(row)->What == FormRow::Kind::Text) --row;
    while (row != plan_.Rows.end() && !row->Lines.empty()) ++row;
    if (row == plan_.Rows.end()) return Add({FormRow::Kind::Text, &colour, {}});
    row->Lines = {{&colour}};
  }

  void PlaceMark(Control& mark) {
    if (auto* label = LabelOf(mark)) return Add({FormRow::Kind::Mark, label, {{&mark}}});
    // In the midst of the controls that share a label.
    const auto next = std::find_if(inside_.begin() + static_cast<std::ptrdiff_t>(at_) + 1, inside_.end(),
                                   [](const auto* control) { return !IsMark(*control); });
    const bool between = next != inside_.end() && IsField(**next) && LabelOf(**next) == nullptr;
    if (between && FieldIsOpen()) return plan_.Rows.back().Lines.push_back({&mark});
    Add({FormRow::Kind::Mark, nullptr, {{&mark}}});
  }

  void PlaceField(Control& field) {
    const auto kind = IsTall(field) ? FormRow::Kind::Tall : FormRow::Kind::Field;
    auto* label = LabelOf(field);
    if (label == nullptr && joinsNext_ && field.Kind() == ControlKind::TextBox && !IsTall(field)) {
      Continue(field);
    } else if (label == nullptr && FieldIsOpen()) {
      plan_.Rows.back().Lines.push_back({&field});
      if (plan_.Rows.back().Label != nullptr) labels_[&field] = plan_.Rows.back().Label;
      if (kind == FormRow::Kind::Tall) plan_.Rows.back().What = kind;
    } else {
      Add({kind, label, {{&field}}});
    }
    joinsNext_ = false;
  }

  std::vector<Control*> inside_;
  std::map<const Control*, Control*>& labels_;
  std::vector<const Control*> units_;
  std::size_t at_ = 0;
  bool joinsNext_ = false;
  FormPlan plan_;
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

DialogPlan PlanDialog(const shown::Dialog& dialog) {
  DialogPlan plan;
  plan.Labels = LabelsOf(dialog.Controls());
  for (auto* control : dialog.Controls()) {
    if (control->Kind() == ControlKind::StatusBar) plan.Status = control;
    if (control->Kind() == ControlKind::Frame) {
      plan.Frames[control] = Planner(ControlsIn(dialog, control), plan.Labels).Plan();
    }
  }
  auto inside = ControlsIn(dialog, nullptr);
  const auto buttons = TakeButtons(inside);
  plan.Body = Planner(std::move(inside), plan.Labels).Plan();

  // The last two end the dialog; what comes before them, and is neither default nor cancel button, does something else.
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    const bool ends =
        i + 2 >= buttons.size() || buttons[i] == dialog.DefaultButton() || buttons[i] == dialog.CancelButton();
    (ends ? plan.RightButtons : plan.LeftButtons).push_back(buttons[i]);
  }
  return plan;
}

}  // namespace orlin
