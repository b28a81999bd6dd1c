#include "qt/form_layout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace orlin {
namespace {

// Check boxes of one array stand in columns when there are more than this.
constexpr std::size_t kMostMarksBelowEachOther = 4;
constexpr int kColumnsOfMarks = 4;
constexpr int kLettersOfNumber = 8;
constexpr int kLettersOfButton = 14;
constexpr int kLettersOfTitleButtons = 16;

bool IsExpanding(const QWidget& widget) { return widget.sizePolicy().expandingDirections().testFlag(Qt::Horizontal); }

bool HasTall(const FormLine& line, ControlKind kind) { return !line.empty() && line.front()->Kind() == kind; }

bool IsOfLines(const shown::Control& control) {
  const auto* text = control.AsTextField();
  return text != nullptr && text->MultiLine();
}

bool IsList(const FormRow& row) {
  return row.What == FormRow::Kind::Tall &&
         std::any_of(row.Lines.begin(), row.Lines.end(),
                     [](const auto& line) { return HasTall(line, ControlKind::ListBox); }) &&
         std::none_of(row.Lines.begin(), row.Lines.end(),
                      [](const auto& line) { return HasTall(line, ControlKind::Grid); });
}

bool IsCheckOfArray(const FormRow& row) {
  return row.What == FormRow::Kind::Mark && row.Label == nullptr && row.Lines.front().front()->Index() >= 0 &&
         row.Lines.front().front()->Kind() == ControlKind::CheckBox;
}

}  // namespace

void FormLayout::LayOut(QWidget& window, QWidget& body, QWidget& help) {
  Fill(body, form_.Body);
  AlignFrames();
  auto* all = new QVBoxLayout(&window);
  const int letter = window.fontMetrics().averageCharWidth();
  // Room for the ring around what has the focus, taken from the margins of the window.
  const int ring = window.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &window);
  body.layout()->setContentsMargins(ring, ring, ring, ring);
  all->setContentsMargins(all->contentsMargins() - ring);
  all->addWidget(&body, 1);
  // The frame shows the title in letters of its own, between buttons.
  const auto titleLetters = static_cast<int>(window.windowTitle().size()) + kLettersOfTitleButtons;
  all->addStrut(titleLetters * letter);

  auto* buttons = new QHBoxLayout();
  for (const auto* button : form_.LeftButtons) {
    auto* widget = widgetOf_(*button);
    widget->setMinimumWidth(widget->sizeHint().width() + 2 * letter);
    buttons->addWidget(widget);
  }
  // What ends the dialog stands apart from what does not.
  if (!form_.LeftButtons.empty()) buttons->addSpacing(2 * buttons->spacing());
  buttons->addStretch(1);
  int widest = letter * kLettersOfButton;
  for (const auto* button : form_.RightButtons) {
    auto* widget = widgetOf_(*button);
    widest = std::max(widest, widget->sizeHint().width());
    buttons->addWidget(widget);
  }
  for (const auto* button : form_.RightButtons) widgetOf_(*button)->setMinimumWidth(widest);
  all->addSpacing(all->spacing());
  auto* foot = new QVBoxLayout();
  foot->setContentsMargins(ring, 0, ring, 0);
  foot->addLayout(buttons);
  if (form_.Status != nullptr) foot->addWidget(widgetOf_(*form_.Status));
  foot->addWidget(&help);
  all->addLayout(foot);
}

void FormLayout::Fill(QWidget& container, const std::vector<FormRow>& rows) {
  auto* grid = new QGridLayout(&container);
  grid->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < rows.size();) {
    std::vector<const FormRow*> run = {&rows[i]};
    const auto takeWhile = [&](const auto& belongs) {
      while (belongs(*run.front()) && i + run.size() < rows.size() && belongs(rows[i + run.size()])) {
        run.push_back(&rows[i + run.size()]);
      }
      return run.size() > 1;
    };
    if (takeWhile(IsList)) {
      AddTall(*grid, run);
    } else if (takeWhile(IsCheckOfArray) && run.size() > kMostMarksBelowEachOther) {
      AddMarks(*grid, run);
    } else {
      for (const auto* row : run) AddRow(*grid, *row);
    }
    i += run.size();
  }
}

