#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"

#include "frame/controls/all_controls.h"
#include "frame/dialog/rights.h"

namespace orlin {

/// What a dialog does at the edges of its life: its row of the table of all dialogs.
struct Life {
  bool InitialisesServices = false;  ///< when it is created
  bool ReleasesServices = false;     ///< at the end of `Display`
  bool Unloads = false;              ///< at the end of `Display`
  bool HandlesFailures = false;      ///< else its `Display` carries on with the next statement
};

/// The row of most dialogs.
inline constexpr Life kUsualLife{
    .InitialisesServices = true, .ReleasesServices = true, .Unloads = true, .HandlesFailures = true};

/// How the modal show of a dialog ended.
enum class ExitCode : std::int16_t { None = 0, OK = 1, Cancel = 2 };

/// The window that a `frm...` class owns, declared before its controls.
class Dialog : public shown::Dialog {
 public:
  /// Creates the dialog, which runs `InitApplicationVariables` where its life says so.
  Dialog(std::string_view name, const CaptionSource& title, const Life& life, SizeInTwips size = {6000, 4500});
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  [[nodiscard]] const std::string& Name() const noexcept override { return name_; }
  [[nodiscard]] const std::string& Caption() const noexcept override { return caption_; }
  [[nodiscard]] int Left() const noexcept override { return left_; }
  [[nodiscard]] int Top() const noexcept override { return top_; }
  [[nodiscard]] int Width() const noexcept override { return width_; }
  [[nodiscard]] int Height() const noexcept override { return height_; }
  [[nodiscard]] bool IsShown() const noexcept override { return shown_; }
  [[nodiscard]] const std::vector<shown::Control*>& Controls() const noexcept override { return controls_; }
  [[nodiscard]] shown::Control* Find(std::string_view name) const noexcept override;
  [[nodiscard]] shown::Control* FocusedControl() const noexcept override { return focus_; }
  [[nodiscard]] shown::Control* DefaultButton() const noexcept override { return defaultButton_; }
  [[nodiscard]] shown::Control* CancelButton() const noexcept override { return cancelButton_; }
  [[nodiscard]] std::uint32_t Revision() const noexcept override { return revision_; }
  void Activate() override;
  Refusal PressKey(const Key& key) override;
  void PauseTyping() noexcept override { ++typingPauses_; }
  void Close() override { shown_ = false; }
  [[nodiscard]] std::string TranslatedCaption() const override;

  /// The dialog becomes active, and a key arrives that none of its buttons takes, before its control.
  Event<> OnActivate;
  Event<int&> KeyDown;

  [[nodiscard]] const orlin::Life& Life() const noexcept { return life_; }

  /// `Form_Load`, run by the first touch of a control. Without one of its own, a dialog loads its captions and centres
  /// itself. Failures in it are skipped.
  Event<> OnLoad;
  /// Sets the title and the captions that have a number, in order of declaration.
  void LoadCaptions();
  /// Moves the dialog to the middle of the screen.
  void Centre();
  /// `translated`: what people read in its place, where the caption is in English whatever the language.
  void SetCaption(std::string caption, std::string translated = {});
  void SetWidth(int width);
  void SetHeight(int height);

  /// The rights of this call, kept until `Display` ends. `Failure` 424 or 13 for a value that is no collection.
  void KeepSecurityLevels(const Value& securityLevels) { levels_ = AsSecurityLevels(securityLevels); }
  void DropSecurityLevels() noexcept { levels_.reset(); }
  /// `Failure` 91 where none are kept.
  [[nodiscard]] const orlin::SecurityLevels& SecurityLevels() const;

  [[nodiscard]] orlin::ExitCode ExitCode() const noexcept { return exitCode_; }
  void SetExitCode(orlin::ExitCode code) noexcept { exitCode_ = code; }

  /// Shows the dialog; returns when it has been hidden or closed.
  void ShowModal();
  /// Ends the modal show. The controls stay readable.
  void Hide() { shown_ = false; }
  /// Ends the modal show with an outcome.
  void HideWith(orlin::ExitCode code);
  void Unload() noexcept;

  /// A message box; without a title it has the host's own.
  int ShowMessage(std::string text, int flags = Message::OkOnly);
  int ShowMessage(std::string text, int flags, std::string title);
  void Beep() { host_.Beep(); }

  /// Enter presses the default button, Escape the cancel button.
  void MakeDefault(Button& button) noexcept { defaultButton_ = &button; }
  void MakeCancel(Button& button) noexcept { cancelButton_ = &button; }

 private:
  friend class Control;
  friend class RowList;

  /// A control has been made.
  void Take(Control& control) { controls_.push_back(&control); }
  /// The first touch of a control loads the dialog.
  void Touched();
  [[nodiscard]] static Control& Own(shown::Control& control) { return static_cast<Control&>(control); }
  [[nodiscard]] static bool TakesTab(const Control& control);
  void MoveFocus(Control* to, By by);
  void MoveFocusByTab(bool backwards);
  Refusal PressAccessKey(char32_t letter);
  void PressButton(Button* button) const;
  [[nodiscard]] std::uint32_t TypingPauses() const noexcept { return typingPauses_; }
  /// Runs a handler that the operator caused: a failure ends it and is told to the host.
  void Guard(std::string_view owner, std::string_view event, const std::function<void()>& handler) const;

  std::string name_;
  DialogHost& host_;
  std::string caption_;
  std::int16_t titleNumber_;
  std::int16_t titleTranslation_;  // of the fixed caption that the dialog is made with; 0 for none
  std::string translatedCaption_;  // of one that is set later
  orlin::Life life_;
  int left_ = 0;
  int top_ = 0;
  int width_;
  int height_;
  std::uint32_t revision_ = 0;
  bool loaded_ = false;
  bool shown_ = false;
  std::vector<shown::Control*> controls_;
  Control* focus_ = nullptr;
  Control* entered_ = nullptr;  // has had its GotFocus, and is due its LostFocus
  Button* defaultButton_ = nullptr;
  Button* cancelButton_ = nullptr;
  std::uint32_t typingPauses_ = 0;
  SecurityLevelsPtr levels_;
  orlin::ExitCode exitCode_ = orlin::ExitCode::None;
};

/// The usual OK button: it is the default button, and without a handler of its own it confirms at once.
class OKButton : public Button {
 public:
  explicit OKButton(Dialog& form, const CaptionSource& caption = 101, std::string_view name = "cmdOK");
};

/// The usual Cancel button: it is the cancel button, and gives up at once.
class CancelButton : public Button {
 public:
  explicit CancelButton(Dialog& form, const CaptionSource& caption = 119, std::string_view name = "cmdCancel");
};

}  // namespace orlin
