#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolButton>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "app/account/account.h"
#include "app/calls/installed_platform.h"
#include "qt/dialog_window.h"
#include "qt/texts.h"
#include "window_system/open_windows.h"

// From `Display` to the first paint, for every editor of the example account, against a bare dialog of Qt with the same
// widgets and items. Both in one run, in turns. Prints milliseconds; the ratio is what counts. A part of a parameter's
// name as an argument measures that one alone.

namespace orlin {
namespace {

constexpr int kRounds = 25;
// That of the offscreen platform is smaller than screens are.
constexpr QSize kScreen(1366, 768);

/// Notes when the widget is painted first.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }
  [[nodiscard]] bool Painted() const noexcept { return painted_; }
  bool eventFilter(QObject*, QEvent* event) override {
    painted_ = painted_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool painted_ = false;
};

void PaintFirst(QWidget& window) {
  const PaintWatch watch(window);
  for (int i = 0; i < 100 && !watch.Painted(); ++i) QApplication::processEvents();
  if (!watch.Painted()) throw std::runtime_error("the window was not painted");
}

/// The same dialog as somebody writes it by hand: one column, the widgets and items of Qt.
class BareDialog {
 public:
  explicit BareDialog(const shown::Dialog& dialog) {
    window_.setWindowTitle(Shown(dialog.Caption()));
    auto* layout = new QVBoxLayout(&window_);
    for (auto* control : dialog.Controls()) Add(*control, *layout);
  }

  /// As large as the other one, which shows all columns of a table: painting costs by what is seen.
  void Open(QSize size) {
    window_.adjustSize();
    window_.resize(window_.size().expandedTo(size));
    window_.show();
    PaintFirst(window_);
  }

 private:
  void Add(const shown::Control& control, QLayout& layout) {
    auto* widget = Make(control);
    if (widget == nullptr) return;
    if (control.Kind() == ControlKind::Frame) {
      boxes_.push_back({&control, new QVBoxLayout(widget)});
      layout.addWidget(widget);
    } else {
      const auto box = std::find_if(boxes_.begin(), boxes_.end(),
                                    [&](const auto& known) { return known.Frame == control.Parent(); });
      (box == boxes_.end() ? &layout : static_cast<QLayout*>(box->Inside))->addWidget(widget);
    }
    if (!control.Visible()) widget->hide();
    widget->setEnabled(control.Enabled());
  }

  QWidget* Make(const shown::Control& control) {
    const auto caption = Shown(control.Caption());
    switch (control.Kind()) {
      case ControlKind::Label:
      case ControlKind::StatusBar:
        return new QLabel(caption);
      case ControlKind::Frame:
        return new QGroupBox(caption);
      case ControlKind::Button:
        return new QPushButton(caption);
      case ControlKind::CheckBox: {
        auto* box = new QCheckBox(caption);
        box->setChecked(control.AsMark()->IsOn());
        return box;
      }
      case ControlKind::OptionButton: {
        auto* option = new QRadioButton(caption);
        option->setChecked(control.AsMark()->IsOn());
        return option;
      }
      case ControlKind::TextBox: {
        const auto& box = *control.AsTextField();
        if (box.MultiLine()) return new QPlainTextEdit(Shown(box.Text()));
        return new QLineEdit(Shown(box.Text()));
      }
      case ControlKind::ComboBox: {
        const auto& rows = *control.AsRowList();
        auto* list = new QComboBox();
        list->setEditable(control.AsTextField()->HasEditField());
        for (int i = 0; i < rows.ListCount(); ++i) list->addItem(Shown(rows.List(i)));
        list->setCurrentIndex(rows.ListIndex());
        return list;
      }
      case ControlKind::ListBox: {
        const auto& rows = *control.AsRowList();
        auto* list = new QListWidget();
        for (int i = 0; i < rows.ListCount(); ++i) list->addItem(Shown(rows.List(i)));
        list->setCurrentRow(rows.ListIndex());
        return list;
      }
      case ControlKind::UpDown: {
        auto* pair = new QWidget();
        auto* layout = new QVBoxLayout(pair);
        for (const auto arrow : {Qt::UpArrow, Qt::DownArrow}) {
          auto* button = new QToolButton();
          button->setArrowType(arrow);
          layout->addWidget(button);
        }
        return pair;
      }
      case ControlKind::Grid:
        return MakeTable(*control.AsTable());
      case ControlKind::Timer:
        return nullptr;
    }
    return nullptr;
  }

