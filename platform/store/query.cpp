#include "store/query.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include <strings.h>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {
namespace {

class Parser {
 public:
  explicit Parser(std::string_view text) : rest_(text) {}

  Query Parse() {
    Query query;
    Word("SELECT");
    Word("*");
    Word("FROM");
    query.Table = Name();
    for (auto word = "WHERE"; !AtEnd(); word = "AND") {
      Word(word);
      auto column = Name();
      Word("=");
      query.Conditions.push_back({std::move(column), Literal()});
    }
    return query;
  }

 private:
  [[noreturn]] static void Fail() { throw Failure(failures::InvalidCall, "This is no query of the store"); }

  bool AtEnd() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
    return rest_.empty();
  }

  void Word(std::string_view word) {
    if (AtEnd() || rest_.size() < word.size() || strncasecmp(rest_.data(), word.data(), word.size()) != 0) Fail();
    rest_.remove_prefix(word.size());
  }

  std::string Name() {
    Word("[");
    const auto end = rest_.find(']');
    if (end == std::string_view::npos || end == 0) Fail();
    std::string name(rest_.substr(0, end));
    rest_.remove_prefix(end + 1);
    return name;
  }

  Value Literal() {
    if (AtEnd()) Fail();
    return rest_.front() == '\'' ? Value(Quoted()) : Value(Number());
  }

  std::string Quoted() {
    std::string text;
    while (true) {
      rest_.remove_prefix(1);  // the mark that starts the text, or the second one of a pair inside it
      const auto end = rest_.find('\'');
      if (end == std::string_view::npos) Fail();
      text += rest_.substr(0, end);
      rest_.remove_prefix(end + 1);
      if (!rest_.starts_with('\'')) return text;
      text += '\'';
    }
  }

  std::int32_t Number() {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
    if (error != std::errc()) Fail();
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return number;
  }

  std::string_view rest_;
};

}  // namespace

Query ParseQuery(std::string_view text) { return Parser(text).Parse(); }

}  // namespace orlin
