// The kinds that are a caption or a press: labels, frames, buttons, check boxes, options, up-downs, status lines,
// timers.

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "OrlinCustomDialogs/host/keys.h"
#include "OrlinCustomDialogs/host/texts.h"

#include "qt/colours.h"
#include "qt/local_text.h"
#include "qt/mark_style.h"
#include "qt/texts.h"
#include "qt/views.h"

namespace orlin {
namespace {

/// A label that tells when it is clicked.
class ClickedLabel final : public QLabel {
 public:
  ClickedLabel(QWidget* parent, std::function<void()> onClick) : QLabel(parent), onClick_(std::move(onClick)) {}

 protected:
  // Only what takes the press gets the release.
  void mousePressEvent(QMouseEvent* event) override { event->setAccepted(event->button() == Qt::LeftButton); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) onClick_();
  }

 private:
  std::function<void()> onClick_;
};

class LabelView final : public ViewOf<shown::Control> {
 public:
  LabelView(shown::Control& label, Desk& desk, QWidget* parent)
      : ViewOf(label, label, desk), label_(new ClickedLabel(parent, [this] { Click(); })) {
    label_->setTextFormat(Qt::PlainText);
  }
  [[nodiscard]] QWidget* Widget() const override { return label_; }
  void Present() override {
    // Only the label of a field shows its access key, and only there does "&&" mean "&".
    const auto read = Its().TranslatedCaption();
    auto caption = label_->buddy() != nullptr ? read : PlainCaption(read);
    if (auto meaning = Its().SpokenName(); !meaning.empty()) caption = std::move(meaning);
    label_->setText(Wrapped(Shown(caption), label_->fontMetrics(), CaptionWidth(*label_)));
    if (Its().Role() == shown::LabelRole::ColourKey) ShowSign();
    if (!Its().BackColor()) return;
    auto palette = label_->palette();
    auto ground = ColourOf(*Its().BackColor(), palette);
    // A key of colours shows them as they are shown where they are used.
    if (caption.empty()) ground = Readable(ground, palette.color(QPalette::Base));
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, Readable(palette.color(QPalette::WindowText), ground));
    label_->setPalette(palette);
    label_->setAutoFillBackground(true);
  }

 private:
  // Where the label stands for the caption of a check box or an option, it is pressed like one.
  void Click() {
    auto* named = Its().Names();
    if (named != nullptr && named->AsMark() != nullptr) At().Do([named] { return named->Press(); });
  }

  void ShowSign() {
    auto font = label_->font();
    font.setBold(true);
    label_->setFont(font);
    label_->setAlignment(Qt::AlignCenter);
    label_->setText(SignOf(Its()));
  }

  QLabel* label_;
};

/// Styles draw the border so faintly that it groups nothing for many eyes.
class Box final : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QGroupBox::paintEvent(event);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const auto inside = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
    QPainter painter(this);
    painter.setPen(Outline(palette()));
    painter.drawRect(inside.adjusted(-1, -1, 0, 0));
  }
};

class FrameView final : public ViewOf<shown::Control> {
 public:
  FrameView(shown::Control& frame, Desk& desk, QWidget* parent) : ViewOf(frame, frame, desk), box_(new Box(parent)) {}
  [[nodiscard]] QWidget* Widget() const override { return box_; }
  void Present() override {
    const auto caption = Its().TranslatedCaption();
    box_->setTitle(Shown(caption));
    box_->setFlat(caption.empty());
    box_->setAccessibleName(SpokenCaption(caption));
  }

 private:
  QGroupBox* box_;
};

/// A button of Qt that leaves it to the control whether it is on.
template <class Button>
class PassiveButton final : public Button {
 public:
  using Button::Button;

 protected:
  void nextCheckState() override {}
};

template <class Button>
class PressView : public ViewOf<shown::Control> {
 public:
  PressView(shown::Control& control, Desk& desk, QWidget* parent)
      : ViewOf(control, control, desk), button_(new PassiveButton<Button>(parent)) {
    button_->setFocusPolicy(Qt::TabFocus);
    if (control.AsMark() != nullptr) GrowMarks(*button_);
    QObject::connect(button_, &QAbstractButton::clicked, button_,
                     [this] { At().Do([this] { return Its().Press(); }); });
  }
  [[nodiscard]] QWidget* Widget() const override { return button_; }
  void Present() override {
    const auto caption = Its().TranslatedCaption();
    const auto text = Wrapped(orlin::Shown(caption), button_->fontMetrics(), CaptionWidth(*button_));
    button_->setText(text);
    // Of a caption in one line Qt makes the name itself.
    if (!caption.empty()) button_->setAccessibleName(text.contains(u'\n') ? SpokenCaption(caption) : QString());
    if (const auto* mark = Its().AsMark()) button_->setChecked(mark->IsOn());
  }

 protected:
  [[nodiscard]] Button& Face() const { return *button_; }

 private:
  PassiveButton<Button>* button_;
};

