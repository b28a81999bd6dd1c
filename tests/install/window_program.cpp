#include <QApplication>
#include <QTimer>
#include <memory>

#include "OrlinCustomDialogs/hosts/qt/qt_host.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/zones.h"

// A window opens, and its close box cancels the call.
int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  orlin::StandardPlatformOptions options;
  options.Host = std::make_shared<orlin::QtHost>();
  orlin::UsePlatform(orlin::StandardPlatform(options));

  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  orlin::Value code{"4000"};
  return orlin::clsZoneFunctionsWillow().Display(5, code) == 1 && code == orlin::Value("4000") ? 0 : 1;
}
