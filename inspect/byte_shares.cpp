#include "inspect/byte_shares.h"

#include "inspect/kind_model.h"
#include "inspect/name_paint.h"
#include "map_resource/map_resource_manager.h"

namespace kavrix::inspect {
namespace {

const char* ReasonFor(const TracedKey& key) {
  switch (key.found) {
    case Found::kUnknown:
      return key.key_bytes.data() == nullptr ? "nothing reads it" : "a key that the kind does not have";
    case Found::kRepeated:
      return "the key stands in the object once more, and the last one counts";
    case Found::kWrongType:
      return "a value of another type than the key's";
    case Found::kTooGreat:
      return "an integer that does not fit 32 bits";
    case Found::kNotANumber:
      return "not a number";
    case Found::kNotOne:
      return "not exactly 1";
    case Found::kOnlyThere:
      return "only that the field is there counts";
    default:
      return "what is read later counts";
  }
}

class ByteSharer {
 public:
  ByteSharer(const NameReading& reading, const ReadKeys& read, Explanation& explanation)
      : reading_(reading), read_(read), explanation_(explanation) {}

  void ShareOut() {
    NamePaint paint(reading_.name().size(), ReasonForAll());
    if (reading_.info() != nullptr) {
      PaintEnvelope(paint);
      PaintPayload(paint);
      const bool is_in_object =
          reading_.Object() && reading_.Marker() && reading_.Marker()->begin < reading_.Object()->end;
      if (reading_.Marker() && !is_in_object) paint.Structure(*reading_.Marker());
    }
    for (const ExplainedMember& explained : explanation_.members) {
      const bool is_item = explained.member.path.find('[') != std::string::npos;
      const bool is_list = !is_item && IsListKey(explained.key);
      if (explained.bytes && !is_list) paint.Taken(*explained.bytes);
    }
    for (const ExplainedSteer& steer : explanation_.steers) {
      if (steer.bytes) paint.Taken(*steer.bytes);
    }
    paint.WriteTo(explanation_);
  }

 private:
  bool IsListKey(const std::string& key) const {
    if (key.empty()) return false;
    const KeyInfo* const info = ModelOf(*reading_.info()).Find(key);
    return info != nullptr && info->type.compare(0, 5, "array") == 0;
  }

  std::string ReasonForAll() const {
    if (reading_.info() == nullptr) return "the name has no marker";
    if (reading_.IsTooShort()) return "the name is shorter than the prefix";
    const auto& object = reading_.trace().object;
    if (object && !object->is_object) return "the payload is no JSON object";
    return "nothing reads it";
  }

  // Prefix, marker, and what stands around the payload.
  void PaintEnvelope(NamePaint& paint) const {
    const std::string& name = reading_.name();
    const std::string_view prefix = MapResourceManager::kavrix_resource_prefix;
    const std::optional<ByteRange> object = reading_.Object();
    if (object) {
      paint.Ignore({0, object->begin}, "it stands before the JSON object");
      paint.Ignore({object->end, name.size()}, "it follows the JSON object");
    }
    if (name.compare(0, prefix.size(), prefix) == 0) {
      paint.Structure({0, prefix.size()});
    } else if (!reading_.IsTooShort() && reading_.info()->way != PayloadWay::kWholeName) {
      paint.Ignore({0, prefix.size()}, "as many bytes as the prefix has are dropped");
    }
    if (IsMarkerAfterPayload()) paint.Ignore({reading_.Marker()->end, name.size()}, "it follows the marker");
    if (object) paint.Structure(*object);
  }

  // Of a payload that is no JSON object, the marker may be a part.
  bool IsMarkerAfterPayload() const {
    if (!reading_.Marker()) return false;
    std::optional<ByteRange> payload = reading_.Object();
    const auto& object = reading_.trace().object;
    if (object && !object->is_object)
      payload = reading_.RangeOf(object->text);  // none in a name without braces
    return !payload || reading_.Marker()->begin >= payload->end;
  }

  void PaintPayload(NamePaint& paint) const {
    for (const TracedSplit& split : reading_.trace().splits) PaintSplit(split, paint);
    for (const TracedKey& key : reading_.trace().keys) {
      const bool is_ignored = !IsRead(key.found) || key.found == Found::kOnlyThere || IsOverwritten(key);
      if (key.found == Found::kAbsent || !is_ignored) continue;
      const std::optional<ByteRange> value = reading_.RangeOf(key.value_bytes);
      if (!value) continue;
      paint.Ignore(PairOf(key, *value), ReasonFor(key));
    }
  }

  bool IsOverwritten(const TracedKey& key) const {
    return IsRead(key.found) && FindIn(read_, key.key, key.item) != &key;
  }

  void PaintSplit(const TracedSplit& split, NamePaint& paint) const {
    const std::optional<ByteRange> text = reading_.RangeOf(split.text);
    if (!split.is_accepted) {
      if (text) paint.Ignore(*text, std::string("not the number of parts at \"") + split.separator + "\"");
      return;
    }
    for (std::size_t i = 0; i < split.text.size(); ++i) {
      if (split.text[i] != split.separator) continue;
      if (const auto place = reading_.RangeOf(split.text.substr(i, 1))) paint.Structure(*place);
    }
  }

  // From the key's opening quote to the end of the value; where the key's place is not known, the value.
  ByteRange PairOf(const TracedKey& key, ByteRange value) const {
    if (key.key_bytes.data() == nullptr) return value;  // a field or an element
    const std::optional<ByteRange> name = reading_.RangeOf(key.key_bytes);
    const std::size_t quote = key.is_text ? 1 : 0;
    return {name ? name->begin - 1 : value.begin - quote, value.end + quote};
  }

  const NameReading& reading_;
  const ReadKeys& read_;
  Explanation& explanation_;
};

}  // namespace

ReadKeys ReadKeysOf(const NameTrace& trace) {
  ReadKeys read;
  for (const TracedKey& key : trace.keys) {
    if (IsRead(key.found)) read[{key.key, key.item}] = &key;
  }
  return read;
}

const TracedKey* FindIn(const ReadKeys& keys, const std::string& key, std::optional<std::size_t> item) {
  const auto found = keys.find({key, item});
  return found == keys.end() ? nullptr : found->second;
}

void ShareOutBytes(const NameReading& reading, const ReadKeys& read, Explanation& explanation) {
  ByteSharer(reading, read, explanation).ShareOut();
}

}  // namespace kavrix::inspect
