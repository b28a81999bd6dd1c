#include "qt/open_windows.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "qt/pictures.h"
#include "qt/qt_host.h"
#include "qt/scripted_windows.h"
#include "qt/table_window.h"

namespace orlin {
namespace {

/// The application of Qt, which wants the words of a command line for as long as it lives.
class Screen {
 public:
  Screen() : application_(count_, words_) {
    // A display name would stand behind the caption of each dialog, which has little room.
    QCoreApplication::setApplicationName(QStringLiteral("OrlinCustomDialogs"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
  }

 private:
  char name_[11] = "orlin-host";
  char* words_[2] = {name_, nullptr};
  int count_ = 1;
  QApplication application_;
};

class QtWindowSystem final : public WindowSystem {
 public:
  std::shared_ptr<DialogHost> Windows() override { return std::make_shared<QtHost>(); }
  ScriptedHost ScriptedWindows(std::vector<Action> script, Trace& trace, bool strict) override {
    auto host = std::make_shared<orlin::ScriptedWindows>(std::move(script), trace, strict);
    return {host, [host] { host->Finish(); }};
  }
  std::shared_ptr<DialogHost> Pictures(PictureOptions options, std::function<std::string()> name) override {
    return std::make_shared<PictureHost>(std::move(options), std::move(name));
  }
  void ShowTable(ParameterTable& table) override { TableWindow(table).Work(); }

 private:
  Screen screen_;
};

bool NamesDisplay(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

constexpr const char* kNoDisplay =
    "there is no display to open a window on: name an operator's script with --script FILE";

// Qt ends the process when a display that is named cannot be reached; that is told in one line as well.
void TellFatal(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    if (type == QtCriticalMsg) std::fprintf(stderr, "orlin-host: %s\n", qPrintable(text));
    return;
  }
  std::fprintf(stderr, "orlin-host: %s\n", kNoDisplay);
  std::_Exit(2);
}

}  // namespace

std::unique_ptr<WindowSystem> OpenWindows() {
  if (!NamesDisplay("QT_QPA_PLATFORM") && !NamesDisplay("DISPLAY") && !NamesDisplay("WAYLAND_DISPLAY")) {
    throw std::runtime_error(kNoDisplay);
  }
  qInstallMessageHandler(TellFatal);
  return std::make_unique<QtWindowSystem>();
}

}  // namespace orlin
