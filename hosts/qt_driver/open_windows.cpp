#include "window_system/open_windows.h"

#include <QApplication>
#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "OrlinCustomDialogs/hosts/qt/qt_host.h"

#include "qt_driver/pictures.h"
#include "qt_driver/scripted_windows.h"
#include "qt_driver/table_window.h"

namespace orlin {
namespace {

bool Names(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

/// The application of Qt, which wants the words of a command line for as long as it lives.
class Application {
 public:
  explicit Application(Screen screen)
      : count_(screen == Screen::Unseen && !Names("QT_QPA_PLATFORM") ? 3 : 1), application_(count_, words_.data()) {
    // A display name would stand behind the caption of each dialog, which has little room.
    QCoreApplication::setApplicationName(QStringLiteral("OrlinCustomDialogs"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
  }

 private:
  std::string name_ = "orlin-host";
  std::string option_ = "-platform";
  std::string unseen_ = "offscreen";
  std::array<char*, 4> words_ = {name_.data(), option_.data(), unseen_.data(), nullptr};
  int count_;
  QApplication application_;
};

class QtWindowSystem final : public WindowSystem {
 public:
  explicit QtWindowSystem(Screen screen) : application_(screen) {}

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
  Application application_;
};

}  // namespace

std::unique_ptr<WindowSystem> OpenWindows(Screen screen) {
  const bool canBeSeen = Names("QT_QPA_PLATFORM") || Names("DISPLAY") || Names("WAYLAND_DISPLAY");
  if (screen == Screen::Visible && !canBeSeen) throw std::runtime_error(kNoDisplay);
  return std::make_unique<QtWindowSystem>(screen);
}

}  // namespace orlin
