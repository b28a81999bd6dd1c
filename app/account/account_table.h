#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/platform.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "app/account/account.h"
#include "app/description/describer.h"
#include "window_system/window_system.h"

namespace orlin {

/// The parameters of an account on the table of an operator: what they hold, in words too, and what was changed here,
/// which can be taken back.
class AccountTable final : public ParameterTable {
 public:
  /// The account outlives the table. The platform has a host that shows windows. `PlatformError` where it makes no
  /// sense.
  AccountTable(Account& account, StandardPlatformOptions platform);

  [[nodiscard]] std::string Title() const override;
  [[nodiscard]] std::string Text(std::int16_t number) const override;
  [[nodiscard]] const std::vector<ParameterRow>& Rows() const override { return rows_; }
  std::string Open(std::size_t row) override;
  std::string Undo() override;
  std::string Redo() override;
  std::string Refresh() override;
  [[nodiscard]] std::string File() const override { return account_.File().string(); }
  [[nodiscard]] bool HasSecrets() const override;
  void ShowSecrets(bool shown) override;

 private:
  /// What one parameter held and holds. Its place may change, so it goes by what it is called.
  struct Change {
    std::string Key;
    std::vector<Value> Before, After;
  };

  using Variables = std::vector<std::pair<std::string_view, std::string>>;
  [[nodiscard]] std::string Filled(std::int16_t number, const Variables& variables) const;
  [[nodiscard]] std::string Guarded(const std::string& name, const std::function<std::string()>& work);
  std::string Edit(std::size_t row);
  std::string PutBack(std::vector<Change>& from, std::vector<Change>& to, bool undo);
  [[nodiscard]] std::string Clash(const Account::Parameter& parameter, const std::vector<Value>& there,
                                  const std::vector<Value>& here);
  [[nodiscard]] std::vector<std::string> Keys() const;
  /// What two sets of values mean, as far as it differs; the values themselves where it does not.
  [[nodiscard]] std::pair<std::string, std::string> Words(const PublicClass& editor, const std::vector<Value>& a,
                                                          const std::vector<Value>& b);
  /// Brings the rows up to date, and returns the names of those that hold something else now.
  std::vector<std::string> Update();

  Account& account_;
  Platform windows_;
  Describer describer_;
  std::shared_ptr<LocalTextComponent> texts_;
  std::vector<ParameterRow> rows_;
  struct Held {
    std::vector<Value> Values;
    ShownValues Shown;  ///< without dots
  };
  std::map<std::string, Held> first_, now_;  // by key
  std::vector<Change> done_, undone_;
  bool secretsShown_ = false;
};

}  // namespace orlin
