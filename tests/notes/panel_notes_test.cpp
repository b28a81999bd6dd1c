#include <string>

#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_call.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

constexpr const char* kOk = "click cmdOK";
const Strings kKey{"PanelGUID=P1", "NoteHeader=Service", "NoteTypeID=3"};

/// Notes on a store of their own, which starts without a file.
class PanelNotes : public ::testing::Test {
 protected:
  DialogRun Open(const std::string& script, const Strings& more = {}, const Strings& key = kKey) {
    auto arguments = key;
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Play("clsPanelNotes", arguments, script, Options);
  }

  /// Stores a text as the host does that holds it in memory.
  void Store(const std::string& text, const Strings& key = kKey) {
    EXPECT_EQ(Open(kOk, {"IsInMemory=true", "Content=\"" + text + "\""}, key).Result, 0);
  }

  Value Stored(const Strings& key = kKey) { return Open("close", {}, key).Argument("Content"); }

  const TemporaryFolder Drives;
  PlayOptions Options{.Drives = Drives.Path()};
};

TEST_F(PanelNotes, NotesAreReadExtendedAndStored) {
  Store("first");
  const auto run = Open(
      "dump\ntype txtNote \"two\\r\\n\"\nkey - PageUp\ntype txtNote \"lines\"\nclick cmdAddNote\ndump\nclick cmdOK");
  EXPECT_EQ(run.Fields("show", "caption")[0], Text(1378, "TITLE", "Service"));
  EXPECT_EQ(run.Focus(0), "txtNote");
  EXPECT_EQ(run.Control("txtPanelNotes", 0).at("text"), "first");
  EXPECT_EQ(run.Control("txtNote", 1).at("text"), "");
  EXPECT_EQ(run.Focus(1), "txtNote");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("Content"), "first\r\ntwo\r\nlines");
  EXPECT_EQ(Stored(), "first\r\ntwo\r\nlines");
}

TEST_F(PanelNotes, CancelKeepsTheTextForTheHostAndTheStoreAsItWas) {
  Store("first");
  for (const std::string end : {"click cmdCancel", "close"}) {
    const auto run = Open("type txtNote \"second\"\nclick cmdAddNote\n" + end);
    EXPECT_EQ(run.Result, 1);
    EXPECT_EQ(run.Argument("Content"), "first\r\nsecond");
    EXPECT_EQ(run.Argument("FirstLine"), Value());
  }
  EXPECT_EQ(Stored(), "first");
}

TEST_F(PanelNotes, EmptiedTextDeletesItsRow) {
  const Strings other{"PanelGUID=P2", "NoteHeader=Service", "NoteTypeID=3"};
  Store("x");
  Store("other", other);
  for (const bool hasRow : {true, false}) {
    const auto run = Open(hasRow ? "caret txtPanelNotes 0 9\nkey - Delete\nclick cmdOK" : kOk);
    EXPECT_EQ(run.Argument("Content"), "");
    EXPECT_EQ(run.Argument("FirstLine"), "") << "it passed";
  }
  EXPECT_EQ(Stored(other), "other");
}

TEST_F(PanelNotes, ANoteGoesOnALineOfItsOwnAndTheFirstLineEndsAtTheFirstLineEnd) {
  const struct {
    std::string Content, After, FirstLine;
  } cases[] = {{"", "n", "n"},       {R"(a\n)", "a\nn", "a\nn"},    {R"(a\r\n)", "a\r\nn", "a"},
               {"a", "a\r\nn", "a"}, {R"(a\r)", "a\r\r\nn", "a\r"}, {R"(\r\nb)", "\r\nb\r\nn", ""}};
  for (const auto& [content, after, firstLine] : cases) {
    const auto run = Open("caret txtPanelNotes 0 9\ntype txtNote \"n\"\nclick cmdAddNote\nclick cmdOK",
                          {"IsInMemory=true", "Content=\"" + content + "\""});
    EXPECT_EQ(run.Argument("Content"), after) << content;
    EXPECT_EQ(run.Argument("FirstLine"), firstLine) << content;
    EXPECT_TRUE(run.Events("fault").empty()) << "something was read beforehand";
  }
}

TEST_F(PanelNotes, TheLengthIsCountedInCharacters) {
  std::string content;
  for (int i = 0; i < 15500 - 3; ++i) content += "ü";
  const Strings inMemory{"IsInMemory=true", "Content=" + content};
  const auto fits = Open("type txtNote \"abc\"\nclick cmdAddNote\nclose", inMemory);
  EXPECT_EQ(fits.Argument("Content"), content + "\r\nabc") << "the line end is not counted beforehand";

  const auto run = Open("answer 1\ntype txtNote \"abcd\"\nclick cmdAddNote\ndump\nclose", inMemory);
  EXPECT_EQ(run.Argument("Content"), content);
  EXPECT_EQ(run.Control("txtNote").at("text"), "abcd");
  const auto message = run.Events("message").at(0);
  EXPECT_EQ((Json{message["text"], message["title"], message["flags"]}), (Json{Text(1376), Text(1377), 0}));
}

