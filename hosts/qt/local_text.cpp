#include "qt/local_text.h"

#include <memory>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/failure.h"

#include "qt/texts.h"

namespace orlin {

QString LocalText(std::int16_t number) {
  try {
    const auto catalogue = std::dynamic_pointer_cast<LocalTextComponent>(CreateObject("LocalText.clsLocalText"));
    return catalogue == nullptr ? QString() : Shown(catalogue->GetLocalTextBASE(number));
  } catch (const Failure&) {
    return {};
  }
}

}  // namespace orlin
