#include "frame/controls/grid.h"

#include <algorithm>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/written_text.h"

#include "frame/values/conversions.h"

namespace orlin {
namespace {

using shown::Cell;

std::vector<std::string> SplitAtTabs(std::string_view text) {
  std::vector<std::string> parts;
  for (std::size_t from = 0;;) {
    const auto tab = text.find('\t', from);
    parts.emplace_back(text.substr(from, tab == std::string_view::npos ? tab : tab - from));
    if (tab == std::string_view::npos) return parts;
    from = tab + 1;
  }
}

}  // namespace

bool Grid::CanBeCurrent(int row, int col) const noexcept {
  return row >= fixedRows_ && row < rows_ && col >= fixedCols_ && col < cols_;
}

const Cell& Grid::CellAt(int row, int col) const noexcept {
  static const Cell outside;
  const bool inside = row >= 0 && row < rows_ && col >= 0 && col < cols_;
  return inside ? cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] : outside;
}

Cell* Grid::FindCell(int row, int col) noexcept {
  const bool inside = row >= 0 && row < rows_ && col >= 0 && col < cols_;
  return inside ? &cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] : nullptr;
}

int Grid::ColWidth(int col) const noexcept {
  return col >= 0 && col < cols_ ? colWidths_[static_cast<std::size_t>(col)] : 0;
}

int Grid::ColAlignment(int col) const noexcept {
  return col >= 0 && col < cols_ ? colAlignments_[static_cast<std::size_t>(col)] : 0;
}

double Grid::CellNumber(int row, int col) const { return NumericValue(CellText(row, col)); }

// The first cell that can be current, where the present one cannot be.
void Grid::KeepCurrentInside() noexcept {
  if (CanBeCurrent(row_, col_)) return;
  const int row = std::clamp(row_, fixedRows_, std::max(rows_ - 1, fixedRows_));
  const int col = std::clamp(col_, fixedCols_, std::max(cols_ - 1, fixedCols_));
  const bool any = CanBeCurrent(row, col);
  row_ = any ? row : -1;
  col_ = any ? col : -1;
}

Grid::Grid(const Container& in, std::string_view name, const GridState& state)
    : Control(ControlKind::Grid, in, name, {}, state.Common),
      rows_(std::max(state.Rows, 0)),
      cols_(std::max(state.Cols, 0)),
      fixedRows_(state.FixedRows),
      fixedCols_(state.FixedCols),
      cells_(static_cast<std::size_t>(rows_), std::vector<Cell>(static_cast<std::size_t>(cols_))),
      colWidths_(static_cast<std::size_t>(cols_)),
      colAlignments_(static_cast<std::size_t>(cols_)) {
  KeepCurrentInside();
}

void Grid::SetRows(int rows) {
  Touch();
  if (rows < 0) throw Failure(failures::InvalidPropertyValue);
  rows_ = rows;
  cells_.resize(static_cast<std::size_t>(rows), std::vector<Cell>(static_cast<std::size_t>(cols_)));
  KeepCurrentInside();
  Changed();
}

void Grid::AddItem(std::string_view tabSeparatedTexts, int row) {
  Touch();
  if (row < 0 || row > rows_) throw Failure(failures::InvalidPropertyValue);
  std::vector<Cell> cells(static_cast<std::size_t>(cols_));
  auto texts = SplitAtTabs(tabSeparatedTexts);
  for (std::size_t col = 0; col < std::min(cells.size(), texts.size()); ++col) cells[col].Text = std::move(texts[col]);
  cells_.insert(cells_.begin() + row, std::move(cells));
  ++rows_;
  KeepCurrentInside();
  Changed();
}

void Grid::RemoveItem(int row) {
  Touch();
  if (row < 0 || row >= rows_) throw Failure(failures::InvalidPropertyValue);
  cells_.erase(cells_.begin() + row);
  --rows_;
  KeepCurrentInside();
  Changed();
}

void Grid::SetCellText(int row, int col, std::string text) {
  Touch();
  auto* cell = FindCell(row, col);
  if (cell == nullptr) return;
  cell->Text = std::move(text);
  Changed();
}

void Grid::SetCellColor(int row, int col, std::int32_t color) {
  Touch();
  auto* cell = FindCell(row, col);
  if (cell == nullptr) return;
  cell->Color = color;
  Changed();
}

void Grid::SetCellBold(int row, int col, bool bold) {
  Touch();
  auto* cell = FindCell(row, col);
  if (cell == nullptr) return;
  cell->Bold = bold;
  Changed();
}

void Grid::SetCellAlignment(int row, int col, int alignment) {
  Touch();
  auto* cell = FindCell(row, col);
  if (cell == nullptr) return;
  cell->Alignment = alignment;
  Changed();
}

void Grid::SetColWidth(int col, int width) {
  Touch();
  if (col < 0 || col >= cols_) throw Failure(failures::InvalidPropertyValue);
  colWidths_[static_cast<std::size_t>(col)] = width;
  Changed();
}

void Grid::SetColAlignment(int col, int alignment) {
  Touch();
  if (col < 0 || col >= cols_) throw Failure(failures::InvalidPropertyValue);
  colAlignments_[static_cast<std::size_t>(col)] = alignment;
  Changed();
}

