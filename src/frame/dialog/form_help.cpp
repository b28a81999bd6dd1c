#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "OrlinCustomDialogs/host/form.h"
#include "OrlinCustomDialogs/host/keys.h"

#include "frame/services/modGeneral.h"
#include "frame/services/services.h"
#include "frame/values/skip_failure.h"

// What the operator is told about a control. A catalogue that lacks the texts, or is not there, is no fault here.

namespace orlin {
namespace {

using shown::Control;
using shown::LabelRole;

using Fillings = std::initializer_list<std::pair<const char*, std::string>>;

/// The numbers of the texts.
namespace help {
constexpr std::int16_t Meaning = 20200;
constexpr std::int16_t Number = 20201;
constexpr std::int16_t NumberWithUnit = 20215;
constexpr std::int16_t OneCharacter = 20202;
constexpr std::int16_t Characters = 20203;
constexpr std::int16_t Text = 20204;
constexpr std::int16_t Lines = 20205;
constexpr std::int16_t NoRows = 20206;
constexpr std::int16_t OneRow = 20207;
constexpr std::int16_t AnyRows = 20208;
constexpr std::int16_t RowOrText = 20209;
constexpr std::int16_t OnOrOff = 20210;
constexpr std::int16_t OneOption = 20211;
constexpr std::int16_t Cells = 20212;
constexpr std::int16_t DefaultButton = 20213;
constexpr std::int16_t CancelButton = 20214;
constexpr std::int16_t Locked = 20220;
constexpr std::int16_t Unavailable = 20221;
constexpr std::int16_t Denied = 20222;
}  // namespace help

/// A line of sentences.
class Line {
 public:
  void Add(std::int16_t number, Fillings fillings = {}) {
    std::string text;
    SkipFailure([&] {
      auto catalogue = Services().Catalogue;
      // A dialog without texts of the catalogue leaves it as it found it.
      if (catalogue == nullptr) catalogue = Create<LocalTextComponent>("LocalText.clsLocalText");
      text = catalogue->GetLocalTextBASE(number);
    });
    for (const auto& [name, filling] : fillings) text = ReplaceVariable(text, name, filling);
    Add(text);
  }
  void Add(std::string_view sentence) {
    if (!sentence.empty()) text_.append(text_.empty() ? "" : " ").append(sentence);
  }
  [[nodiscard]] std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

const Control* LabelWithUnit(const std::vector<FormRow>& rows, const Control& field) {
  for (const auto& row : rows) {
    for (const auto& line : row.Lines) {
      const auto at = std::find(line.begin(), line.end(), &field);
      const auto unit =
          std::find_if(at, line.end(), [](const auto* control) { return control->Role() == LabelRole::Unit; });
      if (unit != line.end() && (*unit)->IsShown()) return *unit;
    }
  }
  return nullptr;
}

/// What stands behind a field.
const Control* UnitOf(const Form& form, const Control& field) {
  const auto frame = form.Frames.find(field.Parent());
  return LabelWithUnit(frame == form.Frames.end() ? form.Body : frame->second, field);
}

/// The up-down that steps the number in a box.
const shown::Stepper* StepperOf(const Control& box) {
  for (auto* control : box.Form().Controls()) {
    const auto* stepper = control->AsStepper();
    if (stepper != nullptr && stepper->Buddy() == &box && control->IsShown()) return stepper;
  }
  return nullptr;
}

void TellLength(Line& line, const shown::TextField& text) {
  if (text.MaxLength() == 1) return line.Add(help::OneCharacter);
  if (text.MaxLength() > 1) line.Add(help::Characters, {{"COUNT", std::to_string(text.MaxLength())}});
}

void TellText(Line& line, const Form& form, const Control& box) {
  const auto& text = *box.AsTextField();
  const auto* unit = UnitOf(form, box);
  if (const auto* stepper = StepperOf(box)) {
    const bool hasUnit = unit != nullptr && !unit->Caption().empty();
    line.Add(hasUnit ? help::NumberWithUnit : help::Number,
             {{"MIN", std::to_string(stepper->Min())},
              {"MAX", std::to_string(stepper->Max())},
              {"UNIT", hasUnit ? PlainCaption(unit->TranslatedCaption()) : ""}});
  } else if (text.MultiLine()) {
    line.Add(help::Lines);
  } else if (text.MaxLength() == 0) {
    line.Add(help::Text);
  }
  TellLength(line, text);
  if (unit != nullptr && !unit->SpokenName().empty()) line.Add(help::Meaning, {{"UNIT", unit->SpokenName()}});
}

void TellRows(Line& line, const Control& list) {
  const auto& rows = *list.AsRowList();
  const auto* text = list.AsTextField();
  const auto count = std::to_string(rows.ListCount());
  if (rows.ListCount() == 0) {
    line.Add(help::NoRows);
  } else if (rows.Choice() != shown::Choice::One) {
    int chosen = 0;
    for (int row = 0; row < rows.ListCount(); ++row) chosen += rows.Selected(row) ? 1 : 0;
    line.Add(help::AnyRows, {{"COUNT", count}, {"CHOSEN", std::to_string(chosen)}});
  } else if (text != nullptr && text->HasEditField()) {
    line.Add(help::RowOrText, {{"COUNT", count}});
  } else {
    line.Add(help::OneRow, {{"COUNT", count}});
  }
  if (text != nullptr && text->HasEditField()) TellLength(line, *text);
}

void TellOption(Line& line, const Control& option) {
  const auto& all = option.Form().Controls();
  const auto count = std::count_if(all.begin(), all.end(), [&](const auto* other) {
    return other->Kind() == ControlKind::OptionButton && other->Parent() == option.Parent() && other->Visible();
  });
  line.Add(help::OneOption, {{"COUNT", std::to_string(count)}});
}

void TellUse(Line& line, const Form& form, const Control& control) {
  switch (control.Kind()) {
    case ControlKind::TextBox:
      return TellText(line, form, control);
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
      return TellRows(line, control);
    case ControlKind::CheckBox:
      return line.Add(help::OnOrOff);
    case ControlKind::OptionButton:
      return TellOption(line, control);
    case ControlKind::UpDown:
      if (const auto* box = control.AsStepper()->Buddy()) TellText(line, form, *box);
      return;
    case ControlKind::Grid: {
      const auto& grid = *control.AsTable();
      return line.Add(help::Cells, {{"COUNT", std::to_string(grid.Rows() - grid.FixedRows())}});
    }
    case ControlKind::Button:
      if (control.Form().DefaultButton() == &control) return line.Add(help::DefaultButton);
      if (control.Form().CancelButton() == &control) return line.Add(help::CancelButton);
      return;
    default:
      return;
  }
}

void TellWhyNot(Line& line, const Control& control) {
  if (!control.WithinReach()) {
    bool denied = false;
    for (const auto* at = &control; at != nullptr; at = at->Parent()) denied = denied || at->DeniedByRights();
    return line.Add(denied ? help::Denied : help::Unavailable);
  }
  const auto* text = control.AsTextField();
  if (text != nullptr && text->HasEditField() && text->Locked()) line.Add(help::Locked);
}

}  // namespace

std::string Form::HelpFor(const Control& control) const {
  Line line;
  TellUse(line, *this, control);
  TellWhyNot(line, control);
  return line.Take();
}

}  // namespace orlin
