// A host application in small: two editors, opened by type and by name, for an operator who always picks the second row
// of the first list that he may change, and confirms.

#include <iostream>
#include <memory>
#include <vector>

#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/security_levels.h"
#include "OrlinCustomDialogs/zones.h"

namespace {

// Who shows the dialogs. A real host presents the controls, and turns what the operator does into calls on them.
class SecondRowHost final : public orlin::DialogHost {
 public:
  orlin::SizeInTwips Screen() const override { return {15360, 11520}; }

  void ShowModal(orlin::shown::Dialog& dialog) override {
    std::cout << dialog.Caption() << '\n';
    dialog.Activate();
    for (auto* control : dialog.Controls()) {
      auto* list = control->AsRowList();
      if (list != nullptr && !list->PickRow(1)) break;  // no refusal: it is done
    }
    static_cast<void>(dialog.DefaultButton()->Press());
    if (dialog.IsShown()) dialog.Close();  // OK was refused
  }

  int ShowMessage(const orlin::Message& message) override {
    std::cout << "Message: " << message.Text << '\n';
    return orlin::answers::Ok;
  }

  void Beep() override {}
};

}  // namespace

int main() {
  // Once, before the first call: the host, and the stand-ins for texts, settings, faults, clock and account store.
  orlin::StandardPlatformOptions options;
  options.Host = std::make_shared<SecondRowHost>();
  orlin::UsePlatform(orlin::StandardPlatform(options));

  // By type. The operator's levels are 1 and 1, so that a part that wants an edit level of 2 cannot be changed.
  const auto levels = std::make_shared<orlin::SecurityLevels>();
  levels->Add("AuthorityLevel", 1, 1);
  levels->Add("Type", 0, 2);
  orlin::Value type{std::int16_t{3}};
  orlin::Value response{std::int16_t{0}};
  orlin::Value troubleOn{std::int16_t{2}};
  const auto outcome = orlin::clsZoneFunctionsBirch().Display("Zone 7", type, response, troubleOn, levels);
  std::cout << "Result " << outcome << ": type " << *type.Get<std::int16_t>() << ", response "
            << *response.Get<std::int16_t>() << ", trouble on " << *troubleOn.Get<std::int16_t>() << '\n';

  // By name, as a host does that learns from its data which editor a parameter has. The class knows the rest: what it
  // takes for the values that are stored, whether the operator confirmed, and what to store then.
  std::vector<orlin::Value> stored{std::int16_t{5}, "5111"};  // ZoneNum and ZoneCode
  const auto& editor = *orlin::FindPublicClass("clsZoneFunctionsWillow");
  auto arguments = editor.ArgumentsFrom(stored);
  const auto result = editor.Display(arguments);
  if (editor.Confirmed(result, arguments)) stored = editor.StoredFrom(stored, arguments);
  std::cout << "Zone 5: " << *stored[1].Get<std::string>() << '\n';
}
