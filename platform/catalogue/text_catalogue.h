#pragma once

#include <memory>

#include "OrlinCustomDialogs/components.h"

#include "catalogue/catalogue_file.h"

namespace orlin {

/// The text catalogue: English, which is compiled in, unless a file replaces a text. Cheap to create: the library makes
/// one for each dialog, and all share the table of replacements.
class TextCatalogue : public LocalTextComponent {
 public:
  /// `replacements`: null for none.
  explicit TextCatalogue(std::shared_ptr<const TextTable> replacements = nullptr);

  std::string GetLocalTextBASE(std::int16_t id) override;

 private:
  std::shared_ptr<const TextTable> replacements_;
};

}  // namespace orlin
