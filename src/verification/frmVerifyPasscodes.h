#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The passcodes of all users after a change of the passcode length, with those in trouble marked.
class frmVerifyPasscodes {
 public:
  frmVerifyPasscodes();
  std::int32_t Display(Value& vresult, Value& vpresent, std::int16_t& bChangedStatus, std::int16_t vPasscodeLength,
                       std::int16_t iUserRows, std::int16_t bThroughSIA, std::int16_t bThroughComm,
                       const Value& SecurityLevels);

 private:
  /// What `bChangedStatus` tells, in codes other than those of `ExitCode`.
  enum class Outcome : std::int16_t { Cancelled = 0, SaveCorrected = 1, DisableLength = 2 };
  static constexpr int kUserCount = 250;

  void Form_Load();
  void LoadCaptions();
  void CopyBack(Array& result, Array& present) const;

  void LoadPasscodeGrid();
  void CloseGapOfOptions();
  /// Lists and marks the passcodes in trouble.
  void UpdateMatchPassCodes();
  void JudgeUser(int user);
  /// Lists the users whose passcodes collide with what has been typed.
  void UpdateExistingPassCodeLists(const std::string& sPasscode);
  /// 1 where the text is in the family of a user other than that of the current row.
  [[nodiscard]] std::int16_t IsDuressOfOtherUser(const std::string& s) const;
  void SetFlexClrAliFont(std::optional<std::int32_t> Color, std::optional<bool> Bold, std::optional<int> Alignment,
                         std::optional<int> Row = {}, std::optional<int> Col = {});

  void fa_DblClick();
  void fa_StartEdit(bool& cancel);
  void fa_KeyPressEdit(int& key);
  void fa_AfterEdit(int row, int col);
  void TakeCorrection(int row, int col);
  /// A failure in it is one of the notification, and shown as such.
  void Refuse(int row, int col, std::int16_t text);
  void Accept(int row, int col, const std::string& code);
  /// Runs a notification of the grid; its failure is shown, followed by the given words.
  void Notified(const std::function<void()>& handler, const std::string& words);

  void Timer1_Timer();
  void optSave_Click();
  void cmdOK_Click();
  void cmdCancel_Click();
  void EndIfConfirmed(std::int16_t question, Outcome outcome);

  /// Whether user 0 and the choice of outcomes are left out.
  [[nodiscard]] bool LeavesOutUserZero() const { return ApplicationType == 1; }
  /// The user in a row of the grid, and the row of a user.
  [[nodiscard]] int UserOf(int row) const { return LeavesOutUserZero() ? row : row - 1; }
  [[nodiscard]] int RowOf(int user) const { return LeavesOutUserZero() ? user : user + 1; }
  [[nodiscard]] std::string CutToLength(const Value& code) const;

  Dialog Form{
      "frmVerifyPasscodes", 10717, {.ReleasesServices = true, .Unloads = true, .HandlesFailures = true}, {9900, 7200}};

  Label lblCaption{Form, "lblCaption"};
  Grid fa{Form, "fa", {.Rows = 251, .Cols = 2, .FixedRows = 1, .FixedCols = 1, .Common = {.Width = 3180}}};
  ListBox lstMatch{Form, "lstMatch", {.HasHeading = true}};
  ListBox lstUnusable{Form, "lstUnusable", {.HasHeading = true}};
  ListBox lstExisting{Form, "lstExisting", {.HasHeading = true}};
  Label Label1{Form, "Label1", 10726, Label::Text, {.Top = 5640}};
  Label Label2{Form, "Label2", 10727, Label::Text, {.Top = 5640}};
  Label Shape1{Form, "Shape1", "", Label::ColourOf(Label1), {.Top = 5640}};
  Label Shape2{Form, "Shape2", "", Label::ColourOf(Label2), {.Top = 5640}};
  OptionButton optSave{Form, "optSave", 10718};
  OptionButton optPlZeroSsave{Form, "optPlZeroSsave"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};
  Timer Timer1{Form, "Timer1", {.Interval = 100}};

  std::int16_t PasscodeLength = 0;
  Array ResultCodes;
  Array PresentCodes;
  std::array<std::uint8_t, kUserCount> MatchFlags{};
  std::array<std::uint8_t, kUserCount> UnusableFlags{};
  bool AnyFlagged = false;
  std::int16_t UserRows = 0;
  std::int16_t ThroughSIA = 0;
  std::int16_t ThroughComm = 0;
  std::int16_t ApplicationType = 0;
  // The text of the cell before the edit that is under way.
  std::string PrevCellValue;
  Outcome outcome_ = Outcome::Cancelled;
};

}  // namespace orlin
