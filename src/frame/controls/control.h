#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "OrlinCustomDialogs/host/controls.h"

#include "frame/controls/event.h"

namespace orlin {

class Control;
class Dialog;
class Frame;

/// A text that stays as it is in the logic of a dialog, and the number of what people read in its place.
struct FixedText {
  std::string_view Text;
  std::int16_t Translation;
};

/// Where a caption comes from: a number of the catalogue, loaded with the dialog, or a fixed text, with the number of
/// its translation where it is in words.
struct CaptionSource {
  CaptionSource() = default;
  CaptionSource(std::int16_t number) : Number(number) {}
  CaptionSource(int number) : Number(static_cast<std::int16_t>(number)) {}
  CaptionSource(const char* text, std::int16_t translation = 0) : Text(text), Translation(translation) {}

  std::int16_t Number = 0;
  std::string_view Text;
  std::int16_t Translation = 0;
};

/// What a control is declared in: the dialog, or a frame of it.
class Container {
 public:
  Container(Dialog& form) : form_(&form) {}
  Container(Frame& frame);

  [[nodiscard]] Dialog& Form() const noexcept { return *form_; }
  [[nodiscard]] const Control* Outer() const noexcept { return frame_; }

 private:
  Dialog* form_;
  const Control* frame_ = nullptr;
};

/// The state in which a control of any kind is made, as far as it is not the usual one.
struct ControlState {
  bool Visible = true;
  bool Enabled = true;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  const char* Tag = "";
  std::int16_t Spoken = 0;  ///< the number of the name for people who do not see the control; 0 for none
  /// What the dialog writes in English into rows, cells or box: as the whole text, or behind a value and a blank.
  std::span<const FixedText> Fixed = {};
};

/// What all kinds of controls have in common: their state, and the logic's side of it. Setting anything loads the
/// dialog where that has not happened yet.
class Control : public shown::Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] ControlKind Kind() const noexcept final { return kind_; }
  [[nodiscard]] const std::string& Name() const noexcept final { return name_; }
  [[nodiscard]] int Index() const noexcept final { return index_; }
  [[nodiscard]] shown::Dialog& Form() const noexcept final;
  [[nodiscard]] const shown::Control* Parent() const noexcept final { return parent_; }
  [[nodiscard]] bool Visible() const noexcept final { return visible_; }
  [[nodiscard]] bool Enabled() const noexcept final { return enabled_; }
  [[nodiscard]] bool IsShown() const noexcept final;
  [[nodiscard]] bool WithinReach() const noexcept final;
  [[nodiscard]] int Left() const noexcept final { return left_; }
  [[nodiscard]] int Top() const noexcept final { return top_; }
  [[nodiscard]] int Width() const noexcept final { return width_; }
  [[nodiscard]] const std::string& Caption() const noexcept final { return caption_; }
  [[nodiscard]] std::optional<std::int32_t> BackColor() const noexcept final { return backColor_; }
  [[nodiscard]] bool TakesFocus() const noexcept final;
  [[nodiscard]] bool HasFocus() const noexcept final;
  [[nodiscard]] std::uint32_t Revision() const noexcept final { return revision_; }
  [[nodiscard]] shown::LabelRole Role() const noexcept override { return shown::LabelRole::Name; }
  [[nodiscard]] shown::Control* Names() const override { return nullptr; }
  [[nodiscard]] shown::Control* ToldBy() const noexcept override { return nullptr; }
  [[nodiscard]] std::string SpokenName() const override { return spokenName_; }
  [[nodiscard]] std::string Objection() const override;
  [[nodiscard]] bool DeniedByRights() const noexcept final { return denied_ && !enabled_; }
  [[nodiscard]] std::string Translated(const std::string& text) const override;
  Refusal Focus() final;
  Refusal Press() override;

  void SetVisible(bool visible);
  void SetEnabled(bool enabled);
  /// Enables the control, or disables it for lack of a right, which a host can tell the operator.
  void SetAllowed(bool allowed);
  void SetLeft(int left);
  void SetTop(int top);
  void SetWidth(int width);
  void SetCaption(std::string caption);
  void SetBackColor(std::optional<std::int32_t> color);
  /// Whether Tab may stop here. The mouse and the access key reach the control all the same.
  void SetTabStop(bool stops);
  [[nodiscard]] const std::string& Tag() const noexcept { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  void SetFocus();

  Event<> GotFocus;
  Event<> LostFocus;
  /// What `Objection` tells. It runs only where a host asks, so it changes nothing.
  std::function<std::string()> FindObjection;

 protected:
  Control(ControlKind kind, const Container& in, std::string_view name, const CaptionSource& caption,
          const ControlState& state, int index = -1);
  ~Control() = default;

  // What the kinds build on.
  friend class Dialog;
  friend class RowList;
  friend class TextField;

  [[nodiscard]] Dialog& Owner() const noexcept { return *form_; }
  void Touch() const;
  /// Something that a host presents has changed.
  void Changed() noexcept { ++revision_; }
  /// Why the operator cannot use the control, if so.
  [[nodiscard]] Refusal OutOfReach() const;
  /// `Focus` for the actions that begin with it: the control is within reach, has the focus where its kind takes it,
  /// and the dialog is still shown.
  [[nodiscard]] Refusal Approach();
  template <class... Arguments, class... Actual>
  void Raise(By by, const Event<Arguments...>& event, std::string_view name, Actual&&... arguments) const {
    if (!event) return;
    if (by == By::Code) return event(std::forward<Actual>(arguments)...);
    Guard(name, [&] { event(std::forward<Actual>(arguments)...); });
  }

  /// A key arrives while the control has the focus.
  virtual void TakeKey(const Key& key);
  /// Whether Enter and Escape belong to the control instead of the dialog's buttons.
  [[nodiscard]] virtual bool KeepsEnter() const { return false; }
  [[nodiscard]] virtual bool KeepsEscape() const { return false; }
  /// The focus is about to go elsewhere.
  virtual void Leave(By by);
  /// Tab stops here, as far as the control itself decides that.
  [[nodiscard]] virtual bool IsTabStop() const { return tabStop_; }
  /// Tab has moved the focus here.
  virtual void EnterByTab() {}

 private:
  /// Takes the texts of the catalogue that are declared by number. Failures are skipped.
  void LoadTexts();
  /// Runs a handler that the operator caused.
  void Guard(std::string_view event, const std::function<void()>& handler) const;

  ControlKind kind_;
  Dialog* form_;
  const Control* parent_;
  std::string name_;
  int index_;
  bool visible_;
  bool enabled_;
  bool denied_ = false;  // counts while the control is disabled
  int left_;
  int top_;
  int width_;
  std::string caption_;
  std::int16_t captionNumber_;  // in the catalogue; 0 for a caption that is not loaded
  std::int16_t spokenNumber_;   // likewise
  std::string spokenName_;
  FixedText fixedCaption_;
  std::span<const FixedText> fixed_;
  std::optional<std::int32_t> backColor_;
  bool tabStop_ = true;
  std::string tag_;
  std::uint32_t revision_ = 0;
};

/// Any control of a dialog, in tables that name controls of several kinds.
class AnyControl {
 public:
  AnyControl(Control& control) : control_(&control) {}
  void SetVisible(bool visible) const { control_->SetVisible(visible); }
  void SetEnabled(bool enabled) const { control_->SetEnabled(enabled); }
  void SetAllowed(bool allowed) const { control_->SetAllowed(allowed); }

 private:
  Control* control_;
};

}  // namespace orlin
