#include "support/dialog_call.h"

#include <algorithm>
#include <regex>
#include <sstream>

#include "catalogue/text_catalogue.h"

namespace orlin::testing {
namespace {

std::string MakeNumbersForTexts() {
  static const std::regex variable("%[A-Z_]+%");
  std::string catalogue;
  for (std::int16_t number = 1; number < 11000; ++number) {
    const auto text = TextCatalogue().GetLocalTextBASE(number);
    if (text.empty()) continue;
    catalogue += std::to_string(number) + "\t" + std::to_string(number);
    for (std::sregex_iterator at(text.begin(), text.end(), variable), end; at != end; ++at)
      catalogue += " " + at->str();
    catalogue += "\n";
  }
  return catalogue;
}

/// Whether a row follows on another: the number or letter at one end is the next one, and all else is the same.
bool Follows(const std::string& row, const std::string& before, bool atTheFront) {
  const auto at = atTheFront ? 0 : before.rfind(' ') + 1;
  const auto length = atTheFront ? std::min(before.find(' '), before.size()) : before.size() - at;
  auto word = before.substr(at, length);
  if (word.empty()) return false;
  if (word.size() < 9 && word.find_first_not_of("0123456789") == std::string::npos) {
    word = std::to_string(std::stoi(word) + 1);
  } else {
    ++word.back();
  }
  return row == std::string(before).replace(at, length, word);
}

std::string Replaced(std::string text, const std::string& old, const std::string& with) {
  for (auto at = text.find(old); at != std::string::npos; at = text.find(old, at + with.size())) {
    text.replace(at, old.size(), with);
  }
  return text;
}

std::string Plain(const Json& value) { return value.is_string() ? value.get<std::string>() : value.dump(); }

/// A value as the command line writes it, with single quotes.
std::string Written(const Value& value) {
  if (const auto* array = value.Get<Array>()) {
    std::string written;
    const auto& all = array->Elements();
    for (std::size_t i = 0, end = 0; i < all.size(); i = end) {
      while (end < all.size() && all[end] == all[i]) ++end;
      if (end - i < 3) end = i + 1;
      written += (i == 0 ? "" : ",") + Written(all[i]) + (end - i < 3 ? "" : "*" + std::to_string(end - i));
    }
    return "[" + written + "]";
  }
  std::ostringstream told;
  PrintTo(value, &told);
  return Replaced(told.str(), "\"", "'");
}

std::string ToldOf(const DialogRun& run, std::string word) {
  if (word == "result") return run.Result ? std::to_string(*run.Result) : "raised " + std::to_string(run.Raised);
  if (word == "beeps") return std::to_string(run.Events("beep").size());
  if (word == "failures") return std::to_string(run.Events("failure").size());
  if (word == "title") return Plain(run.Events("show").at(0).at("caption"));
  if (word == "events") {
    std::string told;
    for (const auto& line : run.Lines) told += (told.empty() ? "" : " ") + Plain(line.at("event"));
    return told;
  }
  if (word == "messages") {
    std::string told;
    for (const auto& line : run.Events("message")) {
      if (!told.empty()) told += ", ";
      told += Plain(line.at("text")) + "/" + Plain(line.at("title")) + "/" + line.at("flags").dump();
    }
    return told;
  }
  if (run.Arguments.contains(word)) return Written(run.Argument(word));
  std::optional<std::size_t> dump;
  if (const auto colon = word.find(':'); colon != std::string::npos) {
    dump = static_cast<std::size_t>(std::stoi(word));
    word.erase(0, colon + 1);
  }
  if (word == "focus") return Plain(run.Focus(dump));
  const auto dot = word.find('.');
  const auto control = run.Control(word.substr(0, dot), dump);
  if (dot != std::string::npos) {
    const auto property = word.substr(dot + 1);
    if (property == "rows") return std::to_string(control.at("list").size());
    if (property == "on") return Plain(control.at("visible")) + "/" + Plain(control.at("enabled"));
    return Plain(control.at(property));
  }
  if (control.contains("list")) return "[" + Listing(control.at("list")) + "]";
  return Plain(control.at(control.contains("text") ? "text" : "caption"));
}

}  // namespace

const std::string& NumbersForTexts() {
  static const auto numbers = MakeNumbersForTexts();
  return numbers;
}

Strings Split(const std::string& text, const std::string& separator) {
  Strings parts;
  if (text.empty()) return parts;
  std::size_t begin = 0;
  for (auto end = text.find(separator); end != std::string::npos; end = text.find(separator, begin)) {
    parts.push_back(text.substr(begin, end - begin));
    begin = end + separator.size();
  }
  parts.push_back(text.substr(begin));
  return parts;
}

std::string Listing(const Strings& rows) {
  std::string listing;
  bool wasWord = false;
  for (std::size_t at = 0, end = 0; at < rows.size(); at = end) {
    std::size_t turns = 1;
    bool front = false;
    end = at + 1;
    for (const auto& [tried, atTheFront] : {std::pair{1U, false}, {1U, true}, {2U, false}}) {
      auto last = at + tried;
      while (last < rows.size() && Follows(rows[last], rows[last - tried], atTheFront)) ++last;
      last -= (last - at) % tried;
      if (end == at + 1 && last >= at + 3 * tried) turns = tried, end = last, front = atTheFront;
    }
    const bool isWord = turns == 1 && rows[at].find(' ') == std::string::npos;
    if (!listing.empty()) listing += isWord && wasWord ? " " : ", ";
    wasWord = isWord;
    const auto& last = rows[end - 1];
    listing += rows[at] + (turns == 2 ? ", " + rows[at + 1] + ".." + rows[end - 2] + ", " + last : "");
    if (turns == 1 && end > at + 1) listing += ".." + (front ? last : last.substr(last.rfind(' ') + 1));
  }
  return listing;
}

std::string Told(const DialogRun& run, const std::string& words) {
  std::string told;
  for (const auto& word : Split(words, " ")) told += " " + ToldOf(run, word);
  return told.substr(1);
}

void ExpectEach(const Cases& cases, const Strings& rows) {
  for (const auto& row : rows) {
    SCOPED_TRACE(row);
    const auto cells = Split(row, "|");
    auto call = cases.Call, script = cases.Script;
    for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
      const auto mark = "{" + std::to_string(i) + "}";
      call = Replaced(call, mark, cells[i]);
      script = Replaced(script, mark, cells[i]);
    }
    Strings words;
    for (const auto& word : Split(Replaced(call, "'", "\""), " ")) {
      // A blank between quotes is part of a word.
      const bool within = !words.empty() && std::count(words.back().begin(), words.back().end(), '"') % 2 == 1;
      if (within) {
        words.back() += " " + word;
      } else if (!word.empty()) {
        words.push_back(word);
      }
    }
    PlayOptions options{.Levels = cases.Levels, .Settings = cases.Settings};
    if (!cases.Texts) options.Catalogue = NumbersForTexts();
    const auto run = Play(words.front(), Strings(words.begin() + 1, words.end()),
                          Replaced(Replaced(script, "'", "\""), ";", "\n"), options);
    EXPECT_EQ(Told(run, cases.Words), cells.back());
  }
}

}  // namespace orlin::testing
