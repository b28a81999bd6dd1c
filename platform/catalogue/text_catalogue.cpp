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

std::vector<std::string> TextCatalogue::GetOtherLanguagesBASE(std::int16_t id) {
  std::vector<std::string> texts;
  if (replacements_ != nullptr && replacements_->contains(id)) return texts;
  for (const auto& language : Languages()) {
    const auto text = language.Find(id);
    if (language.Name != language_.Name && !text.empty()) texts.emplace_back(text);
  }
  return texts;
}

}  // namespace orlin
