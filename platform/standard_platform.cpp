#include "standard_platform.h"

#include "bits/bits.h"
#include "catalogue/text_catalogue.h"
#include "clock/locale_clock.h"
#include "settings/registry_file_settings.h"
#include "store/data_list.h"

namespace orlin {
namespace {

std::shared_ptr<SettingsStore> MakeSettings(const std::optional<std::filesystem::path>& file) {
  if (!file) return std::make_shared<RegistryFileSettings>();
  return std::make_shared<RegistryFileSettings>(*file);
}

std::shared_ptr<Clock> MakeClock(const std::optional<std::string>& now) {
  if (!now) return std::make_shared<LocaleClock>();
  const auto moment = ParseMoment(*now);
  if (!moment) throw PlatformError("\"" + *now + "\" is no date and time of the form YYYY-MM-DD HH:MM:SS");
  return std::make_shared<LocaleClock>(*moment);
}

std::shared_ptr<const TextTable> ReadTexts(const std::optional<std::filesystem::path>& file) {
  return file ? std::make_shared<const TextTable>(ReadCatalogueFile(*file)) : nullptr;
}

}  // namespace

Platform StandardPlatform(const StandardPlatformOptions& options) {
  Platform platform;
  platform.Host = options.Host;
  platform.Settings = MakeSettings(options.SettingsFile);
  platform.Bits = std::make_shared<Bits>();
  platform.Clock = MakeClock(options.Now);

  // A data list that cannot be read is told now, not when the first account is opened.
  if (options.DataListFile) TextFile{*options.DataListFile};

  platform.Components["LocalText.clsLocalText"] = [texts = ReadTexts(options.CatalogueFile)] {
    return std::make_shared<TextCatalogue>(texts);
  };
  platform.Components["FaultObject.clsFaultObject"] =
      [faults = FaultLogOptions{options.Host, std::make_shared<FaultFile>(options.FaultFile), options.OnFaultLogged}] {
        return std::make_shared<FaultLog>(faults);
      };
  platform.Components["storeObj.clsDList"] = [places = DataListPlaces{options.DataListFile, options.DrivesFolder}] {
    return std::make_shared<DataList>(places);
  };
  return platform;
}

}  // namespace orlin
