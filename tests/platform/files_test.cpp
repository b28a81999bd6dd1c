#include <algorithm>
#include <functional>
#include <memory>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "catalogue/catalogue_file.h"
#include "catalogue/text_catalogue.h"
#include "files/text_file.h"
#include "settings/registry_file_settings.h"
#include "store/data_list.h"
#include "store/data_list_file.h"
#include "support/temporary_folder.h"

// The files that a user may name: texts, settings, data lists.

namespace orlin::testing {
namespace {

using CatalogueFile = FolderTest;

std::string ErrorIn(const char* file) {
  return ErrorOf<PlatformError>([&] { return ReadCatalogueFile(file); });
}

TEST_F(CatalogueFile, HoldsNumbersAndTexts) {
  const std::string characters = "\xC3\xA4\xE2\x82\xAC\xF4\x8F\xBF\xBF";
  Folder.Write("texts.tsv", "\xEF\xBB\xBF# comment\r\n\r\n \t\n7\tSeven\r\n1\ta\\tb\\nc\\rd\\\\e\n32767\t" +
                                characters + "\n3\ttwo\ttabs # no comment\n4\t\n5\tno line end");
  EXPECT_EQ(ReadCatalogueFile("texts.tsv"), (TextTable{{1, "a\tb\nc\rd\\e"},
                                                       {3, "two\ttabs # no comment"},
                                                       {4, ""},
                                                       {5, "no line end"},
                                                       {7, "Seven"},
                                                       {32767, characters}}));
}

TEST_F(CatalogueFile, TellsFileAndLineOfTheFirstError) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"a tab has to stand between number and text", {"5 five"}},
      {"a number from 1 to 32767 has to stand before the tab",
       {"\tfive", "0\tx", "-5\tx", "+5\tx", "32768\tx", "99999999999\tx", "5 \tx", "5x\tx"}},
      {"the number 1 is there already", {"1\tx", "01\tx"}},
      {"an unknown escape; a backslash stands before t, n, r or another backslash", {"5\t\\x", "5\tend\\"}},
      {"these bytes are no UTF-8",
       {"5\t\xE4", "5\t\x80", "5\t\xC3", "5\t\xC3 ", "5\t\xC0\x80", "5\t\xE0\x80\x80", "5\t\xED\xA0\x80",
        "5\t\xF0\x80\x80\x80", "5\t\xF4\x90\x80\x80", "5\t\xF5\x80\x80\x80", "# \xE4"}}};
  for (const auto& [error, lines] : cases) {
    for (const auto& line : lines) {
      Folder.Write("texts.tsv", "1\tfirst\n" + line + "\n6\t\\x\n");
      EXPECT_EQ(ErrorIn("texts.tsv"), std::string("texts.tsv:2: ") + error) << line;
    }
  }
}

TEST_F(CatalogueFile, HasToBeReadable) {
  Folder.Write("little.tsv", "\xFF\xFE");
  Folder.Write("big.tsv", "\xFE\xFF");
  EXPECT_EQ(ErrorIn("missing.tsv"), "missing.tsv cannot be read: No such file or directory");
  EXPECT_EQ(ErrorIn("."), ". cannot be read: Is a directory");
  for (const std::string name : {"little.tsv", "big.tsv"}) {
    EXPECT_EQ(ErrorIn(name.c_str()), name + " is in UTF-16; save it as UTF-8");
  }
}

