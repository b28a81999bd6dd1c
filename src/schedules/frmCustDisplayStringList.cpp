#include "schedules/frmCustDisplayStringList.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// Half hours of a day. Midnight at its begin is not among them: its place says that there is no time.
constexpr std::int16_t kDisabled = 0;
constexpr std::int16_t kMidnight = 48;
constexpr std::int32_t kIndexOutOfRange = 2;

}  // namespace

std::string frmCustDisplayStringList::Line(std::int16_t position) {
  if (position == kDisabled) return std::string(kFixedLines.front().Text);
  if (position == kMidnight) return std::string(kFixedLines.back().Text);
  return TwoDigits(position / 2) + (position % 2 == 0 ? ":00" : ":30");
}

frmCustDisplayStringList::frmCustDisplayStringList() {
  List1.Click = [this] { List1_Click(); };
}

std::int32_t frmCustDisplayStringList::Display(std::int16_t Index, Value& res) {
  if (Index < kDisabled || Index > kMidnight) return kIndexOutOfRange;
  DisplaySteps steps;
  steps.Prepare = [&] {
    for (auto position = kDisabled; position <= kMidnight; ++position) List1.AddItem(Line(position));
    txtValue.SetText(List1.List(Index));
    List1.SelectRow(Index);
  };
  steps.Conclude = [&] {
    if (Form.ExitCode() != ExitCode::OK) {
      res = std::to_string(Index);
      return kNotConfirmed;
    }
    if (!ChosenIndex.IsEmpty()) res = ChosenIndex;
    return kConfirmed;
  };
  steps.Report = [](const Failure& failure) { ReportFault({"frmCustDisplayStringList", "Display"}, failure, ""); };
  return RunDisplay(Form, steps);
}

void frmCustDisplayStringList::List1_Click() {
  ReportFailure({"frmCustDisplayStringList", "List1_Click"}, [&] {
    const auto row = List1.ListIndex();
    if (row < 0) return;
    ChosenIndex = std::to_string(row);
    txtValue.SetText(List1.List(row));
  });
}

}  // namespace orlin
