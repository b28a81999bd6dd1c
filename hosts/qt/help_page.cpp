#include "qt/help_page.h"

#include <QDialog>
#include <QFile>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "qt/stand_over.h"
#include "qt/texts.h"

// A resource of a static library is there only when it has been asked for, outside of all namespaces.
static void MakePageAvailable() { Q_INIT_RESOURCE(orlin_help); }

namespace orlin {
namespace {

constexpr int kColumns = 100;
constexpr int kLines = 30;

}  // namespace

QString HelpPageOf(std::string_view dialog) {
  MakePageAvailable();
  QFile file(QStringLiteral(":/OrlinCustomDialogs/parameters.md"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const auto name = u'`' + Shown(dialog) + u'`';
  const auto all = QString::fromUtf8(file.readAll());
  const auto at = all.indexOf(name);
  if (at < 0) return {};
  const auto begin = all.lastIndexOf(QStringLiteral("\n### "), at);
  const auto end = all.indexOf(QStringLiteral("\n##"), at);
  return all.mid(begin, end - begin).trimmed();
}

void ShowHelpPage(const QString& page, QWidget& over) {
  QDialog window(&over);
  StandOver(window, &over);
  window.setWindowTitle(over.windowTitle());
  auto* text = new QTextBrowser(&window);
  text->setMarkdown(page);
  text->setOpenLinks(false);
  text->setAccessibleName(window.windowTitle());
  const auto metrics = text->fontMetrics();
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(text);
  const QSize wanted(metrics.averageCharWidth() * kColumns, metrics.lineSpacing() * kLines);
  window.resize(wanted.boundedTo(over.screen()->availableGeometry().size()));
  window.exec();
}

}  // namespace orlin