void Grid::SelectCell(int row, int col) {
  Touch();
  if (!CanBeCurrent(row, col) || (row == row_ && col == col_)) return;
  if (editing_) EndEditing(true, By::Code);
  row_ = row;
  col_ = col;
  Changed();
}

// ---------------------------------------------------------------------------------------------- editing

void Grid::EditCell() {
  Touch();
  StartEditing(By::Code);
}

void Grid::StartEditing(By by) {
  if (editing_ || !CanBeCurrent(row_, col_)) return;
  bool cancel = false;
  Raise(by, StartEdit, "StartEdit", row_, col_, cancel);
  if (cancel) return;
  editing_ = true;
  editor_ = {};
  editor_.SetText(CellText(row_, col_));
  editor_.Select(0, editor_.Length());
  Changed();
}

void Grid::EndEditing(bool keepText, By by) {
  editing_ = false;
  if (keepText) {
    if (auto* cell = FindCell(row_, col_)) cell->Text = editor_.Text();
  } else {
    editor_.SetText(CellText(row_, col_));
  }
  Changed();
  // The editor's text can still be read while the end is told.
  Raise(by, AfterEdit, "AfterEdit", row_, col_);
  if (!editing_) editor_ = {};
}

void Grid::Leave(By by) {
  if (editing_) EndEditing(true, by);
}

Refusal Grid::MakeCurrent(int row, int col) {
  if (auto refusal = Approach()) return refusal;
  if (!CanBeCurrent(row, col)) {
    return Name() + " has no cell " + std::to_string(row) + ", " + std::to_string(col) + " that can be the current one";
  }
  if (row == row_ && col == col_) return {};
  if (editing_) EndEditing(true, By::Operator);
  row_ = row;
  col_ = col;
  Changed();
  return {};
}

Refusal Grid::DoubleClick() {
  if (auto refusal = Approach()) return refusal;
  if (!CanBeCurrent(row_, col_)) return Name() + " has no current cell";
  if (!editing_) Raise(By::Operator, DblClick, "DblClick");
  return {};
}

Refusal Grid::SetEditorCaret(int start, int length) {
  if (!editing_) return "no cell is being edited";
  editor_.Select(start, length);
  Changed();
  return {};
}

Refusal Grid::PasteIntoEditor(std::string_view text) {
  if (!editing_) return "no cell is being edited";
  for (const auto character : FromUtf8(text)) {
    if (!editing_) break;
    if (character >= U' ') TakeEditorKey(Key::Typing(character));
  }
  return {};
}

void Grid::TakeKey(const Key& key) {
  if (editing_) {
    TakeEditorKey(key);
  } else if (key.Code == keys::F2) {
    DoubleClick();
  } else if (key.Character != 0) {
    // Typing over a cell edits it.
    if (!DoubleClick() && editing_) TakeEditorKey(key);
  } else {
    TakeNavigationKey(key);
  }
}

void Grid::TakeEditorKey(const Key& key) {
  switch (key.Code) {
    case keys::Left:
      editor_.Left();
      return Changed();
    case keys::Right:
      editor_.Right();
      return Changed();
    case keys::Home:
      editor_.Home();
      return Changed();
    case keys::End:
      editor_.End();
      return Changed();
    case keys::Delete:
      editor_.Delete();
      return Changed();
    case keys::Up:
    case keys::Down:
    case keys::PageUp:
    case keys::PageDown:
      return TakeNavigationKey(key);
    default:
      break;
  }
  const bool ends = key.Code == keys::Enter || key.Code == keys::Escape;
  int character = ends || key.Code == keys::Backspace ? key.Code : static_cast<int>(key.Character);
  if (character == 0) return;
  Raise(By::Operator, KeyPressEdit, "KeyPressEdit", row_, col_, character);
  if (ends && editing_) return EndEditing(key.Code == keys::Enter, By::Operator);
  if (character == 0 || !editing_) return;
  if (character == keys::Backspace) {
    editor_.Backspace();
  } else if (character >= keys::Space) {
    editor_.Insert(static_cast<char32_t>(character), 0);
  }
  Changed();
}

void Grid::TakeNavigationKey(const Key& key) {
  int row = row_;
  int col = col_;
  switch (key.Code) {
    case keys::Up:
      --row;
      break;
    case keys::Down:
      ++row;
      break;
    case keys::PageUp:
      row -= shown::kRowsOfAPage;
      break;
    case keys::PageDown:
      row += shown::kRowsOfAPage;
      break;
    case keys::Left:
      --col;
      break;
    case keys::Right:
      ++col;
      break;
    case keys::Home:
      row = fixedRows_;
      break;
    case keys::End:
      row = rows_ - 1;
      break;
    default:
      return;
  }
  row = std::clamp(row, fixedRows_, std::max(rows_ - 1, fixedRows_));
  col = std::clamp(col, fixedCols_, std::max(cols_ - 1, fixedCols_));
  if (CanBeCurrent(row, col)) MakeCurrent(row, col);
}

}  // namespace orlin
