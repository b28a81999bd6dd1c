#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>

#include "OrlinCustomDialogs/host/controls.h"

namespace orlin {

/// Runs what the operator does with mouse and keyboard, and brings the whole window up to date afterwards.
class Desk {
 public:
  Desk() = default;
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  virtual ~Desk() = default;

  virtual void Do(const std::function<Refusal()>& action) = 0;
  /// Presses a key where the focus is.
  void Press(const Key& key, shown::Dialog& dialog) {
    Do([&] { return dialog.PressKey(key); });
  }
  /// Whether the operator's own clock runs the timers.
  [[nodiscard]] virtual bool RunsTimers() const = 0;
  /// Whether a person works the window. Where a script does, the window is no more than the dialog itself.
  [[nodiscard]] bool ServesPerson() const { return RunsTimers(); }
};

/// Shows one control in a widget. The control holds the state: the widget never changes by itself, but is brought up
/// to date when the control has changed.
class ControlView {
 public:
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  virtual ~ControlView() = default;

  [[nodiscard]] virtual shown::Control& Control() const = 0;
  /// Null for a timer. Owned by the window.
  [[nodiscard]] virtual QWidget* Widget() const = 0;
  /// What has the keyboard while the control has the focus.
  [[nodiscard]] virtual QWidget* KeyboardWidget() const { return Widget(); }

  /// Brings the widget up to date, if the control has changed since, or is to be seen and was not. Tells whether so.
  bool Update(bool isSeen);
  /// Shows the whole state again, whatever has changed.
  virtual void Present() = 0;
  /// A key that is not for the dialog but for the window: the clipboard, a mark with Shift, the rows of a drop-down
  /// list. Tells whether it was one.
  virtual bool TakeWindowKey(const QKeyEvent& key) {
    static_cast<void>(key);
    return false;
  }
  /// Whether a drop-down list is open: what is typed then is looked for in its rows, also where it has an edit field.
  [[nodiscard]] virtual bool IsListOpen() const { return false; }

 protected:
  ControlView() = default;

 private:
  bool presented_ = false;
  bool isSeen_ = false;
  std::uint32_t revision_ = 0;
};

/// The view of a control of any kind, in a widget that belongs to `parent`.
[[nodiscard]] std::unique_ptr<ControlView> MakeView(shown::Control& control, Desk& desk, QWidget* parent);

/// A view of a control, with what its kind adds: a text, rows, a table; of the others the control itself.
template <class Part>
class ViewOf : public ControlView {
 public:
  ViewOf(shown::Control& control, Part& its, Desk& desk) : control_(control), its_(its), desk_(desk) {}
  [[nodiscard]] shown::Control& Control() const final { return control_; }

 protected:
  [[nodiscard]] Part& Its() const { return its_; }
  [[nodiscard]] Desk& At() const { return desk_; }

 private:
  shown::Control& control_;
  Part& its_;
  Desk& desk_;
};

}  // namespace orlin
