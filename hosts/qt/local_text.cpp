#include "qt/local_text.h"

#include <QMenu>
#include <QPushButton>

#include "OrlinCustomDialogs/host/texts.h"

#include "qt/texts.h"

namespace orlin {

QString LocalText(std::int16_t number, std::string_view otherwise) { return Shown(CatalogueText(number, otherwise)); }

void LabelButtons(const QMessageBox& box) {
  constexpr struct {
    QMessageBox::StandardButton Button;
    std::int16_t Text;
    std::string_view InEnglish;
  } buttons[] = {{QMessageBox::Ok, texts::Ok, "OK"},
                 {QMessageBox::Cancel, texts::Cancel, "Cancel"},
                 {QMessageBox::Yes, texts::Yes, "&Yes"},
                 {QMessageBox::No, texts::No, "&No"}};
  for (const auto& [which, text, inEnglish] : buttons) {
    if (auto* button = box.button(which)) button->setText(LocalText(text, inEnglish));
  }
}

void PopUpMenu(QWidget& field, const MenuState& state, const MenuActions& actions) {
  auto* menu = new QMenu(&field);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](std::int16_t text, std::string_view inEnglish, const std::function<void()>& action, bool can) {
    menu->addAction(LocalText(text, inEnglish), &field, action)->setEnabled(can);
  };
  add(texts::Cut, "Cu&t", actions.Cut, state.Marked && !state.ReadOnly);
  add(texts::Copy, "&Copy", actions.Copy, state.Marked);
  add(texts::Paste, "&Paste", actions.Paste, !state.ReadOnly);
  menu->addSeparator();
  add(texts::SelectAll, "Select &All", actions.SelectAll, true);
  menu->popup(state.At);
}

}  // namespace orlin
