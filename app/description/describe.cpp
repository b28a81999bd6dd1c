#include "app/description/describe.h"

#include <utility>

#include "app/account/account.h"
#include "app/calls/arguments.h"
#include "app/description/describer.h"
#include "app/description/description_output.h"
#include "app/usage/status.h"

namespace orlin {

int Describe(DescribeOptions options, std::ostream& out) {
  Describer describer(std::move(options.Platform), options.Json ? Wording::Fixed : Wording::Translated);
  int result = status::Done;
  const auto describe = [&](const PublicClass& publicClass, std::vector<Value> values, ValueForm form,
                            const std::optional<std::string>& name) {
    const auto description = describer.Describe(publicClass, std::move(values), form);
    options.Json ? PrintJson(description, name, out) : PrintText(description, name, out);
    if (description.Failed) result = status::Failed;
  };
  if (!options.Account) {
    const auto& publicClass = ClassNamed(options.Class);
    describe(publicClass, BindArguments(publicClass, options.Arguments, options.Levels), options.Form, std::nullopt);
    return result;
  }
  const Account account(*options.Account);
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    if (i > 0 && !options.Json) out << '\n';
    const auto& parameter = account.Parameters()[i];
    describe(*parameter.Class, account.ValuesOf(i), ValueForm::Stored, parameter.Name);
  }
  return result;
}

}  // namespace orlin
