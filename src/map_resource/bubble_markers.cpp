#include "map_resource/bubble_markers.h"

#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace kavrix {
namespace {

// Every marker ends with this tail, which the search looks for, beginning at the first 'B' of the name: in
// most names that of the marker. The tail has six letters and cannot overlap itself. Each occurrence covers
// one place in six, so a look at every sixth place finds them all.
constexpr std::string_view kTail = "Bubble";

// The place of each letter in the tail, from 0; kElsewhere for letters that are not in it. Both 'b's have the
// place of the second.
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

// Chains the markers that have the same letter before the tail, in order: `first` by letter, `next` by
// marker. kNone ends a chain.
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
    // Evaluated at compile time: the build fails here.
    if (marker.substr(tail_begin) != kTail) throw std::logic_error("a marker without the tail");
    std::uint8_t& first = chains.first[static_cast<unsigned char>(marker[tail_begin - 1])];
    chains.next[i] = first;
    first = i;
  }
  return chains;
}
constexpr LetterChains kChains = MakeLetterChains();

// Whether `text`, which ends with the tail, ends with `marker`. The first two characters rule out most
// markers.
bool EndsWithMarker(std::string_view text, std::string_view marker) {
  if (text.size() < marker.size()) return false;
  const char* const begin = text.data() + (text.size() - marker.size());
  return begin[0] == '.' && begin[1] == marker[1] &&
         std::memcmp(begin, marker.data(), marker.size() - kTail.size()) == 0;
}

// Returns the number of the marker at the end of `text`, which ends with the tail, if below `limit`; else
// `limit`.
std::size_t MarkerAtEnd(std::string_view text, std::size_t limit) {
  if (text.size() == kTail.size()) return limit;
  const char letter = text[text.size() - kTail.size() - 1];
  for (std::size_t i = kChains.first[static_cast<unsigned char>(letter)]; i < limit; i = kChains.next[i]) {
    if (EndsWithMarker(text, kBubbleMarkers[i])) return i;
  }
  return limit;
}

// Returns the end of the tail that covers `place`; npos when none does.
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
