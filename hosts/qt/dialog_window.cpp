#include "qt/dialog_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "qt/code_view.h"
#include "qt/colours.h"
#include "qt/form_layout.h"
#include "qt/help_line.h"
#include "qt/help_page.h"
#include "qt/key_events.h"
#include "qt/passive_edit.h"
#include "qt/stand_over.h"
#include "qt/texts.h"
#include "qt/views.h"

namespace orlin {
namespace {

constexpr double kMostOfScreen = 0.9;

}  // namespace

DialogWindow::DialogWindow(shown::Dialog& dialog, Timers timers, QWidget* parent)
    : QDialog(dynamic_cast<DialogWindow*>(parent)),
      dialog_(dialog),
      timers_(timers),
      form_(FormOf(dialog)),
      search_(dialog, *this) {
  setWindowModality(Qt::ApplicationModal);
  setFocusPolicy(Qt::StrongFocus);
  StandOver(*this, parent);
  const auto palettes = PalettesFor(palette());
  setPalette(palettes.Window);
  body_ = new QWidget(this);
  body_->setPalette(palettes.Inside);
  MakeViews(*body_);
  Present();
  const auto remarkOf = [this](const auto& control) {
    const auto remark = remarks_.find(&control);
    return remark == remarks_.end() ? nullptr : remark->second;
  };
  FormLayout layout(
      form_, [this](const auto& control) { return ViewOf(control).Widget(); }, remarkOf);
  help_ = new HelpLine(this);
  layout.LayOut(*this, *body_, *help_);
  settling_.setSingleShot(true);
  QObject::connect(&settling_, &QTimer::timeout, this, [this] { Settle(); });
  stretches_ = layout.Stretches();
}

// Where a table or a list makes the window wide, captions need not be broken before its edge.
void DialogWindow::WidenCaptions() {
  const int edge = 4 * fontMetrics().averageCharWidth();
  const int room = std::min(body_->sizeHint().width(), Room().width()) - edge;
  if (room <= CaptionWidth(*this)) return;
  setProperty(kCaptionWidth, room);
  for (const auto& view : views_) {
    const auto length = static_cast<int>(view->Control().TranslatedCaption().size());
    const bool isBroken = length * fontMetrics().averageCharWidth() > room / 2;
    if (view->Control().Parent() == nullptr && isBroken) view->Present();
  }
}

void DialogWindow::MakeViews(QWidget& body) {
  const auto inButtonRow = [this](const shown::Control* control) {
    const auto holds = [&](const FormLine& line) { return std::find(line.begin(), line.end(), control) != line.end(); };
    return holds(form_.LeftButtons) || holds(form_.RightButtons) || control == form_.Status;
  };
  for (auto* control : dialog_.Controls()) {
    QWidget* parent = inButtonRow(control) ? this : &body;
    // A frame may be declared behind what stands in it.
    if (control->Parent() != nullptr) {
      const auto* frame = control->Parent();
      const auto made =
          std::find_if(views_.begin(), views_.end(), [&](const auto& view) { return &view->Control() == frame; });
      if (made != views_.end()) parent = (*made)->Widget();
    }
    views_.push_back(MakeView(*control, *this, parent));
    if (auto* widget = views_.back()->Widget(); widget != nullptr && parent == this) widget->setPalette(body.palette());
    Watch(*views_.back());
  }
  const auto isCode = [](const auto& view) { return dynamic_cast<CodeView*>(view.get()) != nullptr; };
  if (const auto code = std::find_if(views_.begin(), views_.end(), isCode); code != views_.end()) {
    code_ = dynamic_cast<CodeView*>(code->get());
    code_->KeyboardWidget()->installEventFilter(this);
    for (const auto* list : code_->Control().CodeLists()) {
      auto* remark = remarks_[list] = new QLabel(&body);
      remark->setTextFormat(Qt::PlainText);
      remark->hide();
    }
  }
  for (const auto& [field, label] : form_.Labels) {
    dynamic_cast<QLabel&>(*ViewOf(*label).Widget()).setBuddy(ViewOf(*field).Widget());
  }
}

void DialogWindow::Watch(ControlView& view) {
  auto* widget = view.Widget();
  if (widget == nullptr || !view.Control().TakesFocus()) return;
  widget->installEventFilter(this);
  for (auto* field : widget->findChildren<QLineEdit*>()) field->installEventFilter(this);
}

ControlView& DialogWindow::ViewOf(const shown::Control& control) const {
  return **std::find_if(views_.begin(), views_.end(), [&](const auto& view) { return &view->Control() == &control; });
}

ControlView* DialogWindow::WatchedView(const QObject* watched) const {
  const auto found = std::find_if(views_.begin(), views_.end(), [&](const auto& view) {
    const auto* widget = view->Widget();
    return widget != nullptr && (widget == watched || view->KeyboardWidget() == watched);
  });
  return found == views_.end() ? nullptr : found->get();
}

// ---------------------------------------------------------------------------------------------- showing

void DialogWindow::Open() {
  Do([this]() -> Refusal {
    dialog_.Activate();
    return {};
  });
  if (!dialog_.IsShown() || thrown_) return;
  texts_.Remember(dialog_);
  WidenCaptions();
  Fit();
  show();
}

void DialogWindow::Work() {
  if (dialog_.IsShown() && !thrown_) loop_.exec();
  hide();
  Rethrow();
}

void DialogWindow::Rethrow() {
  if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
}

void DialogWindow::Do(const std::function<Refusal()>& action) {
  // What an input method holds is of the field that has the keyboard, before anything else happens.
  if (auto* field = dynamic_cast<Composing*>(focusWidget()); field != nullptr && !busy_) field->Commit();
  // A timer may be due while a message is shown; it then waits for the next time.
  if (busy_ || !dialog_.IsShown()) return;
  // Who does something elsewhere has left the field of the code, which shows the code as it stands again.
  if (code_ != nullptr && !code_->Acts()) code_->Leave();
  busy_ = true;
  try {
    auto refusal = action();
    if (!refusal_) refusal_ = std::move(refusal);
  } catch (...) {
    // Nothing is thrown through the event loop of Qt.
    thrown_ = std::current_exception();
  }
  busy_ = false;
  if (closing_) dialog_.Close();
  Present();
  if (!dialog_.IsShown() || thrown_) loop_.quit();
}

void DialogWindow::Present() {
  if (presenting_) return;
  presenting_ = true;
  bool different = revision_ != dialog_.Revision();
  if (different) {
    revision_ = dialog_.Revision();
    setWindowTitle(Shown(dialog_.TranslatedCaption()));
  }
  for (const auto& view : views_) different = view->Update(form_.Shows(view->Control())) || different;
  if (different) PresentNames();
  different = PresentRemarks() || different;
  if (layout() != nullptr) {
    PresentFocus();
    if (different && isVisible()) {
      Fit();
      settling_.start();
    }
  }
  presenting_ = false;
}

void DialogWindow::Settle() {
  settling_.stop();
  if (!dialog_.IsShown()) return;
  PresentHelp();
  const auto* focused = dialog_.FocusedControl();
  if (ring_ == nullptr) ring_ = new FocusRing(this);
  ring_->setWidget(focused != nullptr && focused->WithinReach() ? ViewOf(*focused).Widget() : nullptr);
}

void DialogWindow::PresentHelp() {
  const auto* focused = dialog_.FocusedControl();
  help_->Show(focused != nullptr ? orlin::Shown(form_.HelpFor(*focused)) : QString());
  for (const auto& view : views_) {
    auto* widget = view->Widget();
    if (widget == nullptr || !view->Control().IsShown()) continue;
    NameDropDown(*view);
    const auto help = orlin::Shown(form_.HelpFor(view->Control()));
    const auto remark = remarks_.find(&view->Control());
    const auto wrong = remark != remarks_.end() ? remark->second->property("remark").toString() : QString();
    const auto description = wrong.isEmpty() ? help : wrong + u' ' + help;
    if (widget->toolTip() == help && widget->accessibleDescription() == description) continue;
    widget->setToolTip(help);
    widget->setAccessibleDescription(description);
  }
}

// On some systems Qt gives a drop-down list its text for a name, and leaves the name to a label that belongs to it.
void DialogWindow::NameDropDown(ControlView& view) {
  const auto& control = view.Control();
  if (control.Kind() != ControlKind::ComboBox) return;
  const auto labels = view.Widget()->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
  const auto known =
      std::find_if(labels.begin(), labels.end(), [&](const auto* label) { return label->buddy() == view.Widget(); });
  auto* label = known != labels.end() ? *known : new QLabel(view.Widget()->parentWidget());
  if (known == labels.end()) label->hide();
  label->setBuddy(view.Widget());
  if (label->isHidden()) label->setText(SpokenCaption(form_.NameOf(control)));
}

QRect DialogWindow::FieldAtHand() const {
  if (field_ == nullptr || !field_->IsShown()) return {};
  const auto* widget = ViewOf(*field_).Widget();
  return {widget->mapToGlobal(QPoint()), widget->size()};
}

void DialogWindow::PresentFocus() {
  auto* focused = dialog_.FocusedControl();
  auto* wanted =
      focused != nullptr && focused->WithinReach() ? ViewOf(*focused).KeyboardWidget() : static_cast<QWidget*>(this);
  if (code_ != nullptr && code_->HasKeyboard()) wanted = code_->KeyboardWidget();
  if (wanted == keyboard_ && wanted->hasFocus()) return;
  const bool another = std::exchange(keyboard_, wanted) != wanted;
  if (focused != nullptr && focused->Kind() != ControlKind::Button) field_ = focused;
  if (isVisible()) settling_.start();
  if (another) PresentDefault();
  wanted->setFocus(Qt::OtherFocusReason);
  if (auto* area = Scrolling(); area != nullptr && area->isAncestorOf(wanted)) area->ensureWidgetVisible(wanted);
  // A field that is left forgets its mark.
  if (another && focused != nullptr && focused->AsTextField() != nullptr) ViewOf(*focused).Present();
}

// The button that Enter presses looks so.
void DialogWindow::PresentDefault() {
  const auto* focused = dialog_.FocusedControl();
  const bool isButton = focused != nullptr && focused->Kind() == ControlKind::Button && focused->WithinReach();
  const auto* pressed = isButton ? focused : dialog_.DefaultButton();
  for (const auto& view : views_) {
    if (auto* button = qobject_cast<QPushButton*>(view->Widget())) button->setDefault(&view->Control() == pressed);
  }
}

// What a screen reader says for a field.
void DialogWindow::PresentNames() {
  for (const auto& view : views_) {
    const auto& control = view->Control();
    auto* widget = view->Widget();
    if (widget == nullptr || !control.TakesFocus() || !control.Caption().empty()) continue;
    const auto label = form_.Labels.find(&control);
    if (label != form_.Labels.end() && label->second->Names() == &control) {
      auto& shown = dynamic_cast<QLabel&>(*ViewOf(*label->second).Widget());
      if (shown.buddy() != widget) shown.setBuddy(widget);
    }
    const auto name = SpokenCaption(form_.NameOf(control));
    if (widget->accessibleName() == name) continue;
    widget->setAccessibleName(name);
    for (auto* field : widget->findChildren<QLineEdit*>()) field->setAccessibleName(name);
  }
}

bool DialogWindow::PresentRemarks() {
  bool different = false;
  for (const auto& [list, label] : remarks_) {
    const auto remark = list->IsShown() ? code_->RemarkOn(*list) : QString();
    if (label->property("remark") == remark) continue;
    different = true;
    label->setProperty("remark", remark);
    auto* widget = ViewOf(*list).Widget();
    // The window grows in height alone.
    label->setText(Wrapped(remark, label->fontMetrics(), std::max(widget->width(), widget->sizeHint().width())));
    label->setVisible(!remark.isEmpty());
    widget->setAccessibleDescription(remark);
  }
  // OK would store another code than the one that stands there.
  if (const auto* pressed = dialog_.DefaultButton(); code_ != nullptr && pressed != nullptr) {
    ViewOf(*pressed).Widget()->setEnabled(pressed->Enabled() && !code_->IsOpen());
  }
  return different;
}

QSize DialogWindow::Room() const {
  return (room_.isValid() ? room_ : screen()->availableGeometry().size()) * kMostOfScreen;
}

QScrollArea* DialogWindow::Scrolling() const { return qobject_cast<QScrollArea*>(body_); }

void DialogWindow::Fit() {
  // From the inside out, at once: Qt would do it when the window is next painted.
  const auto inside = findChildren<QWidget*>();
  for (auto widget = inside.rbegin(); widget != inside.rend(); ++widget) {
    if ((*widget)->layout() != nullptr) (*widget)->layout()->activate();
  }
  layout()->activate();
  const auto most = Room();
  const auto hint = sizeHint();
  const auto least = layout()->totalMinimumSize();
  if ((least.width() > most.width() || least.height() > most.height()) && Scrolling() == nullptr) {
    // Too large for the screen: the form scrolls, the buttons stay.
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    delete layout()->replaceWidget(body_, area);
    area->setWidget(body_);
    // Its ground is that of the window, and no colour of outlines.
    body_->setAutoFillBackground(false);
    body_ = area;
    // What moves into another widget loses the keyboard.
    keyboard_ = nullptr;
    PresentFocus();
    layout()->activate();
    // A scroll bar for one direction takes room from the other.
    const int bar = area->verticalScrollBar()->sizeHint().width();
    const QSize bars(hint.height() > most.height() ? bar : 0, hint.width() > most.width() ? bar : 0);
    resize((hint + bars).boundedTo(most));
    return;
  }
  if (Scrolling() != nullptr) return;
  if (!stretches_) {
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    return;
  }
  // Tables and lists give way, and scroll by themselves.
  const auto wanted = hint.boundedTo(most);
  // The operator's own size stays, unless something new needs more.
  const bool own = fitted_.isValid() && size() != fitted_;
  if (std::exchange(wanted_, wanted) == wanted && own) return;
  resize(own ? size().expandedTo(wanted) : wanted);
  fitted_ = size();
}

// ---------------------------------------------------------------------------------------------- the operator

QWidget& DialogWindow::KeyTarget() {
  auto* target = focusWidget();
  return target != nullptr ? *target : *this;
}

bool DialogWindow::event(QEvent* event) {
  // Every key is the dialog's own, also those that Qt would take for access keys of its widgets.
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  // Where no control has the keyboard: Qt would take Tab for itself.
  if (event->type() == QEvent::KeyPress) {
    keyPressEvent(dynamic_cast<QKeyEvent*>(event));
    return true;
  }
  return QDialog::event(event);
}

bool DialogWindow::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      event->accept();
      return true;
    case QEvent::KeyPress:
      TakeKey(WatchedView(watched), dynamic_cast<const QKeyEvent&>(*event));
      return true;
    case QEvent::KeyRelease:
      return true;
    case QEvent::FocusIn: {
      // Assistive tools set the focus too; what the window itself sets comes from the dialog.
      const auto reason = dynamic_cast<const QFocusEvent&>(*event).reason();
      auto* view = WatchedView(watched);
      const bool meant = reason == Qt::OtherFocusReason || reason == Qt::TabFocusReason;
      if (!presenting_ && meant && view != nullptr && view != code_ && !view->Control().HasFocus()) {
        Do([&] { return view->Control().Focus(); });
      }
      return false;
    }
    default:
      return false;
  }
}

