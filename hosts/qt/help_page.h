#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

namespace orlin {

/// What docs/parameters.md tells about the editor with that dialog, as Markdown; empty where it tells nothing.
[[nodiscard]] QString HelpPageOf(std::string_view dialog);

/// Shows a page over a window until Escape.
void ShowHelpPage(const QString& page, QWidget& over);

}  // namespace orlin
