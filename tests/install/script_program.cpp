#include <iostream>
#include <memory>

#include "OrlinCustomDialogs/hosts/script/script_host.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/zones.h"

// An operator made of text edits a parameter, with the stand-ins around the library.
int main() {
  orlin::Trace trace(std::cout);
  orlin::StandardPlatformOptions options;
  options.Host =
      std::make_shared<orlin::ScriptHost>(orlin::ParseScript("select cmbDigit(0) 1\nclick cmdOK"), trace, true);
  orlin::UsePlatform(orlin::StandardPlatform(options));

  orlin::Value code{"4000"};
  const auto result = orlin::clsZoneFunctionsWillow().Display(5, code);
  return result == 0 && code == orlin::Value("2111") ? 0 : 1;
}
