#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/host/controls.h"

namespace [[using gnu: visibility("default")]] orlin {

/// A message box, as the library asks for it.
struct Message {
  static constexpr int OkOnly = 0;
  static constexpr int OkCancel = 1;
  static constexpr int YesNo = 4;
  static constexpr int Warning = 48;  ///< OK, with a warning sign

  std::string Text;
  int Flags = OkOnly;
  std::optional<std::string> Title;  ///< nothing: the host's default title
};

/// What the operator answered to a message box.
namespace answers {
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
}  // namespace answers

/// A size in twips, 1440 to the inch.
struct SizeInTwips {
  int Width = 0;
  int Height = 0;
};

/// Whoever shows the dialogs to somebody: windows, a script, a test.
///
/// A host owns no state of a dialog. It reads the controls of `shown::Dialog`, presents them, and turns what the
/// operator does into calls of the operator's side of the controls. Those calls run the handlers of the dialog at
/// once, on the caller's stack; when they return, the controls hold the new state, and the host presents what has
/// changed (`Revision` tells it cheaply). It never has to mend or to check anything: a rule of behaviour that every
/// host would need lives in the controls.
///
/// Calls arrive on one thread, and `ShowMessage` and `Beep` arrive also while no dialog is shown.
/// What a host throws, other than a `Failure`, passes through the library and ends the call.
///
/// A host may call a public class in the middle of `ShowModal` or `ShowMessage`, by a timer of its own for example; the
/// dialog of that call then arrives in a `ShowModal` within the first. Neither call knows of the other.
class DialogHost {
 public:
  DialogHost() = default;
  DialogHost(const DialogHost&) = delete;
  DialogHost& operator=(const DialogHost&) = delete;
  virtual ~DialogHost() = default;

  /// The size of the screen, in which dialogs are centred.
  [[nodiscard]] virtual SizeInTwips Screen() const = 0;

  /// Presents the dialog, calls `Activate` on it once, and lets the operator work until `IsShown` is false,
  /// which may be so after any call of the operator's side, `Activate` included. The dialog and its controls
  /// outlive the call.
  virtual void ShowModal(shown::Dialog& dialog) = 0;

  /// Shows a message and waits for the answer: one of `answers`, out of those that the flags offer. Arrives in the
  /// middle of a handler, so that controls may have changed since the host presented them last.
  virtual int ShowMessage(const Message& message) = 0;

  /// One audible signal.
  virtual void Beep() = 0;

  /// A failure ended a handler of a dialog that is shown, for example "cmbType_Click". The dialog stays as it is;
  /// the host may tell it in its trace.
  virtual void HandlerFailed(const shown::Dialog& dialog, std::string_view handler, const Failure& failure) {
    static_cast<void>(dialog);
    static_cast<void>(handler);
    static_cast<void>(failure);
  }
};

}  // namespace orlin
