#pragma once

#include <QWidget>
#include <map>
#include <string>

#include "OrlinCustomDialogs/host/controls.h"

namespace orlin {

/// The texts of several lines in a dialog, which take an operator long to write and a slip to lose.
class ChangedTexts {
 public:
  /// Takes the texts as they are when the dialog opens.
  void Remember(const shown::Dialog& dialog);
  /// Whether one that the operator can write is another one now.
  [[nodiscard]] bool Any() const;

 private:
  std::map<const shown::TextField*, std::string> before_;
};

/// Asks whether a window may close although its texts have been changed.
[[nodiscard]] bool MayBeLost(QWidget& window);

}  // namespace orlin
