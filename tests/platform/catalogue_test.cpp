#include <algorithm>
#include <functional>
#include <map>

#include "catalogue/catalogue_file.h"
#include "catalogue/text_catalogue.h"
#include "files/text_file.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

using CatalogueFile = FolderTest;

std::string ErrorIn(const char* file) {
  return ErrorOf<PlatformError>([&] { return ReadCatalogueFile(file); });
}

TEST_F(CatalogueFile, HoldsNumbersAndTexts) {
  const std::string characters = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x92";
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
  EXPECT_EQ(TextCatalogue(nullptr, LanguageOf("de")).GetLocalTextBASE(119), "Abbrechen");
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

}  // namespace
}  // namespace orlin::testing
