#include "map_resource/bubble_markers.h"

#include <cstdint>

namespace kavrix {
namespace {

// Every marker is a dot and a word that ends so. The search looks for this tail: its first letter is rare in
// names, and dots, however many a name has, cost nothing.
constexpr std::string_view kTail = "Bubble";

constexpr bool EndsWith(std::string_view text, std::string_view tail) {
  return text.size() >= tail.size() && text.substr(text.size() - tail.size()) == tail;
}

constexpr bool AllMarkersEndWithTheTail() {
  for (const std::string_view marker : kBubbleMarkers) {
    if (!EndsWith(marker, kTail)) return false;
  }
  return true;
}
static_assert(AllMarkersEndWithTheTail());

// Chains of the markers that have the same letter before their tail, in order: by letter the first one, by
// marker the next one. kNone ends a chain.
constexpr std::uint8_t kNone = kBubbleMarkers.size();

struct LetterChains {
  std::array<std::uint8_t, 256> first;
  std::array<std::uint8_t, kBubbleMarkers.size()> next;
};

constexpr LetterChains MakeLetterChains() {
  LetterChains chains{};
  for (auto& first : chains.first) first = kNone;
  for (std::uint8_t i = kNone; i-- > 0;) {
    const std::string_view marker = kBubbleMarkers[i];
    std::uint8_t& first = chains.first[static_cast<unsigned char>(marker[marker.size() - kTail.size() - 1])];
    chains.next[i] = first;
    first = i;
  }
  return chains;
}
constexpr LetterChains kChains = MakeLetterChains();

// The marker that `text`, which ends with the tail, ends with, if it comes before `limit` in the order; else
// `limit`.
std::size_t MarkerAtEnd(std::string_view text, std::size_t limit) {
  if (text.size() == kTail.size()) return limit;
  const char letter = text[text.size() - kTail.size() - 1];
  for (std::size_t i = kChains.first[static_cast<unsigned char>(letter)]; i < limit; i = kChains.next[i]) {
    if (EndsWith(text, kBubbleMarkers[i])) return i;
  }
  return limit;
}

}  // namespace

std::optional<BubbleKind> FindBubbleKind(std::string_view resource_name) {
  std::size_t first = kBubbleMarkers.size();
  for (std::size_t tail = resource_name.find(kTail); tail != std::string_view::npos && first != 0;
       tail = resource_name.find(kTail, tail + kTail.size())) {
    first = MarkerAtEnd(resource_name.substr(0, tail + kTail.size()), first);
  }
  if (first == kBubbleMarkers.size()) return std::nullopt;
  return static_cast<BubbleKind>(first);
}

}  // namespace kavrix