void FormLayout::AddRow(QGridLayout& grid, const FormRow& row) {
  const int at = grid.rowCount();
  const auto widget = [&](const FormLine& line) { return widgetOf_(*line.front()); };
  switch (row.What) {
    case FormRow::Kind::Field:
      return AddField(grid, row);
    case FormRow::Kind::Tall:
      return AddTall(grid, {&row});
    case FormRow::Kind::Text: {
      if (row.Lines.empty()) return grid.addWidget(widgetOf_(*row.Label), at, 0, 1, 2);
      auto* key = widget(row.Lines.front());
      const int side = key->fontMetrics().height();
      key->setFixedSize(side, side);
      auto* line = new QHBoxLayout();
      line->addWidget(key);
      line->addWidget(widgetOf_(*row.Label), 1);
      return grid.addLayout(line, at, 0, 1, 2);
    }
    case FormRow::Kind::Pair: {
      auto* value = widget(row.Lines.front());
      auto font = value->font();
      font.setBold(true);
      value->setFont(font);
      grid.addWidget(widgetOf_(*row.Label), at, 0);
      return grid.addWidget(value, at, 1);
    }
    case FormRow::Kind::Mark: {
      if (row.Label == nullptr) return grid.addWidget(widget(row.Lines.front()), at, 0, 1, 2);
      auto* line = new QHBoxLayout();
      line->setSpacing(widget(row.Lines.front())->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
      line->addWidget(widget(row.Lines.front()));
      line->addWidget(widgetOf_(*row.Label), 1);
      return grid.addLayout(line, at, 0, 1, 2);
    }
    case FormRow::Kind::Frame: {
      const auto& frame = *row.Lines.front().front();
      auto* box = widgetOf_(frame);
      const auto& inside = form_.Frames.at(&frame);
      Fill(*box, inside);
      frameGrids_.push_back(static_cast<QGridLayout*>(box->layout()));
      grid.addWidget(box, at, 0, 1, 2);
      const auto isTall = [](const auto& part) { return part.What == FormRow::Kind::Tall; };
      return grid.setRowStretch(at, std::any_of(inside.begin(), inside.end(), isTall) ? 1 : 0);
    }
    case FormRow::Kind::Buttons:
      return grid.addLayout(Line(row.Lines.front(), false), at, 0, 1, 2);
  }
}

void FormLayout::AddField(QGridLayout& grid, const FormRow& row) {
  const int at = grid.rowCount();
  const int column = row.Label != nullptr ? 1 : 0;
  if (row.Lines.size() == 1 && row.Lines.front().size() == 1) {
    const auto& control = *row.Lines.front().front();
    auto* field = widgetOf_(control);
    grid.addWidget(field, at, column, 1, 2 - column, IsExpanding(*field) ? Qt::Alignment() : Qt::AlignLeft);
    if (auto* remark = remarkOf_(control)) grid.addWidget(remark, at + 1, column, 1, 2 - column);
  } else {
    auto* lines = new QVBoxLayout();
    for (const auto& line : row.Lines) AddLine(*lines, line, 0);
    grid.addLayout(lines, at, column, 1, 2 - column);
  }
  if (row.Label == nullptr) return;
  auto* label = widgetOf_(*row.Label);
  // As high as one field, so that it stands beside the first of them that is visible.
  label->setMinimumHeight(widgetOf_(*row.Lines.front().front())->sizeHint().height());
  grid.addWidget(label, at, 0, row.Lines.size() > 1 ? Qt::AlignTop : Qt::Alignment());
}

void FormLayout::AddTall(QGridLayout& grid, const std::vector<const FormRow*>& columns) {
  const int at = grid.rowCount();
  grid.setRowStretch(at, 1);
  stretches_ = true;
  if (columns.size() == 1) return grid.addLayout(Column(*columns.front(), grid.verticalSpacing()), at, 0, 1, 2);
  auto* side = new QHBoxLayout();
  side->setSpacing(grid.verticalSpacing() * 2);
  for (const auto* column : columns) side->addLayout(Column(*column, grid.verticalSpacing()), 1);
  grid.addLayout(side, at, 0, 1, 2);
}

QLayout* FormLayout::Column(const FormRow& row, int spacing) {
  auto* column = new QVBoxLayout();
  column->setSpacing(spacing);
  if (row.Label != nullptr) {
    auto* label = widgetOf_(*row.Label);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    column->addWidget(label);
  }
  const bool besideGrid = HasTall(row.Lines.front(), ControlKind::Grid) && row.Lines.size() > 1;
  if (!besideGrid) {
    for (const auto& line : row.Lines) {
      const bool tall = line.size() == 1 && (line.front()->Kind() != ControlKind::TextBox || IsOfLines(*line.front()));
      AddLine(*column, line, tall ? 1 : 0);
    }
    // Takes the room where no list is visible.
    column->addStretch(0);
    return column;
  }
  auto* side = new QHBoxLayout();
  AddLine(*side, row.Lines.front(), 1);
  auto* lists = new QVBoxLayout();
  // Without a share of its own, each list gets the height that its rows want.
  for (std::size_t i = 1; i < row.Lines.size(); ++i) AddLine(*lists, row.Lines[i], 0);
  side->addLayout(lists, 1);
  column->addLayout(side, 1);
  return column;
}

// A hidden widget takes no room; a layout of one that is hidden would.
void FormLayout::AddLine(QBoxLayout& to, const FormLine& line, int stretch) {
  if (line.size() > 1) return to.addLayout(Line(line, true), stretch);
  auto* widget = widgetOf_(*line.front());
  to.addWidget(widget, stretch, IsExpanding(*widget) ? Qt::Alignment() : Qt::AlignLeft);
}

QLayout* FormLayout::Line(const FormLine& line, bool fills) {
  auto* layout = new QHBoxLayout();
  bool filled = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    auto* widget = widgetOf_(*line[i]);
    const bool stepped = i + 1 < line.size() && line[i + 1]->Kind() == ControlKind::UpDown;
    if (stepped) {
      // The buttons touch their box, which holds a number.
      auto* pair = new QHBoxLayout();
      pair->setSpacing(0);
      if (IsExpanding(*widget)) widget->setFixedWidth(widget->fontMetrics().averageCharWidth() * kLettersOfNumber);
      pair->addWidget(widget);
      pair->addWidget(widgetOf_(*line[++i]));
      layout->addLayout(pair);
      continue;
    }
    const bool isLast = i + 1 == line.size();
    const bool expands = fills && (IsExpanding(*widget) || (isLast && line.size() > 1));
    layout->addWidget(widget, expands ? 1 : 0);
    filled = filled || expands;
  }
  if (!filled) layout->addStretch(1);
  return layout;
}

