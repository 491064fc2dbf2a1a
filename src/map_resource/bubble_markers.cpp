#include "map_resource/bubble_markers.h"

#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace kavrix {
namespace {

// Every marker is a dot and a word that ends so. The search looks for this tail, from the first 'B' of a name
// on: in most names that is the marker's own. Occurrences of the tail cannot overlap, and each covers exactly
// one of every six places in a row: one letter in six is looked at, whatever the name holds.
constexpr std::string_view kTail = "Bubble";

// Where a letter stands in the tail, counted from 0; kElsewhere for letters that it does not have. The first
// of its two 'b's in a row counts as the second one.
constexpr std::uint8_t kElsewhere = kTail.size();
constexpr std::uint8_t kSecondB = 3;

constexpr std::array<std::uint8_t, 256> MakePlacesInTail() {
  std::array<std::uint8_t, 256> places{};
  for (auto& place : places) place = kElsewhere;
  for (std::uint8_t i = 0; i < kElsewhere; ++i) places[static_cast<unsigned char>(kTail[i])] = i;
  return places;
}
constexpr std::array<std::uint8_t, 256> kPlaceInTail = MakePlacesInTail();
static_assert(kPlaceInTail['b'] == kSecondB && kTail[kSecondB - 1] == 'b');

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
    const std::size_t tail_begin = marker.size() - kTail.size();
    // Thrown while compiling, that is an error of the build.
    if (marker.substr(tail_begin) != kTail) throw std::logic_error("a marker without the tail");
    std::uint8_t& first = chains.first[static_cast<unsigned char>(marker[tail_begin - 1])];
    chains.next[i] = first;
    first = i;
  }
  return chains;
}
constexpr LetterChains kChains = MakeLetterChains();

// `text` ends with the tail. The first two letters alone rule most markers out.
bool EndsWithMarker(std::string_view text, std::string_view marker) {
  if (text.size() < marker.size()) return false;
  const char* const begin = text.data() + (text.size() - marker.size());
  return begin[0] == '.' && begin[1] == marker[1] &&
         std::memcmp(begin, marker.data(), marker.size() - kTail.size()) == 0;
}

// The marker that `text`, which ends with the tail, ends with, if it comes before `limit` in the order; else
// `limit`.
std::size_t MarkerAtEnd(std::string_view text, std::size_t limit) {
  if (text.size() == kTail.size()) return limit;
  const char letter = text[text.size() - kTail.size() - 1];
  for (std::size_t i = kChains.first[static_cast<unsigned char>(letter)]; i < limit; i = kChains.next[i]) {
    if (EndsWithMarker(text, kBubbleMarkers[i])) return i;
  }
  return limit;
}

// The end of the tail that covers `place`; npos when none does.
std::size_t EndOfTailAt(std::string_view name, std::size_t place) {
  std::size_t place_in_tail = kPlaceInTail[static_cast<unsigned char>(name[place])];
  if (place_in_tail == kElsewhere) return std::string_view::npos;
  if (place_in_tail == kSecondB && place + 1 < name.size() && name[place + 1] == 'b') --place_in_tail;
  const std::size_t begin = place - place_in_tail;
  const bool is_tail = name.size() - begin >= kTail.size() &&
                       std::memcmp(name.data() + begin, kTail.data(), kTail.size()) == 0;
  return is_tail ? begin + kTail.size() : std::string_view::npos;
}

}  // namespace

std::optional<BubbleKind> FindBubbleKind(std::string_view resource_name) {
  const std::size_t begin = resource_name.find(kTail[0]);
  if (begin == std::string_view::npos) return std::nullopt;
  std::size_t first = kBubbleMarkers.size();
  for (std::size_t place = begin; place < resource_name.size() && first != 0; place += kTail.size()) {
    const std::size_t end = EndOfTailAt(resource_name, place);
    if (end != std::string_view::npos) first = MarkerAtEnd(resource_name.substr(0, end), first);
  }
  if (first == kBubbleMarkers.size()) return std::nullopt;
  return static_cast<BubbleKind>(first);
}

}  // namespace kavrix