TEST_F(PanelNotes, DateAndTimeGoInFrontOfTheNote) {
  const auto run =
      Open("type txtNote \"abc\"\ncaret txtNote 1 2\nclick cmdDateTime\ndump\ntype txtNote \"x\"\ndump\nclose",
           {"IsInMemory=true"});
  const auto text = run.Control("txtNote", 0).at("text").get<std::string>();
  ASSERT_TRUE(text.ends_with(" - abc")) << text;
  EXPECT_NE(text.find("14:07:09"), std::string::npos) << text;
  EXPECT_EQ(run.Focus(0), "txtNote");
  EXPECT_EQ(run.Control("txtNote", 1).at("text"), text.substr(0, text.size() - 3) + "xabc");
}

TEST_F(PanelNotes, OtherKindsAreReadAndNeverWritten) {
  const Strings other{"PanelGUID=P1", "NoteHeader=Service", "NoteTypeID=2"};
  EXPECT_EQ(Open(kOk, {"IsInMemory=true", "Content=new"}, other).Argument("FirstLine"), "new");
  EXPECT_EQ(Open(kOk, {"IsInMemory=true"}).Result, 0) << "nor an empty text";
  EXPECT_TRUE(std::filesystem::is_empty(Drives.Path()));
  Store("kept");
  EXPECT_EQ(Open(kOk, {"IsInMemory=true", "Content=new"}, other).Argument("Content"), "new");
  EXPECT_EQ(Stored(other), "");
  EXPECT_EQ(Stored(), "kept");
}

TEST_F(PanelNotes, AnyKeyNamesItsOwnRowOnly) {
  const Strings headers{"x", R"(x' OR '1'='1)", "x'", R"([x] \"%_ \\ --)", "日本", ""};  // as arguments write them
  const auto key = [](const std::string& header) {
    return Strings{"PanelGUID=\"" + header + "\"", "NoteHeader=\"" + header + "\"", "NoteTypeID=3"};
  };
  for (const auto& header : headers) Store("of " + header, key(header));
  for (const auto& header : headers) {
    EXPECT_EQ(Open("caret txtPanelNotes 0 99\nkey - Delete\nclick cmdOK", {}, key(header)).Result, 0) << header;
    EXPECT_EQ(Stored(key(header)), "") << header;
    Store("again", key(header));
  }
  for (const auto& header : headers) EXPECT_EQ(Stored(key(header)), "again") << header;
}

TEST_F(PanelNotes, AMissingFileIsToldBeforeTheDialogShows) {
  const auto run = Open("answer 1\nclick cmdOK", {"Content=mine"});
  EXPECT_EQ(run.Result, failures::CannotOpenDatabase);
  EXPECT_TRUE(run.Events("show").empty());
  EXPECT_EQ(run.Fields("fault", "procedure"), (std::vector<Json>{"OpenSecureDB()", "Display()"}));
  EXPECT_EQ(run.Fields("fault", "shown"), (std::vector<Json>{false, true}));
  EXPECT_EQ(run.Fields("fault", "additional")[0], Text(1084, "DB_PATH", "C:\\accounts\\notes.db"));
  EXPECT_EQ(run.Argument("Content"), "mine");
}

TEST_F(PanelNotes, AStoreThatFailsAfterOkLeavesTheArgumentsAsTheyCame) {
  for (const auto& [dataList, result, additional] :
       {std::tuple{"[PanelNotes]\nDBTYPE=PAPER\n", failures::CannotOpenDatabase, Text(1082, "DB_PATH", "")},
        {"[Panels]\nDBTYPE=ACCESS\n", failures::InvalidCall, std::string()}}) {
    Options.DataList = dataList;
    const auto run = Open("caret txtPanelNotes 3 0\ntype txtPanelNotes \"x\"\nanswer 1\nclick cmdOK",
                          {"IsInMemory=true", "Content=old"});
    EXPECT_EQ(run.Result, result) << dataList;
    EXPECT_EQ(run.Argument("Content"), "old");
    EXPECT_EQ(run.Argument("FirstLine"), Value());
    EXPECT_EQ(run.Fields("fault", "additional"), (std::vector<Json>{additional, Failure(result).Description()}));
  }
}

}  // namespace
}  // namespace orlin::testing
