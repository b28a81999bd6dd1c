#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "OrlinCustomDialogs/host/controls.h"
#include "OrlinCustomDialogs/host/form.h"

#include "qt/changed_texts.h"
#include "qt/control_view.h"
#include "qt/word_search.h"

class QLabel;
class QScrollArea;

namespace orlin {

class CodeView;
class FocusRing;
class HelpLine;

/// A dialog of the library in a window. Everything that the operator does goes to the controls; after it, and
/// before each message, the widgets are brought up to date.
class DialogWindow final : public QDialog, public Desk {
 public:
  enum class Timers { Run, Stand };

  /// The dialog outlives the window, and so does a parent that is a `DialogWindow`; any other may go before.
  DialogWindow(shown::Dialog& dialog, Timers timers, QWidget* parent);

  /// Plans for a screen of that size instead of the one that is there.
  void SetRoom(QSize room) { room_ = room; }

  /// Activates the dialog and shows the window.
  void Open();
  /// Lets the operator work until the dialog is no longer shown. Throws on what a host call threw in a handler.
  void Work();

  void Do(const std::function<Refusal()>& action) override;
  [[nodiscard]] bool RunsTimers() const override { return timers_ == Timers::Run; }

  /// Whether the window has been closed under a handler, and the dialog ends when that returns.
  [[nodiscard]] bool Closing() const { return closing_; }

  /// Brings all widgets up to date.
  void Present();

  [[nodiscard]] ControlView& ViewOf(const shown::Control& control) const;
  /// What has the keyboard.
  [[nodiscard]] QWidget& KeyTarget();
  /// The first thing that could not be done since the last call.
  [[nodiscard]] Refusal TakeRefusal() { return std::exchange(refusal_, {}); }
  /// Throws what a host call threw in a handler.
  void Rethrow();

  /// Brings the help and the ring around the focus up to date, which waits until everything else is painted.
  void Settle();
  [[nodiscard]] const HelpLine& Foot() const { return *help_; }
  /// Where the field is on the screen that the operator worked on last: what a message is about, as far as can be
  /// known.
  [[nodiscard]] QRect FieldAtHand() const;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override { CloseBox(); }

 private:
  void MakeViews(QWidget& body);
  void WidenCaptions();
  void Watch(ControlView& view);
  [[nodiscard]] ControlView* WatchedView(const QObject* watched) const;
  void TakeKey(ControlView* view, const QKeyEvent& key);
  void PresentFocus();
  void PresentDefault();
  void PresentNames();
  /// What is wrong with a code stands below its lists. Tells whether something else stands there now.
  bool PresentRemarks();
  void PresentHelp();
  void NameDropDown(ControlView& view);
  void Fit();
  /// The largest that the window may be.
  [[nodiscard]] QSize Room() const;
  /// The form, once it scrolls.
  [[nodiscard]] QScrollArea* Scrolling() const;
  void CloseBox();
  /// Whether the dialog may end without OK: a person who has changed a long text is asked.
  [[nodiscard]] bool MayEnd();
  /// Whether Escape would press the cancel button.
  [[nodiscard]] bool EscapeEnds() const;

  shown::Dialog& dialog_;
  Timers timers_;
  Form form_;
  std::vector<std::unique_ptr<ControlView>> views_;
  CodeView* code_ = nullptr;  // where the dialog has one
  std::map<const shown::Control*, QLabel*> remarks_;
  ChangedTexts texts_;
  WordSearch search_;
  QWidget* body_ = nullptr;
  QWidget* keyboard_ = nullptr;
  const shown::Control* field_ = nullptr;  // that had the focus last
  HelpLine* help_ = nullptr;
  FocusRing* ring_ = nullptr;
  QTimer settling_;
  std::optional<std::uint32_t> revision_;
  bool stretches_ = false;
  bool presenting_ = false;
  bool busy_ = false;
  bool closing_ = false;
  QSize fitted_;
  QSize wanted_;  // by what is in the window
  QSize room_;    // of another screen; invalid for that of the window
  Refusal refusal_;
  std::exception_ptr thrown_;
  QEventLoop loop_;
  QElapsedTimer sinceKey_;
};

}  // namespace orlin