void DialogWindow::keyPressEvent(QKeyEvent* event) { TakeKey(nullptr, *event); }

void DialogWindow::TakeKey(ControlView* view, const QKeyEvent& key) {
  if (key.key() == Qt::Key_F1) {
    if (const auto page = HelpPageOf(dialog_.Name()); !page.isEmpty()) ShowHelpPage(page, *this);
    return;
  }
  if (code_ != nullptr && code_->TakeTab(key)) return;
  if (view != nullptr && view->TakeWindowKey(key)) return;
  if (key.key() == Qt::Key_Escape && EscapeEnds() && !MayEnd()) return;
  constexpr qint64 typingPause = 1000;
  if (ServesPerson() && sinceKey_.isValid() && sinceKey_.elapsed() > typingPause) {
    dialog_.PauseTyping();
    search_.Pause();
  }
  sinceKey_.start();
  for (const auto& pressed : KeysOf(key)) {
    if (ServesPerson()) {
      search_.Press(pressed, view != nullptr && view->IsListOpen());
    } else {
      Press(pressed, dialog_);
    }
  }
}

void DialogWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // Styles mark what has the focus only where the keyboard of Qt has moved it; here the dialog moves it.
  setAttribute(Qt::WA_KeyboardFocusChange);
}

void DialogWindow::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  if (ring_ == nullptr) settling_.start();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  // Only somebody at the window is asked: not an application that quits, not one whose window under this one goes.
  if (event->spontaneous() && !MayEnd()) return event->ignore();
  CloseBox();
  // A window that refused would keep an application from quitting.
  event->setAccepted(closing_ || !dialog_.IsShown());
}

void DialogWindow::CloseBox() {
  closing_ = busy_;
  Do([this]() -> Refusal {
    dialog_.Close();
    return {};
  });
}

bool DialogWindow::MayEnd() { return !ServesPerson() || busy_ || !texts_.Any() || MayBeLost(*this); }

bool DialogWindow::EscapeEnds() const {
  const auto* cancel = dialog_.CancelButton();
  const auto* focused = dialog_.FocusedControl();
  const auto* table = focused != nullptr ? focused->AsTable() : nullptr;
  return cancel != nullptr && cancel->WithinReach() && (table == nullptr || !table->Editing());
}

}  // namespace orlin
