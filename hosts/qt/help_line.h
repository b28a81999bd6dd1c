#pragma once

#include <QFocusFrame>
#include <QWidget>

namespace orlin {

/// The line at the foot of a window that tells about the control at hand. It keeps room for two lines, in which the
/// text is broken and, if need be, cut, so that no text moves anything.
class HelpLine final : public QWidget {
 public:
  explicit HelpLine(QWidget* parent);

  void Show(const QString& text);
  [[nodiscard]] const QString& Text() const { return text_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

/// A ring around the control that has the focus, the same for all kinds and styles.
class FocusRing final : public QFocusFrame {
 public:
  using QFocusFrame::QFocusFrame;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orlin
