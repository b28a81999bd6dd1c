#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/dialog_host.h"

#include "frame/controls.h"
#include "frame/security_levels.h"

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

  using shown::Dialog::Height;
  using shown::Dialog::KeyDown;
  using shown::Dialog::OnActivate;
  using shown::Dialog::SetCaption;
  using shown::Dialog::SetHeight;
  using shown::Dialog::SetWidth;

  [[nodiscard]] const orlin::Life& Life() const noexcept { return life_; }

  /// `Form_Load`, run by the first touch of a control. Without one of its own, a dialog loads its captions and centres
  /// itself. Failures in it are skipped.
  Event<> OnLoad;
  /// Sets the title and the captions that have a number, in order of declaration.
  void LoadCaptions();
  /// Moves the dialog to the middle of the screen.
  void Centre();

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
  void Hide() { EndShow(); }
  /// Ends the modal show with an outcome.
  void HideWith(orlin::ExitCode code);
  void Unload() noexcept;

  /// A message box; without a title it has the host's own.
  int ShowMessage(std::string text, int flags = Message::OkOnly);
  int ShowMessage(std::string text, int flags, std::string title);
  void Beep() { Host().Beep(); }

  /// Enter presses the default button, Escape the cancel button.
  void MakeDefault(Button& button) noexcept { SetDefaultButton(&button); }
  void MakeCancel(Button& button) noexcept { SetCancelButton(&button); }

 private:
  void Touched() override;

  std::int16_t titleNumber_;
  orlin::Life life_;
  bool loaded_ = false;
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