TEST(TextCatalogue, ReplacesTextByTextAndFallsBackTextByText) {
  const auto replaced = std::make_shared<const TextTable>(TextTable{{101, "Gut"}, {262, ""}, {9, "Neun"}});
  const CompiledText other[] = {{101, "Other"}, {120, "Only there"}};
  TextCatalogue english(replaced), another(replaced, {"xx", other});
  const std::pair<std::int16_t, const char*> cases[] = {{101, "Gut"}, {262, ""}, {9, "Neun"}, {119, "Cancel"}, {-1, ""},
                                                        {0, ""},      {100, ""}, {102, ""},   {32767, ""}};
  for (const auto& [number, text] : cases) {
    EXPECT_EQ(english.GetLocalTextBASE(number), text) << number;
    EXPECT_EQ(another.GetLocalTextBASE(number), text) << number;
  }
  EXPECT_EQ(another.GetLocalTextBASE(120), "Only there");
  TextCatalogue german(replaced, LanguageOf("de"));
  EXPECT_EQ(german.GetLocalTextBASE(119), "Abbrechen");
  EXPECT_EQ(german.GetOtherLanguagesBASE(119), std::vector<std::string>{"Cancel"});
  for (const auto replacedOrUnknown : std::initializer_list<std::int16_t>{101, 100})
    EXPECT_TRUE(german.GetOtherLanguagesBASE(replacedOrUnknown).empty());
}

TEST(LanguageOf, TakesTheNamesOfLocales) {
  const std::pair<const char*, std::vector<const char*>> cases[] = {
      {"de", {"de", "de_DE.UTF-8", "de-AT", "DE", "de@euro", "de.UTF-8"}},
      {"en", {"en", "en_US.UTF-8", "C", "", "C.UTF-8", "POSIX", "xx", "deu", "d", ".", "_DE"}}};
  for (const auto& [language, names] : cases) {
    for (const auto* name : names) EXPECT_EQ(LanguageOf(name).Name, language) << name;
  }
}

TEST(Languages, HoldTheirTextsInOrder) {
  for (const auto& language : Languages()) {
    EXPECT_TRUE(std::ranges::is_sorted(language.Texts, std::less_equal(), &CompiledText::Number)) << language.Name;
    for (const auto& [number, text] : language.Texts) EXPECT_EQ(language.Find(number), text);
  }
}

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

using DataListFile = FolderTest;

TEST_F(DataListFile, EntriesAreFoundByNameInAnyCase) {
  Folder.Write("list",
               "; accounts\n# here\r\n[panelnotes]\ndbtype = Access\nDBDRV=c\nDBDIR=\\a b\\\nDBNAME=n.db\n\n"
               "[Other]\nDBTYPE=ODBC\nCONNECT=DSN=x;Option==1\n");
  const auto entries = ReadDataList("list");
  const auto* notes = FindEntry(entries, "PanelNotes");
  ASSERT_NE(notes, nullptr);
  EXPECT_EQ(std::tie(notes->DBTYPE, notes->DBDRV, notes->DBDIR, notes->DBNAME),
            std::tuple("Access", "c", "\\a b\\", "n.db"));
  EXPECT_EQ(FindEntry(entries, "OTHER")->CONNECT, "DSN=x;Option==1");
  EXPECT_EQ(FindEntry(entries, "Panel"), nullptr);
}

TEST_F(DataListFile, AWrongLineIsToldWithItsNumber) {
  for (const auto* text :
       {"\nDBTYPE=ACCESS\n", "[a]\nDBTYPE\n", "[a]\nPASSWORD=x\n", "[a]\n[]\n", "[a]\n[b\n", "[a]\n[A]\n"}) {
    Folder.Write("list", text);
    const auto error = ErrorOf<PlatformError>([] { return ReadDataList("list"); });
    EXPECT_TRUE(error.starts_with("list:2: ")) << text << error;
  }
}

TEST_F(DataListFile, TheSettingsMayNameIt) {
  std::filesystem::create_directory("c");
  Folder.Write("c/local", "[Notes]\nDBTYPE=local\n");
  Folder.Write("network", "[Notes]\nDBTYPE=network\n");
  // The built-in list has no such entry.
  for (const auto& [network, local, type] :
       {std::tuple("network", "C:\\local", "network"), {"missing", "C:\\local", "local"}, {"", "C:\\missing", ""}}) {
    DataList list({{}, Folder.Path()});
    list.SetNetWorkDListPath(network);
    list.SetLocalDListPath(local);
    EXPECT_EQ(list.DgetDLIST("notes", 0), *type == '\0' ? failures::InvalidCall : 0) << network;
    EXPECT_EQ(list.DBTYPE(), type);
  }
}

}  // namespace
}  // namespace orlin::testing
