#include "catalogue/text_catalogue.h"

#include <utility>

namespace orlin {

TextCatalogue::TextCatalogue(std::shared_ptr<const TextTable> replacements, const Language& language)
    : replacements_(std::move(replacements)), language_(language) {}

std::string TextCatalogue::GetLocalTextBASE(std::int16_t id) {
  if (replacements_ != nullptr) {
    if (const auto found = replacements_->find(id); found != replacements_->end()) return found->second;
  }
  const auto text = language_.Find(id);
  return std::string(text.empty() ? LanguageOf("en").Find(id) : text);
}

}  // namespace orlin
