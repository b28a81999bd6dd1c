#include "form_fixture.h"
#include "frame/controls/all_controls.h"

namespace orlin::testing {
namespace {

/// A grid of two columns, the first row and column fixed, as a dialog with editable cells sets it up.
class GridTest : public FormTest {
 protected:
  GridTest() {
    for (int row = 1; row < 4; ++row) fa.SetCellText(row, 1, std::to_string(row) + "a");
    fa.DblClick = [this] { fa.EditCell(); };
    fa.StartEdit = [this](int row, int col, bool&) { NoteAt("start", row, col); };
    fa.KeyPressEdit = [this](int row, int col, int& key) {
      NoteAt("key " + std::to_string(key), row, col);
      if (key == 'x') key = 0;
    };
    fa.AfterEdit = [this](int row, int col) {
      NoteAt("after <" + fa.EditorText() + "> <" + fa.CellText(row, col) + ">", row, col);
    };
    txtOther.GotFocus = [this] { Host->Happened.emplace_back("txtOther_GotFocus"); };
  }

  void NoteAt(const std::string& what, int row, int col) {
    Note(what + " " + std::to_string(row) + "," + std::to_string(col));
    EXPECT_EQ(Current(), std::pair(row, col));
  }
  std::pair<int, int> Current() { return {fa.Row(), fa.Col()}; }

  Grid fa{Form, "fa", {.Rows = 4, .Cols = 2, .FixedRows = 1, .FixedCols = 1}};
  TextBox txtOther{Form, "txtOther"};
  OKButton cmdOK{Form, "OK"};
};

TEST_F(GridTest, EnterPutsTheTextIntoTheCell) {
  // The whole text is marked when the edit starts, by a double-click or by the first character.
  const Log edit{"start 1,1", "key 98 1,1", "key 120 1,1", "key 13 1,1", "after <b> <b> 1,1"};
  EXPECT_EQ(During([&] { fa.DoubleClick(), Type(U'b'), Type(U'x'), Press(keys::Enter); }), edit);
  EXPECT_EQ(During([&] { Type(U'b'), Type(U'x'), Press(keys::Enter); }), edit);
  EXPECT_FALSE(fa.Editing());
  EXPECT_EQ(fa.EditorText(), "");
  fa.StartEdit = [](int, int, bool& cancel) { cancel = true; };
  EXPECT_EQ(During([&] { Type(U'c'), Press(keys::Down), Type(U' '); }), Log());
  EXPECT_EQ(fa.CellText(1, 1) + fa.CellText(2, 1), "b2a");
}

TEST_F(GridTest, LeavingTheCellOrTheGridKeepsTheText) {
  EXPECT_EQ(During([&] { fa.DoubleClick(), Type(U'b'), fa.MakeCurrent(2, 1); }).back(), "after <b> <b> 1,1");
  EXPECT_EQ(fa.Row(), 2);
  EXPECT_EQ(During([&] { fa.DoubleClick(), Press(keys::End), Type(U'c'), Press(keys::Tab); }).back(),
            "txtOther_GotFocus");
  EXPECT_EQ(fa.CellText(2, 1), "2ac");
  EXPECT_EQ(During([&] { fa.DoubleClick(), Type(U'd'), Press(keys::Up); }).back(), "after <d> <d> 2,1");
  EXPECT_EQ(fa.Row(), 1);
}

TEST_F(GridTest, EditorTakesPasteAndCaret) {
  During([&] {
    EXPECT_TRUE(fa.PasteIntoEditor("q"));
    fa.DoubleClick(), fa.SetEditorCaret(0, 2), fa.PasteIntoEditor("1x2"), Press(keys::Home), Press(keys::Delete);
    EXPECT_EQ(fa.EditorText(), "2");
    EXPECT_EQ(fa.CellText(1, 1), "1a");
  });
}

TEST_F(GridTest, FixedCellsAreNeverCurrent) {
  const std::pair first{1, 1};
  During([&] {
    EXPECT_EQ(Current(), first);
    for (const auto& [row, col] : {std::pair{0, 1}, {1, 0}, {4, 1}, {1, 2}}) EXPECT_TRUE(fa.MakeCurrent(row, col));
    Press(keys::Up), Press(keys::Left);
    EXPECT_EQ(Current(), first);
    Press(keys::End);
    EXPECT_EQ(fa.Row(), 3);
  });
}

TEST_F(GridTest, RowsComeAndGo) {
  fa.AddItem("t\tnew\tbeyond", 1);
  EXPECT_EQ(std::tuple(fa.Rows(), fa.CellText(1, 1), fa.CellText(2, 1)), std::tuple(5, "new", "1a"));
  fa.SelectCell(4, 1), fa.RemoveItem(1);
  EXPECT_EQ(fa.Row(), 3);
  EXPECT_EQ(fa.CellText(1, 1), "1a");
  fa.SelectCell(3, 1), fa.SetRows(2);
  EXPECT_EQ(fa.Row(), 1);
  fa.SetRows(1);
  EXPECT_EQ(fa.Row(), -1);
  for (const auto& [row, col] : {std::pair(7, 7), {0, 2}, {1, 0}, {-1, 0}}) {
    fa.SetCellText(row, col, "ignored");
    EXPECT_EQ(fa.CellText(row, col), "");
  }
  EXPECT_EQ(FailureOf([&] { fa.RemoveItem(1); }), failures::InvalidPropertyValue);
  EXPECT_EQ(FailureOf([&] { fa.AddItem("", 9); }), failures::InvalidPropertyValue);
}

}  // namespace
}  // namespace orlin::testing
