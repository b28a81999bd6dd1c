#include "app/usage/suggestion.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orlin {
namespace {

constexpr std::size_t kMostSuggestions = 3;
constexpr std::size_t kShortestPart = 3;  // shorter parts stand in too many words

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

/// How many characters have to be put in, left out or replaced to make one text of the other.
std::size_t Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> costs(to.size() + 1);
  std::iota(costs.begin(), costs.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    auto diagonal = std::exchange(costs[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const auto replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = costs[j + 1];
      costs[j + 1] = std::min({replaced, costs[j] + 1, diagonal + 1});
    }
  }
  return costs.back();
}

}  // namespace

std::string DidYouMean(std::string_view unknown, const std::vector<std::string>& known) {
  const auto wrong = LowerCase(unknown);
  const auto farthest = std::max<std::size_t>(2, wrong.size() / 3);
  std::vector<std::pair<std::size_t, std::string>> near;
  for (const auto& word : known) {
    const auto right = LowerCase(word);
    const auto distance = Distance(wrong, right);
    const bool isPart = wrong.size() >= kShortestPart && right.find(wrong) != std::string::npos;
    if (isPart || (distance <= farthest && distance < wrong.size())) near.emplace_back(distance, word);
  }
  if (near.empty()) return {};
  std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> nearest;
  for (std::size_t i = 0; i < std::min(near.size(), kMostSuggestions); ++i) nearest.push_back(near[i].second);
  return " (did you mean " + Enumerated(nearest, "or") + "?)";
}

std::string Enumerated(const std::vector<std::string>& words, std::string_view last) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const bool isLast = i + 1 == words.size();
    if (i > 0) text.append(isLast ? ' ' + std::string(last) + ' ' : ", ");
    text.append(words[i]);
  }
  return text;
}

}  // namespace orlin
