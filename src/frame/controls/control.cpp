#include "frame/controls/control.h"

#include "OrlinCustomDialogs/host/texts.h"

#include "frame/controls/frame.h"
#include "frame/dialog/dialog.h"
#include "frame/services/modGeneral.h"
#include "frame/values/skip_failure.h"

namespace orlin {
namespace {

std::string NameInArray(std::string_view name, int index) {
  std::string full(name);
  if (index >= 0) full.append("(").append(std::to_string(index)).append(")");
  return full;
}

}  // namespace

std::string_view KindName(ControlKind kind) noexcept {
  switch (kind) {
    case ControlKind::Label:
      return "Label";
    case ControlKind::Frame:
      return "Frame";
    case ControlKind::Button:
      return "Button";
    case ControlKind::CheckBox:
      return "CheckBox";
    case ControlKind::OptionButton:
      return "OptionButton";
    case ControlKind::TextBox:
      return "TextBox";
    case ControlKind::ComboBox:
      return "ComboBox";
    case ControlKind::ListBox:
      return "ListBox";
    case ControlKind::UpDown:
      return "UpDown";
    case ControlKind::StatusBar:
      return "StatusBar";
    case ControlKind::Timer:
      return "Timer";
    case ControlKind::Grid:
      return "Grid";
  }
  return "";
}

Container::Container(Frame& frame) : form_(&frame.Owner()), frame_(&frame) {}

Control::Control(ControlKind kind, const Container& in, std::string_view name, const CaptionSource& caption,
                 const ControlState& state, int index)
    : kind_(kind),
      form_(&in.Form()),
      parent_(in.Outer()),
      name_(NameInArray(name, index)),
      index_(index),
      visible_(state.Visible),
      enabled_(state.Enabled),
      left_(state.Left),
      top_(state.Top),
      width_(state.Width),
      caption_(caption.Text),
      captionNumber_(caption.Number),
      spokenNumber_(state.Spoken),
      fixedCaption_{caption.Text, caption.Translation},
      fixed_(state.Fixed),
      tag_(state.Tag) {
  form_->Take(*this);
}

shown::Dialog& Control::Form() const noexcept { return *form_; }

bool Control::IsShown() const noexcept { return visible_ && (parent_ == nullptr || parent_->IsShown()); }

bool Control::WithinReach() const noexcept {
  return visible_ && enabled_ && (parent_ == nullptr || parent_->WithinReach());
}

bool Control::TakesFocus() const noexcept {
  switch (kind_) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::UpDown:
    case ControlKind::StatusBar:
    case ControlKind::Timer:
      return false;
    default:
      return true;
  }
}

bool Control::HasFocus() const noexcept { return form_->FocusedControl() == this; }

Refusal Control::OutOfReach() const {
  if (!form_->IsShown()) return "the dialog is not shown";
  if (!IsShown()) return name_ + " is hidden";
  if (!WithinReach()) return name_ + " is disabled";
  return {};
}

Refusal Control::Approach() {
  if (auto refusal = OutOfReach()) return refusal;
  if (TakesFocus()) form_->MoveFocus(this, By::Operator);
  return OutOfReach();
}

Refusal Control::Focus() {
  if (!TakesFocus()) return name_ + " does not take the focus";
  return Approach();
}

std::string Control::Objection() const {
  std::string objection;
  if (FindObjection) SkipFailure([&] { objection = FindObjection(); });
  return objection;
}

Refusal Control::Press() { return name_ + " is a " + std::string(KindName(kind_)) + ", which cannot be pressed"; }

void Control::LoadTexts() {
  if (captionNumber_ != 0) SkipFailure([this] { SetCaption(GetLocalText(captionNumber_)); });
  if (spokenNumber_ != 0) SkipFailure([this] { spokenName_ = GetLocalText(spokenNumber_); });
}

std::string Control::Translated(const std::string& text) const {
  if (fixedCaption_.Translation != 0 && text == fixedCaption_.Text) {
    return CatalogueText(fixedCaption_.Translation, text);
  }
  for (const auto& fixed : fixed_) {
    if (!text.ends_with(fixed.Text)) continue;
    const auto before = text.substr(0, text.size() - fixed.Text.size());
    if (before.empty() || before.ends_with(' ')) return before + CatalogueText(fixed.Translation, fixed.Text);
  }
  return text;
}

void Control::Touch() const { form_->Touched(); }

void Control::Guard(std::string_view event, const std::function<void()>& handler) const {
  form_->Guard(name_, event, handler);
}

void Control::TakeKey(const Key&) {}

void Control::Leave(By) {}

void Control::SetVisible(bool visible) {
  Touch();
  visible_ = visible;
  Changed();
}

void Control::SetEnabled(bool enabled) {
  Touch();
  enabled_ = enabled;
  if (enabled) denied_ = false;
  Changed();
}

void Control::SetAllowed(bool allowed) {
  SetEnabled(allowed);
  denied_ = !allowed;
}

void Control::SetLeft(int left) {
  Touch();
  left_ = left;
  Changed();
}

void Control::SetTop(int top) {
  Touch();
  top_ = top;
  Changed();
}

void Control::SetWidth(int width) {
  Touch();
  width_ = width;
  Changed();
}

void Control::SetCaption(std::string caption) {
  Touch();
  caption_ = std::move(caption);
  Changed();
}

void Control::SetBackColor(std::optional<std::int32_t> color) {
  Touch();
  backColor_ = color;
  Changed();
}

void Control::SetTabStop(bool stops) {
  Touch();
  tabStop_ = stops;
  Changed();
}

void Control::SetFocus() {
  Touch();
  form_->MoveFocus(this, By::Code);
}

}  // namespace orlin
