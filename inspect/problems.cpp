#include "inspect/problems.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "inspect/json_error.h"
#include "inspect/key_problems.h"
#include "inspect/nearest.h"
#include "map_resource/map_resource_manager.h"
#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

// Finds the problems of one name. Each function looks for those of one sort.
class Finder {
 public:
  explicit Finder(const NameReading& reading) : reading_(reading), name_(reading.name()) {}

  std::vector<Problem> Find() {
    if (reading_.info() == nullptr) {
      FindMissingMarker();
      FindNotUtf8();
      return Sorted();
    }
    FindMarkers();
    FindPrefix();
    if (!reading_.IsTooShort()) {
      FindFieldCounts();
      AddKeyProblems(reading_, problems_);
      FindTrailingText();
      FindBrokenPayload();
    }
    FindNotUtf8();
    return Sorted();
  }

 private:
  void Add(const char* code, std::optional<ByteRange> bytes, std::string message,
           std::optional<std::string> suggestion = {}, Severity severity = Severity::kWarning) {
    problems_.push_back({code, severity, bytes, std::move(message), std::move(suggestion)});
  }
  void AddError(const char* code, ByteRange bytes, std::string message,
                std::optional<std::string> suggestion = {}) {
    Add(code, bytes, std::move(message), std::move(suggestion), Severity::kError);
  }
  // An error where it is what makes the decode fail.
  void AddFailure(const char* code, ByteRange bytes, std::string message) {
    Add(code, bytes, std::move(message), {}, reading_.HasFailed() ? Severity::kError : Severity::kWarning);
  }

  std::vector<Problem> Sorted() {
    const auto place = [](const Problem& problem) {
      return std::make_tuple(!problem.bytes, problem.bytes ? problem.bytes->begin : 0, problem.code);
    };
    std::stable_sort(problems_.begin(), problems_.end(),
                     [&](const Problem& a, const Problem& b) { return place(a) < place(b); });
    return std::move(problems_);
  }

  void FindMissingMarker() {
    if (const std::optional<NearMarker> near = FindNearMarker(name_)) {
      const std::string marker(MarkerOf(near->kind));
      const std::string_view found =
          std::string_view(name_).substr(near->bytes.begin, near->bytes.end - near->bytes.begin);
      AddError(
          "near-marker", near->bytes,
          Quoted(found) + " is no marker" +
              (near->differs_in_case_only ? ": it differs from " + Quoted(marker) + " in case only" : ""),
          marker);
      return;
    }
    const bool is_marker_name =
        name_.size() >= kMarkerNameTail.size() &&
        name_.compare(name_.size() - kMarkerNameTail.size(), std::string::npos, kMarkerNameTail) == 0;
    AddError("no-marker", {0, name_.size()}, "no marker of a kind occurs in the name",
             is_marker_name ? std::optional<std::string>("--marker") : std::nullopt);
  }

  // A marker name decodes without its tail too: as many bytes are dropped, whatever they are.
  void FindMarkerTail() {
    if (reading_.Marker()) return;
    const std::size_t dot = name_.rfind('.');
    if (dot != std::string::npos && NearestWord(name_.substr(dot), {std::string(kMarkerNameTail)})) {
      return Add("near-marker", ByteRange{dot, name_.size()},
                 Quoted(name_.substr(dot)) + " is not \".marker\"", std::string(kMarkerNameTail));
    }
    Add("no-marker", ByteRange{0, name_.size()},
        "a marker name ends in \".marker\": its last 7 bytes are dropped, whatever they are");
  }

  void FindMarkers() {
    if (reading_.entry_point() == EntryPoint::kMarker) {
      if (!reading_.IsTooShort()) FindMarkerTail();
      return;
    }
    for (const std::string_view marker : kBubbleMarkers) {
      for (std::size_t at = name_.find(marker); at != std::string::npos; at = name_.find(marker, at + 1)) {
        const ByteRange place = {at, at + marker.size()};
        if (place == *reading_.Marker()) continue;
        Add("two-markers", place,
            Quoted(marker) + " is a marker too; the name is read as " + std::string(reading_.info()->Name()));
      }
    }
  }

  void FindPrefix() {
    const std::string_view prefix = MapResourceManager::kavrix_resource_prefix;
    if (reading_.IsTooShort()) {
      AddError("too-short", {0, name_.size()},
               "the name is shorter than the prefix, which has " + std::to_string(prefix.size()) + " bytes");
      return;
    }
    if (name_.compare(0, prefix.size(), prefix) == 0) return;
    const bool is_dropped = reading_.info()->way != PayloadWay::kWholeName;
    Add("prefix", ByteRange{0, std::min(prefix.size(), name_.size())},
        is_dropped ? "these bytes are not the prefix, and are dropped all the same"
                   : "the name does not begin with the prefix",
        std::string(prefix));
  }

