#include <string>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

constexpr const char* kOk = "click cmdOK";
constexpr int kMost = 15500;

std::string Times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// Notes on a store of their own, which starts without a file.
class PanelNotes : public ::testing::Test {
 protected:
  DialogRun Open(const std::string& script, const std::vector<std::string>& more = {},
                 const std::vector<std::string>& key = {"PanelGUID=P1", "NoteHeader=Service", "NoteTypeID=3"}) {
    auto arguments = key;
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Play("clsPanelNotes", arguments, script, Options);
  }

  /// Stores a text as the host does that holds it in memory.
  void Store(const std::string& text,
             const std::vector<std::string>& key = {"PanelGUID=P1", "NoteHeader=Service", "NoteTypeID=3"}) {
    EXPECT_EQ(Open(kOk, {"IsInMemory=true", "Content=\"" + text + "\""}, key).Result, 0);
  }

  Value Stored(const std::vector<std::string>& key = {"PanelGUID=P1", "NoteHeader=Service", "NoteTypeID=3"}) {
    return Open("close", {}, key).Argument("Content");
  }

  const TemporaryFolder Drives;
  PlayOptions Options = [this] {
    PlayOptions options;
    options.Drives = Drives.Path();
    return options;
  }();
};

TEST_F(PanelNotes, NotesAreReadExtendedAndStored) {
  Store("first");
  const auto run = Open(R"(dump
type txtNote "second"
click cmdAddNote
dump
click cmdOK)");
  EXPECT_EQ(run.Fields("show", "caption")[0], Text(1378, "TITLE", "Service"));
  EXPECT_EQ(run.Focus(0), "txtNote");
  EXPECT_EQ(run.Control("txtPanelNotes", 0).at("text"), "first");
  EXPECT_EQ(run.Control("txtPanelNotes", 1).at("text"), "first\r\nsecond");
  EXPECT_EQ(run.Control("txtNote", 1).at("text"), "");
  EXPECT_EQ(run.Focus(1), "txtNote");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("Content"), "first\r\nsecond");
  EXPECT_EQ(run.Argument("FirstLine"), "first");
  EXPECT_EQ(Stored(), "first\r\nsecond");
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
  Store("x");
  Store("other", {"PanelGUID=P2", "NoteHeader=Service", "NoteTypeID=3"});
  for (const bool hasRow : {true, false}) {
    const auto run = Open(hasRow ? "caret txtPanelNotes 0 9\nkey - Delete\nclick cmdOK" : kOk);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("Content"), "");
    EXPECT_EQ(run.Argument("FirstLine"), "");
  }
  EXPECT_EQ(Stored({"PanelGUID=P2", "NoteHeader=Service", "NoteTypeID=3"}), "other");
}

TEST_F(PanelNotes, FirstLineEndsAtTheFirstCarriageReturnWithLineFeed) {
  const struct {
    const char* Content;
    const char* FirstLine;
  } cases[] = {{"one", "one"}, {R"(one\r\ntwo\r\n)", "one"}, {R"(one\ntwo)", "one\ntwo"}, {R"(\r\none)", ""}};
  for (const auto& one : cases) {
    const auto run = Open(kOk, {"IsInMemory=true", std::string("Content=\"") + one.Content + "\""});
    EXPECT_EQ(run.Argument("FirstLine"), one.FirstLine) << one.Content;
  }
}

TEST_F(PanelNotes, ANoteGoesOnALineOfItsOwn) {
  const struct {
    const char* Content;
    const char* Result;
  } cases[] = {{"", "n"}, {"a", "a\r\nn"}, {R"(a\n)", "a\nn"}, {R"(a\r\n)", "a\r\nn"}, {R"(a\r)", "a\r\r\nn"}};
  for (const auto& one : cases) {
    const auto run = Open("caret txtPanelNotes 0 9\ntype txtNote \"n\"\nclick cmdAddNote\nclose",
                          {"IsInMemory=true", std::string("Content=\"") + one.Content + "\""});
    EXPECT_EQ(run.Argument("Content"), one.Result) << one.Content;
  }
}

