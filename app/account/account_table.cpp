#include "app/account/account_table.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <tuple>

#include "OrlinCustomDialogs/failure.h"

#include "app/calls/arguments.h"
#include "app/calls/installed_platform.h"
#include "app/calls/value_text.h"
#include "app/description/description_output.h"

namespace orlin {
namespace {

constexpr std::string_view kDots = "\u2022\u2022\u2022\u2022";

// Texts of the catalogue.
constexpr std::int16_t kTitle = 20300;
constexpr std::int16_t kStored = 20308;
constexpr std::int16_t kNotChanged = 20309;
constexpr std::int16_t kTheSame = 20310;
constexpr std::int16_t kFailed = 20311;
constexpr std::int16_t kNotStored = 20312;
constexpr std::int16_t kClash = 20313;
constexpr std::int16_t kUndone = 20314;
constexpr std::int16_t kRedone = 20315;
constexpr std::int16_t kNothingToUndo = 20316;
constexpr std::int16_t kNothingToRedo = 20317;
constexpr std::int16_t kChangedOutside = 20318;
constexpr std::int16_t kUnreadable = 20319;
constexpr std::int16_t kGone = 20320;

bool HasSecret(const PublicClass& editor) {
  const auto& parameters = editor.Parameters();
  return std::any_of(parameters.begin(), parameters.end(), [](const auto& parameter) { return parameter.Secret; });
}

/// "NAME=VALUE  NAME=VALUE"
std::string RawOf(const Account::Parameter& parameter, bool withSecrets) {
  std::string raw;
  for (const auto& argument : parameter.Arguments) {
    const auto equals = argument.find('=');
    const auto& declared = parameter.Class->Parameters()[PlaceOf(*parameter.Class, argument.substr(0, equals))];
    raw.append(raw.empty() ? "" : "  ");
    raw.append(declared.Secret && !withSecrets ? declared.Name + '=' + std::string(kDots) : argument);
  }
  return raw;
}

}  // namespace

AccountTable::AccountTable(Account& account, StandardPlatformOptions platform)
    : account_(account), windows_(StandardPlatform(platform)), describer_(std::move(platform)) {
  texts_ = std::dynamic_pointer_cast<LocalTextComponent>(windows_.Components.at("LocalText.clsLocalText")());
  Update();
  first_ = now_;
}

std::string AccountTable::Title() const { return Filled(kTitle, {{"PANEL", account_.Panel()}}); }

std::string AccountTable::Text(std::int16_t number) const { return texts_->GetLocalTextBASE(number); }

/// Values that hold a marker themselves are not searched.
std::string AccountTable::Filled(std::int16_t number, const Variables& variables) const {
  auto rest = Text(number);
  std::string filled;
  while (!rest.empty()) {
    const auto found = std::find_if(variables.begin(), variables.end(), [&](const auto& variable) {
      return rest.starts_with('%' + std::string(variable.first) + '%');
    });
    const bool marks = found != variables.end();
    filled.append(marks ? found->second : rest.substr(0, 1));
    rest.erase(0, marks ? found->first.size() + 2 : 1);
  }
  return filled;
}

bool AccountTable::HasSecrets() const {
  const auto& all = account_.Parameters();
  return std::any_of(all.begin(), all.end(), [](const auto& parameter) { return HasSecret(*parameter.Class); });
}

void AccountTable::ShowSecrets(bool shown) {
  secretsShown_ = shown;
  Update();
}

std::string AccountTable::Guarded(const std::string& name, const std::function<std::string()>& work) {
  std::string told;
  try {
    told = work();
  } catch (const Failure& failure) {
    told = Filled(kFailed,
                  {{"NAME", name}, {"NUMBER", std::to_string(failure.Number())}, {"TEXT", failure.Description()}});
  } catch (const std::exception& error) {
    // Nothing is thrown through the window.
    told = Filled(kNotStored, {{"NAME", name}, {"TEXT", error.what()}});
  }
  Update();
  return told;
}

std::string AccountTable::Open(std::size_t row) {
  return Guarded(account_.Parameters().at(row).Name, [&] { return Edit(row); });
}

std::string AccountTable::Edit(std::size_t row) {
  // Of its own: what is stored is a new list of parameters.
  const auto parameter = account_.Parameters().at(row);
  const auto& editor = *parameter.Class;
  const auto key = Keys()[row];
  const auto stored = account_.ValuesOf(row);
  auto arguments = editor.ArgumentsFrom(stored);
  const auto result = [&] {
    const InstalledPlatform installed(windows_);
    return editor.Display(arguments);
  }();
  if (!editor.Confirmed(result, arguments)) return Filled(kNotChanged, {{"NAME", parameter.Name}});
  const auto values = editor.StoredFrom(stored, arguments);
  try {
    if (!account_.Store(row, values)) return Filled(kTheSame, {{"NAME", parameter.Name}});
  } catch (const ChangedMeanwhile& error) {
    return Clash(parameter, error.Found, values);
  }
  done_.push_back({key, stored, values});
  undone_.clear();
  return Filled(kStored, {{"NAME", parameter.Name}});
}

std::string AccountTable::Undo() { return done_.empty() ? Text(kNothingToUndo) : PutBack(done_, undone_, true); }

std::string AccountTable::Redo() { return undone_.empty() ? Text(kNothingToRedo) : PutBack(undone_, done_, false); }

std::string AccountTable::PutBack(std::vector<Change>& from, std::vector<Change>& to, bool undo) {
  const auto& change = from.back();
  const auto keys = Keys();
  const auto row = static_cast<std::size_t>(std::find(keys.begin(), keys.end(), change.Key) - keys.begin());
  const auto name = change.Key.substr(0, change.Key.find('\n'));
  if (row == keys.size()) {
    from.pop_back();
    return Filled(kGone, {{"NAME", name}});
  }
  // What cannot be written now stays to be put back.
  return Guarded(name, [&] {
    const auto parameter = account_.Parameters()[row];
    const auto& left = undo ? change.After : change.Before;
    const auto& wanted = undo ? change.Before : change.After;
    std::string told;
    try {
      const auto found = account_.ValuesOf(row);
      if (!DifferentPlaces(*parameter.Class, found, left).empty()) throw ChangedMeanwhile({}, found);
      account_.Store(row, wanted);
      told = Filled(undo ? kUndone : kRedone, {{"NAME", name}});
      to.push_back(change);
    } catch (const ChangedMeanwhile& error) {
      told = Clash(parameter, error.Found, wanted);
    }
    from.pop_back();
    return told;
  });
}

std::string AccountTable::Clash(const Account::Parameter& parameter, const std::vector<Value>& there,
                                const std::vector<Value>& here) {
  const auto words = Words(*parameter.Class, there, here);
  return Filled(kClash, {{"NAME", parameter.Name}, {"THERE", words.first}, {"HERE", words.second}});
}

std::string AccountTable::Refresh() {
  try {
    if (!account_.ReadAgain()) return {};
  } catch (const std::exception& error) {
    return Filled(kUnreadable, {{"TEXT", error.what()}});
  }
  std::string names;
  for (const auto& name : Update()) names.append(names.empty() ? "" : ", ").append(name);
  return names.empty() ? names : Filled(kChangedOutside, {{"NAMES", names}});
}

/// The first line is the name; names may be there twice.
std::vector<std::string> AccountTable::Keys() const {
  std::map<std::string, int> alike;
  std::vector<std::string> keys;
  for (const auto& parameter : account_.Parameters()) {
    const auto key = parameter.Name + '\n' + parameter.Class->Name() + '\n';
    keys.push_back(key + std::to_string(alike[key]++));
  }
  return keys;
}

std::vector<std::string> AccountTable::Update() {
  std::vector<std::string> changed;
  auto before = std::exchange(now_, {});
  rows_.clear();
  const auto keys = Keys();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const auto& parameter = account_.Parameters()[i];
    const auto& editor = *parameter.Class;
    auto& held = now_[keys[i]] = std::move(before[keys[i]]);
    if (const auto raw = RawOf(parameter, true); raw != held.Shown.Raw) {
      held.Values = account_.ValuesOf(i);
      held.Shown = {WordsOf(describer_.Describe(editor, held.Values, ValueForm::Stored)), raw};
      changed.push_back(parameter.Name);
    }
    auto& row = rows_.emplace_back(ParameterRow{parameter.Name, editor.Name(), held.Shown, std::nullopt});
    const auto first = first_.find(keys[i]);
    if (first != first_.end() && first->second.Shown != held.Shown) {
      row.Before = first->second.Shown;
      std::tie(row.Before->Words, row.Now.Words) = Words(editor, first->second.Values, held.Values);
    }
    if (!HasSecret(editor) || secretsShown_) continue;
    row.Now = {std::string(kDots), RawOf(parameter, false)};
    if (row.Before) row.Before = row.Now;
  }
  return changed;
}

std::pair<std::string, std::string> AccountTable::Words(const PublicClass& editor, const std::vector<Value>& a,
                                                        const std::vector<Value>& b) {
  if (HasSecret(editor) && !secretsShown_) return {std::string(kDots), std::string(kDots)};
  auto words = DifferentWords(describer_.Describe(editor, a, ValueForm::Stored),
                              describer_.Describe(editor, b, ValueForm::Stored));
  if (words.first != words.second) return words;
  words = {};
  for (const auto i : DifferentPlaces(editor, a, b)) {
    const auto name = (words.first.empty() ? "" : "; ") + editor.Parameters()[i].Name + '=';
    words.first.append(name).append(FormatValue(a[i]));
    words.second.append(name).append(FormatValue(b[i]));
  }
  return words;
}

}  // namespace orlin
