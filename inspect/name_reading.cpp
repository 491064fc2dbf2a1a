#include "inspect/name_reading.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "payload/json_tree.h"
#include "util/json_value.h"

namespace kavrix::inspect {
namespace {

const BubbleKindInfo* InfoFor(const std::string& name, EntryPoint entry_point) {
  if (entry_point == EntryPoint::kMarker) return &kMarkerNameInfo;
  const std::optional<BubbleKind> kind = FindBubbleKind(name);
  return kind ? &InfoOf(*kind) : nullptr;
}

constexpr const char* kTooGreat = "999999999999999999";  // for every key

bool IsInteger(std::string_view text) {
  if (!text.empty() && text[0] == '-') text.remove_prefix(1);
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool IsBefore(const ByteRange& a, const ByteRange& b) {
  return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
}

ByteRange RangeIn(const std::string& name, std::string_view piece) {
  const auto begin = static_cast<std::size_t>(piece.data() - name.data());
  return {begin, begin + piece.size()};
}

// Strings keep their bytes, with escapes only for what would end them or the payload.
void AppendPlain(std::string_view contents, std::string& text) {
  for (const char c : contents) {
    if (c == '"' || c == '\\') text += '\\';
    text += c == '@' ? "\\u0040" : std::string(1, c);
  }
}

// Numbers that no key can hold become others of their sort.
std::string PlainScalar(const Json::Value& value, std::string_view source) {
  if (value.isNull()) return "null";
  if (value.isBool()) return value.asBool() ? "true" : "false";
  if (const std::optional<int> number = JsonUtil::AsInt(value)) return std::to_string(*number);
  const bool is_real = value.type() == Json::realValue && !IsInteger(source);
  return is_real ? "0.5" : kTooGreat;
}

ByteRange OffsetsOf(const Json::Value& value, std::size_t payload_begin) {
  return {payload_begin + static_cast<std::size_t>(value.getOffsetStart()),
          payload_begin + static_cast<std::size_t>(value.getOffsetLimit())};
}

}  // namespace

NameReading::NameReading(const std::string& name, EntryPoint entry_point)
    : name_(name), entry_point_(entry_point), info_(InfoFor(name, entry_point)) {
  if (info_ == nullptr) {
    has_failed_ = true;
    return;
  }
  try {
    has_failed_ = !Trace(name);
    if (trace_.object && trace_.object->is_object) {
      if (trace_.object->is_plain) {
        object_ = RangeIn(name, trace_.object->bytes);
      } else {
        MakePlain();
      }
    }
  } catch (const std::out_of_range&) {
    is_too_short_ = true;
    has_failed_ = true;
  }
  FindMarker();
}

bool NameReading::Trace(const std::string& name) {
  trace_ = {};
  return info_->codec.trace(name, trace_);
}

void NameReading::MakePlain() {
  const ByteRange payload = RangeIn(name_, trace_.object->text);
  Json::Value root;
  if (!ParseTree(trace_.object->text, root)) return;  // GCOVR_EXCL_BR_LINE: it parsed when it was traced
  object_ = OffsetsOf(root, payload.begin);
  std::string text = name_.substr(0, payload.begin);  // without what JsonCpp skips before the object
  replaced_.begin = text.size();
  WritePlain(root, payload.begin, text);
  replaced_.end = text.size();
  std::sort(moved_.begin(), moved_.end(),
            [](const Moved& a, const Moved& b) { return IsBefore(a.from, b.from); });
  traced_name_ = std::make_unique<std::string>(text + name_.substr(object_->end));
  Trace(*traced_name_);
}

void NameReading::WritePlain(const Json::Value& value, std::size_t payload_begin, std::string& text) {
  const ByteRange place = OffsetsOf(value, payload_begin);
  const std::size_t begin = text.size();
  const char* separator = "";
  if (value.isObject()) {
    text += '{';
    for (auto member = value.begin(); member != value.end(); ++member) {
      text += std::exchange(separator, ",");
      WriteKey(member.name(), text);
      WritePlain(*member, payload_begin, text);
    }
    text += '}';
  } else if (value.isArray()) {
    text += '[';
    for (const Json::Value& element : value) {
      text += std::exchange(separator, ",");
      WritePlain(element, payload_begin, text);
    }
    text += ']';
  } else if (const auto contents = JsonUtil::AsText(value)) {
    text += '"';
    AppendPlain(*contents, text);
    moved_.push_back({{begin + 1, text.size()}, {place.begin + 1, place.end - 1}});
    text += '"';
    return;
  } else {
    text += PlainScalar(value, SourceOf(place));
  }
  moved_.push_back({{begin, text.size()}, place});
}

// No kind has a key with a quote or a backslash: what stands for them only keeps the key unknown.
void NameReading::WriteKey(std::string_view key, std::string& text) {
  text += '"';
  if (key.find_first_of("\"\\") != std::string_view::npos) keys_.emplace(text.size(), key);
  for (const char c : key) text += c == '"' || c == '\\' ? '?' : c;
  text += "\":";
}

std::string NameReading::KeyText(std::string_view key_bytes) const {
  if (!IsPlain()) {
    const auto found = keys_.find(RangeIn(*traced_name_, key_bytes).begin);
    if (found != keys_.end()) return found->second;
  }
  return std::string(key_bytes);
}

std::optional<ByteRange> NameReading::RangeOf(std::string_view piece) const {
  if (piece.data() == nullptr) return std::nullopt;
  if (IsPlain()) return RangeIn(name_, piece);
  const ByteRange range = RangeIn(*traced_name_, piece);
  const auto moved = std::lower_bound(moved_.begin(), moved_.end(), range,
                                      [](const Moved& a, const ByteRange& b) { return IsBefore(a.from, b); });
  if (moved != moved_.end() && moved->from == range) return moved->to;
  if (range.end <= replaced_.begin) return range;
  if (range.begin >= replaced_.end) {
    const std::size_t after = replaced_.end;
    return ByteRange{object_->end + (range.begin - after), object_->end + (range.end - after)};
  }
  return std::nullopt;
}

void NameReading::FindMarker() {
  const std::size_t size = info_->marker.size();
  const std::size_t last = name_.rfind(info_->marker);
  if (last == std::string::npos) return;
  if (entry_point_ == EntryPoint::kMarker && last + size != name_.size()) return;
  const auto is_in_object = [&](std::size_t at) {
    return object_ && object_->begin <= at && at < object_->end;
  };
  std::size_t begin = last;
  while (begin != std::string::npos && is_in_object(begin)) {
    begin = begin == 0 ? std::string::npos : name_.rfind(info_->marker, begin - 1);
  }
  if (begin == std::string::npos) begin = last;
  marker_ = {begin, begin + size};
}

}  // namespace kavrix::inspect