  static QWidget* MakeTable(const shown::Table& grid) {
    auto* table = new QTableWidget(grid.Rows() - grid.FixedRows(), grid.Cols());
    table->verticalHeader()->hide();
    for (int col = 0; col < grid.Cols(); ++col) {
      table->setHorizontalHeaderItem(col, new QTableWidgetItem(Shown(grid.CellAt(0, col).Text)));
      for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        table->setItem(row - grid.FixedRows(), col, new QTableWidgetItem(Shown(grid.CellAt(row, col).Text)));
      }
    }
    table->resizeColumnsToContents();
    return table;
  }

  struct Box {
    const shown::Control* Frame;
    QVBoxLayout* Inside;
  };
  std::vector<Box> boxes_;
  QDialog window_;
};

double Milliseconds(const std::function<void()>& work) {
  QElapsedTimer clock;
  clock.start();
  work();
  return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  return times[times.size() / 2];
}

/// Opens each dialog both ways, in turns, and closes it.
class MeasuringHost final : public DialogHost {
 public:
  [[nodiscard]] SizeInTwips Screen() const override { return {15360, 11520}; }
  void ShowModal(shown::Dialog& dialog) override {
    // What is bare here has still to decode the raw values: that part of `Display` counts for both.
    const double decoding = static_cast<double>(sinceCall_.nsecsElapsed()) / 1e6;
    const double shown = Milliseconds([&] {
      window_ = std::make_unique<DialogWindow>(dialog, DialogWindow::Timers::Stand, nullptr);
      window_->SetRoom(kScreen);
      window_->Open();
      PaintFirst(*window_);
    });
    const auto size = window_->size();
    window_.reset();
    const double bare = Milliseconds([&] {
      bare_ = std::make_unique<BareDialog>(dialog);
      bare_->Open(size);
    });
    bare_.reset();
    Shown.push_back(decoding + shown);
    Bare.push_back(decoding + bare);
    WithoutDecoding.push_back(shown / bare);
    dialog.Close();
  }
  int ShowMessage(const Message&) override { return answers::Ok; }
  void Beep() override {}

  void StartCall() { sinceCall_.start(); }

  std::vector<double> Shown;
  std::vector<double> Bare;
  std::vector<double> WithoutDecoding;

 private:
  std::unique_ptr<DialogWindow> window_;
  std::unique_ptr<BareDialog> bare_;
  QElapsedTimer sinceCall_;
};

void Measure(const Account& account, const std::string& only) {
  std::printf("%-44s %8s %8s %7s %10s\n", "From Display to the first paint, ms", "window", "bare", "ratio",
              "no decode");
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    const auto& parameter = account.Parameters()[i];
    if (parameter.Name.find(only) == std::string::npos) continue;
    const auto host = std::make_shared<MeasuringHost>();
    StandardPlatformOptions options;
    options.Host = host;
    const InstalledPlatform installed(StandardPlatform(options));
    for (int round = 0; round < kRounds; ++round) {
      auto arguments = parameter.Class->ArgumentsFrom(account.ValuesOf(i));
      host->StartCall();
      static_cast<void>(parameter.Class->Display(arguments));
    }
    if (host->Shown.empty()) continue;
    const double window = Median(host->Shown);
    const double bare = Median(host->Bare);
    std::printf("%-44s %8.2f %8.2f %7.2f %10.2f\n", parameter.Name.c_str(), window, bare, window / bare,
                Median(host->WithoutDecoding));
  }
}

}  // namespace
}  // namespace orlin

int main(int argc, char** argv) {
  const auto windows = orlin::OpenWindows(orlin::Screen::Unseen);
  orlin::Measure(orlin::Account(ORLIN_EXAMPLES "/account.json"), argc > 1 ? argv[1] : "");
}