TEST_F(PanelNotes, TheLengthIsCountedInCharacters) {
  const std::string character = "ü";
  const auto content = Times(kMost - 3, character);
  const auto fits =
      Open("type txtNote \"abc\"\nclick cmdAddNote\ndump\nclose", {"IsInMemory=true", "Content=" + content});
  // The line end in front of the note is not counted beforehand.
  EXPECT_EQ(fits.Argument("Content"), content + "\r\nabc");
  EXPECT_EQ(fits.Control("txtNote").at("text"), "");

  const auto run =
      Open("answer 1\ntype txtNote \"abcd\"\nclick cmdAddNote\ndump\nclose", {"IsInMemory=true", "Content=" + content});
  EXPECT_EQ(run.Argument("Content"), content);
  EXPECT_EQ(run.Control("txtNote").at("text"), "abcd");
  EXPECT_EQ(run.Fields("message", "text")[0], Text(1376));
  EXPECT_EQ(run.Fields("message", "title")[0], Text(1377));
  EXPECT_EQ(run.Fields("message", "flags")[0], 0);
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
  Store("kept");
  const std::vector<std::string> other{"PanelGUID=P1", "NoteHeader=Service", "NoteTypeID=2"};
  EXPECT_EQ(Open(kOk, {"IsInMemory=true", "Content=new"}, other).Argument("FirstLine"), "new");
  EXPECT_EQ(Stored(other), "");
  EXPECT_EQ(Stored(), "kept");
}

TEST_F(PanelNotes, AnyKeyNamesItsOwnRowOnly) {
  const std::vector<std::string> headers{"x", R"(x' OR '1'='1)", "x'", R"([x] "%_ \\ --)", "日本", ""};
  const auto key = [](const std::string& header) {
    return std::vector<std::string>{"PanelGUID=\"" + header + "\"", "NoteHeader=\"" + header + "\"", "NoteTypeID=3"};
  };
  const auto quoted = [](std::string text) {
    for (auto at = text.find('"'); at != std::string::npos; at = text.find('"', at + 2)) text.insert(at, 1, '\\');
    return text;
  };
  for (const auto& header : headers) Store("of " + quoted(header), key(quoted(header)));
  for (const auto& header : headers) {
    EXPECT_EQ(Open("caret txtPanelNotes 0 99\nkey - Delete\nclick cmdOK", {}, key(quoted(header))).Result, 0) << header;
    EXPECT_EQ(Stored(key(quoted(header))), "") << header;
    Store("again", key(quoted(header)));
  }
  for (const auto& header : headers) EXPECT_EQ(Stored(key(quoted(header))), "again") << header;
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

TEST_F(PanelNotes, InMemoryNothingIsReadBeforehand) {
  const auto run = Open("dump\nclick cmdCancel", {"IsInMemory=true", "Content=mine"});
  EXPECT_EQ(run.Result, 1);
  EXPECT_EQ(run.Control("txtPanelNotes").at("text"), "mine");
  EXPECT_TRUE(run.Events("fault").empty());
}

TEST_F(PanelNotes, AStoreThatFailsAfterOkLeavesTheTextToTheHost) {
  const struct {
    const char* DataList;
    std::int32_t Result;
    std::string Additional;
  } cases[] = {{"[PanelNotes]\nDBTYPE=PAPER\n", failures::CannotOpenDatabase, Text(1082, "DB_PATH", "")},
               {"[Panels]\nDBTYPE=ACCESS\n", failures::InvalidCall, ""}};
  for (const auto& one : cases) {
    Options.DataList = one.DataList;
    const auto run =
        Open("type txtNote \"new\"\nclick cmdAddNote\nanswer 1\nclick cmdOK", {"IsInMemory=true", "Content=old"});
    EXPECT_EQ(run.Result, one.Result) << one.DataList;
    EXPECT_EQ(run.Argument("Content"), "old\r\nnew");
    EXPECT_EQ(run.Argument("FirstLine"), Value());
    EXPECT_EQ(run.Fields("fault", "additional"),
              (std::vector<Json>{one.Additional, Failure(one.Result).Description()}));
  }
}

}  // namespace
}  // namespace orlin::testing
