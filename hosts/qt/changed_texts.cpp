#include "qt/changed_texts.h"

#include <QMessageBox>
#include <algorithm>

#include "qt/local_text.h"
#include "qt/stand_over.h"

namespace orlin {
namespace {

constexpr std::int16_t kQuestion = 20100;

}  // namespace

void ChangedTexts::Remember(const shown::Dialog& dialog) {
  before_.clear();
  for (const auto* control : dialog.Controls()) {
    const auto* text = control->AsTextField();
    if (text != nullptr && text->MultiLine()) before_[text] = text->Text();
  }
}

bool ChangedTexts::Any() const {
  return std::any_of(before_.begin(), before_.end(),
                     [](const auto& entry) { return !entry.first->Locked() && entry.first->Text() != entry.second; });
}

bool MayBeLost(QWidget& window) {
  QMessageBox box(&window);
  StandOver(box, &window);
  box.setTextFormat(Qt::PlainText);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(window.windowTitle());
  const auto question = LocalText(kQuestion);
  // A catalogue may lack the words; a text is not lost for that.
  box.setText(question.isEmpty() ? window.windowTitle() : question);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  LabelButtons(box);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace orlin
