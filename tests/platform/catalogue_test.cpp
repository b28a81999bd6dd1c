#include <algorithm>
#include <functional>

#include "catalogue/catalogue_file.h"
#include "catalogue/text_catalogue.h"
#include "platform/platform_fixture.h"

namespace orlin::testing {
namespace {

using CatalogueFile = FolderTest;

TEST_F(CatalogueFile, HoldsNumbersAndTexts) {
  const std::string characters = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x92";
  Write("texts.tsv", "\xEF\xBB\xBF# comment\r\n\r\n \t\n7\tSeven\r\n1\ta\\tb\\nc\\rd\\\\e\n32767\t" + characters +
                         "\n3\ttwo\ttabs # no comment\n4\t\n5\tno line end");
  EXPECT_EQ(ReadCatalogueFile("texts.tsv"), (TextTable{{1, "a\tb\nc\rd\\e"},
                                                       {3, "two\ttabs # no comment"},
                                                       {4, ""},
                                                       {5, "no line end"},
                                                       {7, "Seven"},
                                                       {32767, characters}}));
}

TEST_F(CatalogueFile, TellsFileAndLineOfTheFirstError) {
  const LinesByError cases = {
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
      Write("texts.tsv", "1\tfirst\n" + line + "\n6\t\\x\n");
      EXPECT_EQ(ErrorOf([] { (void)ReadCatalogueFile("texts.tsv"); }), "texts.tsv:2: " + error) << line;
    }
  }
}

TEST_F(CatalogueFile, HasToBeReadable) {
  Write("little.tsv", "\xFF\xFE");
  Write("big.tsv", "\xFE\xFF");
  for (const auto& [name, error] :
       {std::pair("missing.tsv", " cannot be read: No such file or directory"),
        std::pair(".", " cannot be read: Is a directory"), std::pair("little.tsv", " is in UTF-16; save it as UTF-8"),
        std::pair("big.tsv", " is in UTF-16; save it as UTF-8")}) {
    EXPECT_EQ(ErrorOf([&file = name] { (void)ReadCatalogueFile(file); }), std::string(name) + error);
  }
}

TEST(TextCatalogue, ReplacesTextByText) {
  TextCatalogue catalogue(std::make_shared<const TextTable>(TextTable{{101, "Gut"}, {262, ""}, {9, "Neun"}}));
  const std::map<std::int16_t, std::string> cases = {{101, "Gut"}, {262, ""}, {9, "Neun"}, {119, "Cancel"}, {-1, ""},
                                                     {0, ""},      {100, ""}, {102, ""},   {32767, ""}};
  for (const auto& [number, text] : cases) EXPECT_EQ(catalogue.GetLocalTextBASE(number), text) << number;
}

TEST(TextCatalogue, SpeaksTheLanguageAndFallsBackTextByText) {
  const CompiledText other[] = {{101, "Other"}};
  TextCatalogue catalogue(std::make_shared<const TextTable>(TextTable{{262, "Replaced"}}), {"xx", other});
  const std::map<std::int16_t, std::string> cases = {{101, "Other"}, {119, "Cancel"}, {262, "Replaced"}, {100, ""}};
  for (const auto& [number, text] : cases) EXPECT_EQ(catalogue.GetLocalTextBASE(number), text) << number;
  EXPECT_EQ(TextCatalogue(nullptr, LanguageOf("de")).GetLocalTextBASE(119), "Abbrechen");
}

TEST(LanguageOf, TakesTheNamesOfLocales) {
  const std::map<std::string, const char*> cases = {
      {"de", "de"}, {"de_DE.UTF-8", "de"}, {"de-AT", "de"}, {"DE", "de"}, {"de@euro", "de"}, {"de.UTF-8", "de"},
      {"en", "en"}, {"en_US.UTF-8", "en"}, {"C", "en"},     {"", "en"},   {"C.UTF-8", "en"}, {"POSIX", "en"},
      {"xx", "en"}, {"deu", "en"},         {"d", "en"},     {".", "en"},  {"_DE", "en"}};
  for (const auto& [name, language] : cases) EXPECT_EQ(LanguageOf(name).Name, language) << name;
}

TEST(Languages, HoldTheirTextsInOrder) {
  for (const auto& language : Languages()) {
    EXPECT_FALSE(language.Texts.empty()) << language.Name;
    EXPECT_TRUE(std::ranges::is_sorted(language.Texts, std::less_equal(), &CompiledText::Number)) << language.Name;
    for (const auto& [number, text] : language.Texts) EXPECT_EQ(language.Find(number), text);
  }
}

}  // namespace
}  // namespace orlin::testing
