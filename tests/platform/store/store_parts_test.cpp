#include "OrlinCustomDialogs/failure.h"

#include "cipher/ccrypt.h"
#include "store/drive_paths.h"
#include "store/query.h"
#include "store/utf16.h"
#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

TEST(DrivePath, ALetterIsAFolderThatNothingLeaves) {
  const std::pair<const char*, std::optional<std::filesystem::path>> cases[] = {
      {"C:\\accounts\\notes.db", "/d/c/accounts/notes.db"},
      {"x:a/b", "/d/x/a/b"},
      {"C:", "/d/c"},
      {"C:\\.\\\\a", "/d/c/a"},
      {"C:\\..\\x", {}},
      {"C:\\a/../../x", {}},
      {"1:\\a", {}},
      {"/etc/passwd", {}},
      {"", {}}};
  for (const auto& [path, file] : cases) EXPECT_EQ(FileAt(path, "/d"), file) << path;
}

TEST(StoreQuery, ValuesAreTakenOutWhateverIsInThem) {
  const auto query = ParseQuery(
      "select * from [Panel Notes] WHERE [a] = 'x'' OR ''1''=''1' AND [b c] = '[]%?\";--' AND [n] = -3 and [e] = ''");
  EXPECT_EQ(query.Table, "Panel Notes");
  ASSERT_EQ(query.Conditions.size(), 4U);
  EXPECT_EQ(query.Conditions[0].Wanted, Value("x' OR '1'='1"));
  EXPECT_EQ(query.Conditions[1].Column, "b c");
  EXPECT_EQ(query.Conditions[1].Wanted, Value("[]%?\";--"));
  EXPECT_EQ(query.Conditions[2].Wanted, Value(std::int32_t{-3}));
  EXPECT_EQ(query.Conditions[3].Wanted, Value(""));
  for (const auto* wrong :
       {"", "SELECT * FROM [a", "SELECT * FROM []", "SELECT * FROM [a] WHERE [b] = 'x' OR [c] = 'y'",
        "DELETE * FROM [a]", "SELECT * FROM [a] WHERE [b] = 'x",
        "SELECT * FROM [a] WHERE [b] =", "SELECT * FROM [a]; x", "SELECT * FROM [a] WHERE [b] = 99999999999"}) {
    EXPECT_EQ(FailureOf([&] { return ParseQuery(wrong); }), failures::InvalidCall) << wrong;
  }
}

TEST(Utf16, KeepsEveryCharacterAndRefusesWhatIsNone) {
  for (const std::string text : {"", "a\r\n", "ü€", "😀 \U0010FFFF", "\x7f\xc2\x80"}) {
    EXPECT_EQ(Utf8From(Utf16From(text)), text);
  }
  EXPECT_EQ(Utf16From("😀"), u"\xD83D\xDE00");
  EXPECT_EQ(Utf8From(u"\xD83D"), "\xEF\xBF\xBD");
  for (const std::string wrong : {"\xff", "\xc3", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xe2\x28\xa1"}) {
    EXPECT_EQ(FailureOf([&] { return Utf16From(wrong); }), failures::DatabaseCallFailed) << wrong;
  }
}

TEST(CCrypt, GivesBackWhatItHidAndFindsADamagedText) {
  for (const std::string& plain :
       {std::string(), std::string("s3cret"), std::string("ü\0\xff", 4), std::string(300, 'x')}) {
    const auto text = CCrypt::EncryptString(plain);
    EXPECT_EQ(CCrypt().DecryptString(text), plain);
    EXPECT_NE(CCrypt::EncryptString(plain), text);
    EXPECT_EQ(text.find_first_not_of("0123456789abcdef:"), std::string::npos);
  }
  const auto text = CCrypt::EncryptString("s3cret");
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto damaged = text;
    damaged[i] = damaged[i] == '7' ? '8' : '7';
    EXPECT_EQ(FailureOf([&] { return CCrypt().DecryptString(damaged); }), failures::InvalidCall) << i;
    EXPECT_EQ(FailureOf([&] { return CCrypt().DecryptString(text.substr(0, i)); }), failures::InvalidCall) << i;
  }
}

}  // namespace
}  // namespace orlin::testing
