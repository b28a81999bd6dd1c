#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/components.h"

#include "catalogue/catalogue_file.h"
#include "catalogue/languages.h"

namespace orlin {

/// The text catalogue: a text of the file that replaces texts, else of the language, else the English one. Cheap to
/// create: the library makes one for each dialog, and all share the table of replacements.
class TextCatalogue : public LocalTextComponent {
 public:
  /// `replacements`: null for none.
  explicit TextCatalogue(std::shared_ptr<const TextTable> replacements = nullptr,
                         const Language& language = LanguageOf("en"));

  std::string GetLocalTextBASE(std::int16_t id) override;
  /// None for a text of the file, which replaces that of every language.
  std::vector<std::string> GetOtherLanguagesBASE(std::int16_t id) override;

 private:
  std::shared_ptr<const TextTable> replacements_;
  Language language_;
};

}  // namespace orlin
