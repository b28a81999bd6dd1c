#include "frame/controls.h"

#include "frame/dialog.h"

namespace orlin {

Container::Container(Dialog& form) : form_(&form) {}

Container::Container(Frame& frame) : form_(&frame.Form()), frame_(&frame) {}

Label::Label(const Container& in, std::string_view name, const CaptionSource& caption, const ControlState& state,
             int index)
    : Logic(ControlKind::Label, in, name, state, index) {
  StartCaption(caption);
}

Frame::Frame(const Container& in, std::string_view name, const CaptionSource& caption, const ControlState& state)
    : Logic(ControlKind::Frame, in, name, state) {
  StartCaption(caption);
}

Button::Button(const Container& in, std::string_view name, const CaptionSource& caption, const ControlState& state)
    : Logic(ControlKind::Button, in, name, state) {
  StartCaption(caption);
}

CheckBox::CheckBox(const Container& in, std::string_view name, const CaptionSource& caption, const ControlState& state,
                   int index)
    : Logic(ControlKind::CheckBox, in, name, state, index) {
  StartCaption(caption);
}

OptionButton::OptionButton(const Container& in, std::string_view name, const CaptionSource& caption,
                           const OptionState& state, int index)
    : Logic(ControlKind::OptionButton, in, name, state.Common, index) {
  StartCaption(caption);
  StartValue(state.Value);
}

TextBox::TextBox(const Container& in, std::string_view name, const TextState& state)
    : Logic(ControlKind::TextBox, in, name, state.Common) {
  StartText(state.Text, state.MaxLength, state.Locked, state.MultiLine);
}

ComboBox::ComboBox(const Container& in, std::string_view name, const ComboState& state, int index)
    : RowLogic(ControlKind::ComboBox, in, name, state.Common, index) {
  StartEditField(state.HasEditField);
}

ListBox::ListBox(const Container& in, std::string_view name, const ListState& state)
    : RowLogic(ControlKind::ListBox, in, name, state.Common) {
  StartChoice(state.Choice);
}

UpDown::UpDown(const Container& in, std::string_view name, const UpDownState& state)
    : Logic(ControlKind::UpDown, in, name, state.Common) {
  StartLimits(state.Min, state.Max, state.Buddy, state.FollowsBuddy);
}

StatusBar::StatusBar(const Container& in, std::string_view name, const ControlState& state)
    : Logic(ControlKind::StatusBar, in, name, state) {}

Timer::Timer(const Container& in, std::string_view name, const TimerState& state)
    : Logic(ControlKind::Timer, in, name, state.Common) {
  StartInterval(state.Interval);
}

Grid::Grid(const Container& in, std::string_view name, const GridState& state)
    : Logic(ControlKind::Grid, in, name, state.Common) {
  StartSize(state.Rows, state.Cols, state.FixedRows, state.FixedCols);
}

}  // namespace orlin
