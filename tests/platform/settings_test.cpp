#include "files/text_file.h"
#include "settings/registry_file_settings.h"
#include "standard_platform.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

constexpr auto kHive = SettingsStore::Hive::LocalMachine;
constexpr const char* kSetup = "Software\\Varnek\\Tolmar\\Setup";

/// A value of a key, its type first: "text:0", "other:"; "no key" and "no value" where there is none.
std::string Lookup(SettingsStore& store, const std::string& subKey, const std::string& name) {
  const auto key = store.RegOpenKeyA(kHive, subKey);
  if (!key) return "no key";
  const auto setting = store.RegQueryValueExA(*key, name);
  if (!setting) return "no value";
  return (setting->type == SettingsStore::Type::String ? "text:" : "other:") + setting->Bytes;
}

using Settings = FolderTest;

TEST_F(Settings, AreBuiltInUntilAFileReplacesThem) {
  RegistryFileSettings builtIn;
  EXPECT_EQ(Lookup(builtIn, kSetup, "WarningLevel"), "text:0");
  EXPECT_EQ(Lookup(builtIn, "Software\\Varnek\\Tolmar\\Installation", "APPLICATION_TYPE"), "text:0");
  EXPECT_EQ(Lookup(builtIn, kSetup, "Password"), "no value");
  Folder.Write("setup.reg", "");
  RegistryFileSettings empty("setup.reg");
  EXPECT_EQ(Lookup(empty, kSetup, "WarningLevel"), "no key");
}

TEST_F(Settings, AreReadInRegistryExportFormat) {
  Folder.Write("setup.reg", R"(Windows Registry Editor Version 5.00

; a comment
[HKEY_LOCAL_MACHINE\Software\Varnek\Tolmar\Setup] ; a comment
"WarningLevel"="3"
 "Path" = "C:\\a\\0 \"b\" ; c" ; d
"a\\b"=""
"Zero"="ab\0cd"
"Number"=dword:0000000a
"None"=hex:
"Binary"=hex:01,fF
"Long"=hex(2):01,\
  02,\ ; more
  03
@="nameless"
"Twice"="1"
[HKEY_CURRENT_USER\Software\Other]
"User"="1"
[HKEY_LOCAL_MACHINE\SOFTWARE\varnek\tolmar\setup]
"twice"="2")"
                            "\r\n\"Bytes\"=\"\xE4\"");
  RegistryFileSettings settings("setup.reg");
  const std::pair<const char*, const char*> cases[] = {
      {"WarningLevel", "text:3"}, {"WARNINGLEVEL", "text:3"}, {"Path", "text:C:\\a\\0 \"b\" ; c"},
      {"Twice", "text:2"},        {"a\\b", "text:"},          {"Bytes", "text:\xE4"},
      {"", "text:nameless"},      {"User", "no value"},       {"Number", "other:"},
      {"None", "other:"},         {"Binary", "other:"},       {"Long", "other:"}};
  for (const auto& [name, value] : cases) EXPECT_EQ(Lookup(settings, kSetup, name), value) << name;
  EXPECT_EQ(Lookup(settings, kSetup, "Zero"), std::string("text:ab\0cd", 10));
  EXPECT_EQ(Lookup(settings, "SOFTWARE\\VARNEK\\TOLMAR\\SETUP", "Twice"), "text:2");
  EXPECT_EQ(Lookup(settings, "Software\\Other", "User"), "no key");
}

TEST_F(Settings, TellFileAndLineOfTheFirstError) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"the ] of the key is missing", {"[HKEY_LOCAL_MACHINE\\a"}},
      {"a key has to begin with HKEY_LOCAL_MACHINE or another HKEY_ name", {"[Software]", "[-HKEY_LOCAL_MACHINE\\a]"}},
      {"nothing but a comment may follow here",
       {"[HKEY_LOCAL_MACHINE\\a] x", "\"a\"=\"b\" c", "\"a\"=dword:1g", "\"a\"=hex:00,\\ 01"}},
      {"a [key] or \"name\"=value has to stand here", {"WarningLevel=0", "Windows Registry Editor Version 5.00"}},
      {"the = behind the name is missing", {"\"a\""}},
      {"the closing \" is missing", {"\"a", "\"a\"=\"b"}},
      {"an unknown escape; a backslash stands before another backslash, \" or 0", {"\"a\"=\"b\\", "\"a\"=\"b\\n\""}},
      {"a \"text\", dword: or hex: has to stand behind the =", {"\"a\"=", "\"a\"=0", "\"a\"=-"}},
      {"this is no hexadecimal number of the right length",
       {"\"a\"=dword:", "\"a\"=dword:123456789", "\"a\"=hex(x):00", "\"a\"=hex:0", "\"a\"=hex:000", "\"a\"=hex:00,"}},
      {"the : behind hex is missing", {"\"a\"=hex"}},
      {"the ) behind hex( is missing", {"\"a\"=hex(2"}},
      {"the line that the \\ announces is missing", {"\"a\"=hex:00,\\"}}};
  const auto errorIn = [this](const std::string& content) {
    Folder.Write("setup.reg", content);
    return ErrorOf<PlatformError>([] { return RegistryFileSettings("setup.reg").RegOpenKeyA(kHive, ""); });
  };
  for (const auto& [error, lines] : cases) {
    for (const auto& line : lines) {
      EXPECT_EQ(errorIn("[HKEY_LOCAL_MACHINE\\x]\r\n" + line), std::string("setup.reg:2: ") + error) << line;
    }
  }
  EXPECT_EQ(errorIn("\"a\"=\"b\"\n"), "setup.reg:1: a [key] has to stand before the first value");
}

TEST_F(Settings, AreReadWithTheOtherFilesWhenThePlatformIsMade) {
  StandardPlatformOptions options;
  options.SettingsFile = Folder.Write("setup.reg", "[HKEY_LOCAL_MACHINE\\a]\n");
  options.CatalogueFile = Folder.Write("texts.tsv", "101\tGut\n");
  const auto platform = StandardPlatform(options);
  for (const char* file : {"setup.reg", "texts.tsv"}) std::filesystem::remove(file);
  EXPECT_EQ(Lookup(*platform.Settings, "a", ""), "no value");
  const auto catalogue = platform.Components.at("LocalText.clsLocalText")();
  EXPECT_EQ(std::dynamic_pointer_cast<LocalTextComponent>(catalogue)->GetLocalTextBASE(101), "Gut");
}

TEST_F(Settings, KeepSeveralKeysOpenUntilTheyAreClosed) {
  RegistryFileSettings settings;
  const auto first = settings.RegOpenKeyA(kHive, kSetup).value();
  const auto second = settings.RegOpenKeyA(kHive, kSetup).value();
  settings.RegCloseKey(first);
  settings.RegCloseKey(first);
  EXPECT_FALSE(settings.RegQueryValueExA(first, "WarningLevel"));
  EXPECT_TRUE(settings.RegQueryValueExA(second, "WarningLevel"));
}

}  // namespace
}  // namespace orlin::testing
