#include "catalogue/text_catalogue.h"

#include <algorithm>
#include <utility>

#include "catalogue/english.h"

namespace orlin {

TextCatalogue::TextCatalogue(std::shared_ptr<const TextTable> replacements) : replacements_(std::move(replacements)) {}

std::string TextCatalogue::GetLocalTextBASE(std::int16_t id) {
  if (replacements_ != nullptr) {
    if (const auto found = replacements_->find(id); found != replacements_->end()) return found->second;
  }
  const auto english = EnglishTexts();
  const auto found = std::ranges::lower_bound(english, id, {}, &EnglishText::Number);
  return found != english.end() && found->Number == id ? std::string(found->Text) : std::string();
}

}  // namespace orlin
