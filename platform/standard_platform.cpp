#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "bits/bits.h"
#include "catalogue/text_catalogue.h"
#include "cipher/ccrypt.h"
#include "clock/locale_clock.h"
#include "faultlog/fault_log.h"
#include "settings/registry_file_settings.h"
#include "store/data_list.h"
#include "store/drive_paths.h"
#include "store/file_database_engine.h"

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

std::optional<DataListEntries> ReadEntries(const std::optional<std::filesystem::path>& file) {
  return file ? std::optional(ReadDataList(*file)) : std::nullopt;
}

}  // namespace

Platform StandardPlatform(const StandardPlatformOptions& options) {
  Platform platform;
  platform.Host = options.Host;
  platform.Settings = MakeSettings(options.SettingsFile);
  platform.Bits = std::make_shared<Bits>();
  platform.Clock = MakeClock(options.Now);

  const auto drives = options.DrivesFolder.value_or(DefaultDrivesFolder());
  platform.Engine = std::make_shared<FileDatabaseEngine>(drives);

  platform.Components["LocalText.clsLocalText"] = [texts = ReadTexts(options.CatalogueFile),
                                                   &language = LanguageOf(options.Language.value_or("en"))] {
    return std::make_shared<TextCatalogue>(texts, language);
  };
  platform.Components["FaultObject.clsFaultObject"] =
      [faults = FaultLogOptions{options.Host, std::make_shared<FaultFile>(options.FaultFile), options.OnFaultLogged}] {
        return std::make_shared<FaultLog>(faults);
      };
  // Read here: a data list that is wrong is told now, not when the first account is opened.
  platform.Components["storeObj.clsDList"] = [places = DataListPlaces{ReadEntries(options.DataListFile), drives}] {
    return std::make_shared<DataList>(places);
  };
  platform.Components["Kesmit.Encryption.CCrypt"] = [] { return std::make_shared<CCrypt>(); };
  return platform;
}

}  // namespace orlin