  void FindFieldCounts() {
    for (const TracedSplit& split : reading_.trace().splits) {
      if (split.is_accepted) continue;
      const auto count = std::count(split.text.begin(), split.text.end(), split.separator) + 1;
      const std::string message = std::to_string(count) + (count == 1 ? " part" : " parts") + " at \"" +
                                  split.separator + "\" instead of " + (split.takes_more ? "at least " : "") +
                                  std::to_string(split.expected) + ": none of them is read";
      // Only where the marker is dropped before the cut is such a payload a failure.
      const bool fails = reading_.info()->way == PayloadWay::kPrefixAndMarkerStripped;
      Add("field-count", reading_.RangeOf(split.text), message, {},
          fails ? Severity::kError : Severity::kWarning);
    }
  }

  // The text between the object, if there is one, and the marker, and what follows the marker.
  void FindTrailingText() {
    const std::optional<ByteRange> object = reading_.Object();
    const std::optional<ByteRange> marker = reading_.Marker();
    const bool marker_follows = marker && (!object || marker->begin >= object->end);
    if (object) {
      const std::string_view read = reading_.trace().object->text;
      const std::size_t end = reading_.RangeOf(read.substr(read.size()))->begin;
      AddTrailing(object->end, marker_follows ? std::min(end, marker->begin) : end,
                  "follows the JSON object");
    }
    if (reading_.entry_point() == EntryPoint::kMarker || !marker_follows || !IsTextAfterMarkerHarmless())
      return;
    AddTrailing(marker->end, name_.size(), "follows the marker");
  }

  // Where the marker is dropped by its length, more after it shifts the cut into what ends the payload.
  bool IsTextAfterMarkerHarmless() const {
    const auto is_broken_tail = [](const TracedSplit& split) {
      return !split.is_accepted && split.separator != '_';
    };
    const auto& splits = reading_.trace().splits;
    if (std::any_of(splits.begin(), splits.end(), is_broken_tail)) return false;
    if (reading_.info()->way != PayloadWay::kPrefixAndMarkerStripped) return true;
    const auto is_no_number = [](const TracedKey& key) { return key.found == Found::kNotANumber; };
    const auto& keys = reading_.trace().keys;
    return reading_.Object() && std::none_of(keys.begin(), keys.end(), is_no_number);
  }

  void AddTrailing(std::size_t begin, std::size_t end, const char* what) {
    if (begin >= end) return;
    const std::string_view text = std::string_view(name_).substr(begin, end - begin);
    const std::size_t first = text.find_first_not_of(kJsonBlanks);
    if (first == std::string_view::npos) return;
    const ByteRange bytes = {begin + first, begin + text.find_last_not_of(kJsonBlanks) + 1};
    Add("trailing-text", bytes, Quoted(Excerpt(reading_.SourceOf(bytes))) + " " + what + " and is not read");
  }

  // The payload's only problem: those that were found in it go.
  void FindBrokenPayload() {
    const std::optional<TracedObject>& object = reading_.trace().object;
    if (!object || object->is_object) return;
    std::string_view text = object->text;
    if (text.data() == nullptr) text = TextWithoutBraces();
    const ByteRange payload = *reading_.RangeOf(text);
    const auto is_inside = [&](const Problem& problem) {
      return problem.bytes->begin >= payload.begin && problem.bytes->end <= payload.end;
    };
    problems_.erase(std::remove_if(problems_.begin(), problems_.end(), is_inside), problems_.end());
    broken_ = payload;
    const JsonObjectError error = FindJsonError(text);
    const std::size_t at = payload.begin + error.at;
    const std::string found =
        error.at == text.size()
            ? "the payload ends"
            : "found '" + ToValidUtf8(text.substr(error.at, NextUtf8(text.substr(error.at)).length)) + "'";
    AddFailure("not-json", {at, error.at == text.size() ? at : at + 1},
               "the payload is no JSON object: expected " + error.expected + ", " + found);
  }

  // Of a name in which the descriptor finds no braces: what stands between prefix and marker.
  std::string_view TextWithoutBraces() const {
    const std::string_view prefix = MapResourceManager::kavrix_resource_prefix;
    std::string_view text = name_;
    if (reading_.Marker()) text = text.substr(0, reading_.Marker()->begin);
    if (text.substr(0, prefix.size()) == prefix) text.remove_prefix(prefix.size());
    return text;
  }

  void FindNotUtf8() {
    for (std::size_t at = 0;; at = broken_->end) {
      const std::string_view text = std::string_view(name_).substr(at);
      const std::size_t valid = ValidUtf8Length(text);
      if (valid == text.size()) return;
      at += valid;
      const bool is_in_broken_payload = broken_ && at >= broken_->begin && at < broken_->end;
      if (is_in_broken_payload) continue;
      return Add("not-utf8", ByteRange{at, at + NextUtf8(text.substr(valid)).length},
                 "these bytes are not UTF-8");
    }
  }

  const NameReading& reading_;
  const std::string& name_;
  std::vector<Problem> problems_;
  std::optional<ByteRange> broken_;  // the payload that is not JSON
};

}  // namespace

std::vector<Problem> FindProblems(const NameReading& reading) { return Finder(reading).Find(); }

std::vector<Problem> ProblemsOf(const std::string& resource_name, EntryPoint entry_point) {
  return FindProblems(NameReading(resource_name, entry_point));
}

}  // namespace kavrix::inspect
