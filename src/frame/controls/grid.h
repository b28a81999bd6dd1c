#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/controls/control.h"
#include "frame/controls/edit_text.h"

namespace orlin {

struct GridState {
  int Rows = 0;
  int Cols = 0;
  int FixedRows = 0;
  int FixedCols = 0;
  ControlState Common = {};
};

class Grid : public Control, public shown::Table {
 public:
  Grid(const Container& in, std::string_view name, const GridState& state);

  [[nodiscard]] shown::Table* AsTable() noexcept override { return this; }
  [[nodiscard]] int Rows() const noexcept override { return rows_; }
  [[nodiscard]] int Cols() const noexcept override { return cols_; }
  [[nodiscard]] int FixedRows() const noexcept override { return fixedRows_; }
  [[nodiscard]] int FixedCols() const noexcept override { return fixedCols_; }
  [[nodiscard]] int Row() const noexcept override { return row_; }
  [[nodiscard]] int Col() const noexcept override { return col_; }
  [[nodiscard]] const shown::Cell& CellAt(int row, int col) const noexcept override;
  [[nodiscard]] int ColWidth(int col) const noexcept override;
  [[nodiscard]] int ColAlignment(int col) const noexcept override;
  [[nodiscard]] bool Editing() const noexcept override { return editing_; }
  [[nodiscard]] std::string EditorText() const override { return editor_.Text(); }
  [[nodiscard]] int EditorSelStart() const noexcept override { return editor_.SelStart(); }
  [[nodiscard]] int EditorSelLength() const noexcept override { return editor_.SelLength(); }
  Refusal MakeCurrent(int row, int col) override;
  Refusal DoubleClick() override;
  Refusal SetEditorCaret(int start, int length) override;
  Refusal PasteIntoEditor(std::string_view text) override;

  void SetRows(int rows);
  /// Inserts a row of tab-separated cell texts before the row at that index.
  void AddItem(std::string_view tabSeparatedTexts, int row);
  void RemoveItem(int row);
  [[nodiscard]] const std::string& CellText(int row, int col) const noexcept { return CellAt(row, col).Text; }
  /// The number that the text of a cell begins with.
  [[nodiscard]] double CellNumber(int row, int col) const;
  /// A write outside the grid is ignored.
  void SetCellText(int row, int col, std::string text);
  void SetCellColor(int row, int col, std::int32_t color);
  void SetCellBold(int row, int col, bool bold);
  void SetCellAlignment(int row, int col, int alignment);
  void SetColWidth(int col, int width);
  void SetColAlignment(int col, int alignment);
  /// Makes a cell the current one, if it can be.
  void SelectCell(int row, int col);
  /// Starts editing the current cell, unless `StartEdit` cancels.
  void EditCell();

  Event<> DblClick;
  Event<int, int, bool&> StartEdit;    ///< row, column, cancel
  Event<int, int, int&> KeyPressEdit;  ///< row, column, key
  Event<int, int> AfterEdit;           ///< row, column

 private:
  void TakeKey(const Key& key) override;
  [[nodiscard]] bool KeepsEnter() const override { return editing_; }
  [[nodiscard]] bool KeepsEscape() const override { return editing_; }
  void Leave(By by) override;

  [[nodiscard]] bool CanBeCurrent(int row, int col) const noexcept;
  [[nodiscard]] shown::Cell* FindCell(int row, int col) noexcept;
  void KeepCurrentInside() noexcept;
  void StartEditing(By by);
  void EndEditing(bool keepText, By by);
  void TakeEditorKey(const Key& key);
  void TakeNavigationKey(const Key& key);

  int rows_;
  int cols_;
  int fixedRows_;
  int fixedCols_;
  int row_ = -1;
  int col_ = -1;
  std::vector<std::vector<shown::Cell>> cells_;
  std::vector<int> colWidths_;
  std::vector<int> colAlignments_;
  bool editing_ = false;
  EditText editor_;
};

}  // namespace orlin