void FormLayout::AddMarks(QGridLayout& grid, const std::vector<const FormRow*>& marks) {
  auto* table = new QGridLayout();
  const int columns = std::min(kColumnsOfMarks, static_cast<int>(marks.size()));
  int place = 0;
  for (const auto* mark : marks) {
    table->addWidget(widgetOf_(*mark->Lines.front().front()), place / columns, place % columns);
    ++place;
  }
  table->setColumnStretch(columns, 1);
  table->setHorizontalSpacing(table->horizontalSpacing() * 2);
  grid.addLayout(table, grid.rowCount(), 0, 1, 2);
}

// Fields of one frame begin where those of the others do.
void FormLayout::AlignFrames() {
  if (frameGrids_.size() < 2) return;
  int widest = 0;
  const auto eachLabel = [&](const auto& use) {
    for (auto* grid : frameGrids_) {
      for (int row = 0; row < grid->rowCount(); ++row) {
        const auto* item = grid->itemAtPosition(row, 0);
        const bool labels = item != nullptr && item->widget() != nullptr && grid->itemAtPosition(row, 1) != item;
        if (labels) use(*grid, *item->widget());
      }
    }
  };
  eachLabel([&](auto&, auto& label) { widest = std::max(widest, label.sizeHint().width()); });
  eachLabel([&](auto& grid, auto&) { grid.setColumnMinimumWidth(0, widest); });
}

}  // namespace orlin
