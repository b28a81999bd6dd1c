#include "qt/texts.h"

#include <QStringList>

#include "OrlinCustomDialogs/host/keys.h"

namespace orlin {

QString Shown(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string Given(const QString& text) { return text.toStdString(); }

int UnitsBefore(const QString& text, int characters) {
  int units = 0;
  for (; characters > 0 && units < text.size(); --characters) units += text.at(units).isHighSurrogate() ? 2 : 1;
  return units;
}

int CharactersBefore(const QString& text, int units) {
  int characters = 0;
  for (int at = 0; at < units && at < text.size(); ++characters) at += text.at(at).isHighSurrogate() ? 2 : 1;
  return characters;
}

QString SpokenCaption(std::string_view caption) {
  auto spoken = Shown(PlainCaption(caption)).simplified();
  if (spoken.endsWith(u':')) spoken.chop(1);
  return spoken;
}

QString Wrapped(const QString& text, const QFontMetrics& metrics, int width) {
  // Most captions are short; measuring a text costs more than anything else here.
  if (text.size() * metrics.averageCharWidth() * 5 / 4 < width || metrics.horizontalAdvance(text) <= width) return text;
  const int blank = metrics.horizontalAdvance(u' ');
  QStringList lines;
  for (const auto& paragraph : text.split(u'\n')) {
    QString line;
    int lineWidth = 0;
    for (const auto& word : paragraph.split(u' ')) {
      const int wordWidth = metrics.horizontalAdvance(word);
      if (!line.isEmpty() && lineWidth + blank + wordWidth > width) {
        lines += line;
        line = word;
        lineWidth = wordWidth;
      } else {
        lineWidth += wordWidth + (line.isEmpty() ? 0 : blank);
        line += line.isEmpty() ? word : u' ' + word;
      }
    }
    lines += line;
  }
  return lines.join(u'\n');
}

}  // namespace orlin
