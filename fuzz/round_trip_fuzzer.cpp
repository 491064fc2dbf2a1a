// The encoder: what a name carries is encoded again, and what the input carries as JSON fields. The first
// byte picks the marker; the rest stands between prefix and marker, or is the fields.

#include "fuzz/decoding.h"
#include "fuzz/vocabulary.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/encode_error.h"
#include "map_resource/map_resource_manager.h"
#include "util/json_util.h"

namespace kavrix::fuzz {
namespace {

class RoundTrip {
 public:
  explicit RoundTrip(std::size_t number)
      : entry_point_(number < kBubbleMarkers.size() ? EntryPoint::kBubble : EntryPoint::kMarker),
        kind_(static_cast<BubbleKind>(number)),
        codec_((entry_point_ == EntryPoint::kBubble ? InfoOf(kind_) : kMarkerNameInfo).codec) {}

  void CheckName(const std::string& name) const {
    const std::optional<std::string> fields = ReadFields(name);
    if (!fields) return;
    const std::optional<std::string> encoded = Encode(*fields);
    if (!encoded) return;
    CheckEncoded(*encoded, *fields);
    if (entry_point_ == EntryPoint::kBubble && FindBubbleKind(name) != kind_) return;
    Require(*Decoded(name) == *Decoded(*encoded), "a name and its canonical form decode to the same");
  }

  void CheckFields(const std::string& fields) const {
    const std::optional<std::string> encoded = Encode(fields);
    if (!encoded) return;
    const std::optional<std::string> read = ReadFields(*encoded);
    Require(read.has_value(), "an encoded name can be read");
    CheckEncoded(*encoded, *read);
  }

 private:
  void CheckEncoded(const std::string& name, const std::string& fields) const {
    if (entry_point_ == EntryPoint::kBubble)
      Require(FindBubbleKind(name) == kind_, "a name goes to its kind");
    Require(ReadFields(name) == fields, "an encoded name carries what it was made of");
    Require(Encode(fields) == name, "equal fields give equal names");
  }

  // None: the name does not parse, or holds a text that is not UTF-8.
  std::optional<std::string> ReadFields(const std::string& name) const {
    try {
      return codec_.read_fields(name);
    } catch (const EncodeError&) {
      return std::nullopt;
    }
  }

  // None: not JSON, or refused.
  std::optional<std::string> Encode(const std::string& fields) const {
    Json::Value value;
    std::string error;
    if (!JsonUtil::ParseStrictly(fields, value, error)) return std::nullopt;
    try {
      return codec_.encode_fields(value);
    } catch (const EncodeError&) {
      return std::nullopt;
    }
  }

  std::shared_ptr<BubbleDrawDescriptor> Decoded(const std::string& name) const {
    return Decode(name, entry_point_, std::make_shared<BubbleDrawDescriptor>()).out;
  }

  EntryPoint entry_point_;
  BubbleKind kind_;
  const NameCodec& codec_;
};

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  if (size == 0) return -1;
  const std::vector<std::string>& markers = fuzz::Words().markers;
  const std::size_t number = *data % markers.size();
  const std::string payload(fuzz::AsText(data + 1, size - 1));
  const fuzz::RoundTrip round_trip(number);
  round_trip.CheckName(MapResourceManager::kavrix_resource_prefix + payload + markers[number]);
  round_trip.CheckFields(payload);
  return 0;
}
