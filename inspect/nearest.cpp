#include "inspect/nearest.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <utility>

namespace kavrix::inspect {
namespace {

constexpr std::size_t kMostChanges = 2;

char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string ToLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = ToLower(c);
  return lower;
}

// Returns how many characters to insert, remove or replace make `text` the word.
std::size_t Changes(std::string_view text, std::string_view word) {
  // Of each beginning of the word, from the text until here.
  std::vector<std::size_t> changes(word.size() + 1);
  std::iota(changes.begin(), changes.end(), std::size_t{0});
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::size_t diagonal = std::exchange(changes[0], i + 1);
    for (std::size_t j = 1; j <= word.size(); ++j) {
      const std::size_t replaced = diagonal + (text[i] == word[j - 1] ? 0 : 1);
      diagonal = changes[j];
      changes[j] = std::min({replaced, changes[j] + 1, changes[j - 1] + 1});
    }
  }
  return changes.back();
}

// The first end of a piece of a text that is closest to a word.
struct ClosestPiece {
  std::size_t end = 0;
  std::size_t changes = 0;
};

// The algorithm of Myers: a column of the table that Changes fills fits a machine word, as differences of
// neighbours. A piece may begin anywhere. The word has at most 64 characters.
ClosestPiece FindClosestPiece(std::string_view text, std::string_view word) {
  std::array<std::uint64_t, 256> places{};  // of each character in the word
  for (std::size_t i = 0; i < word.size(); ++i) {
    places[static_cast<unsigned char>(word[i])] |= std::uint64_t{1} << i;
  }
  const std::uint64_t last = std::uint64_t{1} << (word.size() - 1);
  std::uint64_t more = ~std::uint64_t{0};  // where the column grows, and where it shrinks
  std::uint64_t fewer = 0;
  ClosestPiece closest = {0, word.size()};
  std::size_t changes = word.size();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::uint64_t same = places[static_cast<unsigned char>(text[i])];
    const std::uint64_t down = same | fewer;
    const std::uint64_t across = (((same & more) + more) ^ more) | same;
    std::uint64_t grows = fewer | ~(across | more);
    std::uint64_t shrinks = more & across;
    if ((grows & last) != 0) ++changes;
    if ((shrinks & last) != 0) --changes;
    grows <<= 1;
    shrinks <<= 1;
    more = shrinks | ~(down | grows);
    fewer = grows & down;
    if (changes < closest.changes) closest = {i + 1, changes};
  }
  return closest;
}

// The beginning of the piece closest to the word that ends at `end`.
std::size_t BeginOfPiece(std::string_view text, std::size_t end, std::string_view word) {
  std::size_t best = end;
  std::size_t least = word.size() + 1;
  const std::size_t most = std::min(end, word.size() + kMostChanges);
  for (std::size_t length = word.size() - kMostChanges; length <= most; ++length) {
    const std::size_t changes = Changes(text.substr(end - length, length), word);
    if (changes >= least) continue;
    least = changes;
    best = end - length;
  }
  return best;
}

}  // namespace

std::optional<std::string> NearestWord(std::string_view text, const std::vector<std::string>& words) {
  constexpr std::size_t kShort = 5;
  std::optional<std::string> nearest;
  std::size_t least = kMostChanges + 1;
  for (const std::string& word : words) {
    if (ToLower(word) == ToLower(text)) return word;
    const std::size_t most = word.size() <= kShort ? 1 : kMostChanges;
    const std::size_t changes = Changes(text, word);
    if (changes > most || changes >= least || changes + 1 >= word.size()) continue;
    least = changes;
    nearest = word;
  }
  return nearest;
}

std::optional<NearMarker> FindNearMarker(std::string_view name) {
  const std::string lower_name = ToLower(name);
  std::optional<NearMarker> nearest;
  std::size_t least = kMostChanges + 1;
  for (const BubbleKind kind : kBubbleKinds) {
    const std::string_view marker = MarkerOf(kind);
    const std::size_t same_but_case = lower_name.find(ToLower(marker));
    if (same_but_case != std::string::npos) {
      return NearMarker{kind, {same_but_case, same_but_case + marker.size()}, true};
    }
    const ClosestPiece closest = FindClosestPiece(name, marker);
    if (closest.changes >= least) continue;
    least = closest.changes;
    nearest = NearMarker{kind, {BeginOfPiece(name, closest.end, marker), closest.end}, false};
  }
  return nearest;
}

}  // namespace kavrix::inspect
