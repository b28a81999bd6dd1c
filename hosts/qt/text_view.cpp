#include <algorithm>

#include "qt/colours.h"
#include "qt/key_events.h"
#include "qt/passive_edit.h"
#include "qt/text_actions.h"
#include "qt/views.h"

namespace orlin {
namespace {

constexpr int kColumnsOfLines = 72;
constexpr int kColumnsOfTab = 13;
constexpr int kLines = 7;
constexpr int kUsualColumns = 24;

void ShowGround(QWidget& field, const shown::Control& control) {
  if (!control.BackColor()) return;
  auto palette = field.parentWidget()->palette();
  const auto ground = ColourOf(*control.BackColor(), palette);
  palette.setColor(QPalette::Base, ground);
  palette.setColor(QPalette::Text, Readable(palette.color(QPalette::Text), ground));
  field.setPalette(palette);
}

void Fit(PassiveLine& field, int maxLength) {
  const auto metrics = field.fontMetrics();
  const int columns = maxLength > 0 ? std::min(maxLength, kUsualColumns) : kUsualColumns;
  // Frame and margins take what the hint has beyond its own 17 letters.
  const int around = field.sizeHint().width() - metrics.horizontalAdvance(u'x') * 17;
  const int width = metrics.horizontalAdvance(u'W') * std::min(columns, 2) +
                    metrics.horizontalAdvance(u'0') * std::max(columns - 2, 0) + std::max(around, 0);
  field.setMinimumWidth(width);
  field.setSizePolicy(maxLength > 0 && maxLength < kUsualColumns ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                      QSizePolicy::Fixed);
  if (maxLength > 0 && maxLength < kUsualColumns) field.setMaximumWidth(width);
}

void Fit(PassiveLines& field, int) {
  const auto metrics = field.fontMetrics();
  field.setMinimumSize(metrics.averageCharWidth() * kColumnsOfLines, metrics.lineSpacing() * kLines);
  field.setTabStopDistance(metrics.averageCharWidth() * kColumnsOfTab);
  field.setTabChangesFocus(true);
  field.setUndoRedoEnabled(false);
}

template <class Field>
class TextBoxView final : public ViewOf<shown::TextField> {
 public:
  TextBoxView(shown::Control& box, Desk& desk, QWidget* parent)
      : ViewOf(box, *box.AsTextField(), desk), field_(new Field(parent)) {
    field_->Actions = ActionsOn(Its(), box.Form(), desk);
  }
  [[nodiscard]] QWidget* Widget() const override { return field_; }
  bool TakeWindowKey(const QKeyEvent& key) override { return field_->TakeEditingKey(key); }
  void Present() override {
    if (maxLength_ != Its().MaxLength()) {
      maxLength_ = Its().MaxLength();
      Fit(*field_, maxLength_);
    }
    if (field_->isReadOnly() != Its().Locked()) field_->setReadOnly(Its().Locked());
    ShowGround(*field_, Control());
    field_->ShowState({Control().Translated(Its().Text()), Its().SelStart(), Its().SelLength()});
  }

 private:
  Field* field_;
  int maxLength_ = -1;
};

}  // namespace

EditActions ActionsOn(shown::TextField& box, shown::Dialog& form, Desk& desk) {
  EditActions actions;
  actions.SetCaret = [&](int start, int length) { desk.Do([&] { return box.SetCaret(start, length); }); };
  actions.Paste = [&](const QString& text) { desk.Do([&] { return box.Paste(Given(text)); }); };
  actions.Type = [&](const QString& text) {
    for (const auto& key : KeysTyping(text)) desk.Press(key, form);
  };
  actions.Delete = [&] { desk.Press(Key::Named(keys::Delete), form); };
  return actions;
}

std::unique_ptr<ControlView> MakeTextBoxView(shown::Control& control, Desk& desk, QWidget* parent) {
  if (control.AsTextField()->MultiLine()) return std::make_unique<TextBoxView<PassiveLines>>(control, desk, parent);
  return std::make_unique<TextBoxView<PassiveLine>>(control, desk, parent);
}

}  // namespace orlin