class ButtonView final : public PressView<QPushButton> {
 public:
  ButtonView(shown::Control& button, Desk& desk, QWidget* parent) : PressView(button, desk, parent) {
    Face().setAutoDefault(false);
  }
};

class CheckBoxView final : public PressView<QCheckBox> {
 public:
  using PressView::PressView;
};

class OptionView final : public PressView<QRadioButton> {
 public:
  using PressView::PressView;
  void Present() override {
    // Qt lets no option be cleared; the control may be.
    Face().setAutoExclusive(false);
    PressView::Present();
    Face().setAutoExclusive(true);
  }
};

class UpDownView final : public ViewOf<shown::Stepper> {
 public:
  UpDownView(shown::Control& buttons, Desk& desk, QWidget* parent)
      : ViewOf(buttons, *buttons.AsStepper(), desk), pair_(new QWidget(parent)) {
    auto* layout = new QVBoxLayout(pair_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const int height = FieldHeight(*pair_);
    Add(shown::Direction::Up, Qt::UpArrow, texts::Up, "Up", height - height / 2);
    Add(shown::Direction::Down, Qt::DownArrow, texts::Down, "Down", height / 2);
  }
  [[nodiscard]] QWidget* Widget() const override { return pair_; }
  void Present() override {}

 private:
  void Add(shown::Direction direction, Qt::ArrowType arrow, std::int16_t name, const char* inEnglish, int height) {
    auto* button = new QToolButton(pair_);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    button->setAccessibleName(LocalText(name, inEnglish));
    button->setFixedSize(height * 2, height);
    pair_->layout()->addWidget(button);
    QObject::connect(button, &QToolButton::clicked, pair_,
                     [this, direction] { At().Do([&] { return Its().Step(direction); }); });
  }

  QWidget* pair_;
};

class StatusView final : public ViewOf<shown::Control> {
 public:
  StatusView(shown::Control& line, Desk& desk, QWidget* parent) : ViewOf(line, line, desk), line_(new QLabel(parent)) {
    line_->setTextFormat(Qt::PlainText);
    line_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  }
  [[nodiscard]] QWidget* Widget() const override { return line_; }
  void Present() override {
    line_->setText(Wrapped(Shown(Its().Caption()), line_->fontMetrics(), CaptionWidth(*line_)));
    // The window does not jump while the line comes and goes.
    line_->setMinimumSize(line_->minimumSize().expandedTo(line_->sizeHint()));
  }

 private:
  QLabel* line_;
};

class TimerView final : public ViewOf<shown::Ticker> {
 public:
  TimerView(shown::Control& timer, Desk& desk, QWidget* parent)
      : ViewOf(timer, *timer.AsTicker(), desk), clock_(new QTimer(parent)) {
    QObject::connect(clock_, &QTimer::timeout, parent, [this] { At().Do([this] { return Its().Tick(); }); });
  }
  [[nodiscard]] QWidget* Widget() const override { return nullptr; }
  void Present() override {
    const bool runs = Its().Running() && At().RunsTimers();
    if (!runs) return clock_->stop();
    if (!clock_->isActive() || clock_->interval() != Its().Interval()) clock_->start(Its().Interval());
  }

 private:
  QTimer* clock_;
};

}  // namespace

QString SignOf(const shown::Control& colourKey) {
  QString sign;
  for (const auto* control : colourKey.Form().Controls()) {
    if (control->Role() == shown::LabelRole::ColourKey) sign += u'!';
    if (control == &colourKey) break;
  }
  return sign;
}

int FieldHeight(const QWidget& widget) {
  QStyleOptionFrame option;
  option.initFrom(&widget);
  option.lineWidth = widget.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &widget);
  constexpr int marginsOfField = 2;
  const QSize content(0, widget.fontMetrics().height() + marginsOfField);
  return widget.style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, &widget).height();
}

int CaptionWidth(const QWidget& widget) {
  const int usual = widget.fontMetrics().averageCharWidth() * 64;
  return std::max(usual, widget.window()->property(kCaptionWidth).toInt());
}

std::unique_ptr<ControlView> MakeSimpleView(shown::Control& control, Desk& desk, QWidget* parent) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return std::make_unique<LabelView>(control, desk, parent);
    case ControlKind::Frame:
      return std::make_unique<FrameView>(control, desk, parent);
    case ControlKind::Button:
      return std::make_unique<ButtonView>(control, desk, parent);
    case ControlKind::CheckBox:
      return std::make_unique<CheckBoxView>(control, desk, parent);
    case ControlKind::OptionButton:
      return std::make_unique<OptionView>(control, desk, parent);
    case ControlKind::UpDown:
      return std::make_unique<UpDownView>(control, desk, parent);
    case ControlKind::StatusBar:
      return std::make_unique<StatusView>(control, desk, parent);
    case ControlKind::Timer:
      return std::make_unique<TimerView>(control, desk, parent);
    default:
      return nullptr;
  }
}

}  // namespace orlin
