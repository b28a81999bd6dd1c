#pragma once

#include <memory>

#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "catalogue/text_catalogue.h"
#include "frame/dialog/dialog.h"
#include "frame/services/services.h"
#include "support/frame_fixture.h"
#include "support/temporary_folder.h"

namespace orlin::testing {

/// The stand-ins with a catalogue that fails for one text, and an operator made of code.
class BrokenCatalogueTest : public ::testing::Test {
 protected:
  BrokenCatalogueTest() {
    Options.Host = Host;
    Options.DrivesFolder = Folder.Path();
    Options.FaultFile = Folder.Path() / "Tolmar.err";
    Options.Now = "2025-03-31 14:07:09";
    Options.OnFaultLogged = [this](const LoggedFault& fault) {
      Faults.push_back(fault.Module + " " + fault.Procedure + " " + std::to_string(fault.Number));
    };
    Install();
  }
  ~BrokenCatalogueTest() override { UsePlatform({}); }

  /// Has the library use the stand-ins as the options make them.
  void Install() {
    Parts = StandardPlatform(Options);
    Parts.Components["LocalText.clsLocalText"] = [this] { return std::make_shared<Catalogue>(FailsFor); };
    UsePlatform(Parts);
  }

  TemporaryFolder Folder;
  std::shared_ptr<OperatorHost> Host = std::make_shared<OperatorHost>();
  int FailsFor = 0;
  Log Faults;
  StandardPlatformOptions Options;
  Platform Parts;

 private:
  class Catalogue : public TextCatalogue {
   public:
    explicit Catalogue(const int& failsFor) : failsFor_(failsFor) {}
    std::string GetLocalTextBASE(std::int16_t id) override {
      if (id == failsFor_) throw Failure(75);
      return TextCatalogue::GetLocalTextBASE(id);
    }

   private:
    const int& failsFor_;
  };
};

}  // namespace orlin::testing
