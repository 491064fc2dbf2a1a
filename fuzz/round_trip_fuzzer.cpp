// Fuzzes the encoder: encodes the fields that a name carries, and the input itself as JSON fields. The first
// byte picks the kind; the rest is both the payload of a name and the fields.

#include "fuzz/decoding.h"
#include "fuzz/vocabulary.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/encode_error.h"
#include "map_resource/map_resource_manager.h"
#include "tests/support/carried_fields.h"
#include "util/json_value.h"

namespace kavrix::fuzz {
namespace {

class RoundTrip {
 public:
  explicit RoundTrip(const BubbleKindInfo& info) : info_(info) {}

  void CheckName(const std::string& name) const {
    const std::optional<std::string> fields = ReadFields(name);
    if (!fields) return;
    CheckFields(*fields);
    const std::optional<std::string> encoded = Encode(Parsed(*fields));
    if (!encoded) return;
    if (GoesElsewhere(name)) return;
    Require(*Decoded(name) == *Decoded(*encoded), "a name and its canonical form decode to the same");
  }

  void CheckFields(const std::string& text) const {
    Json::Value fields;
    std::string error;
    if (!JsonUtil::ParseStrictly(text, fields, error)) return;
    const std::optional<std::string> name = Encode(fields);
    Require(name.has_value() == test::CanBeCarried(info_, fields),
            "the fields that a name can carry are taken, and no others");
    if (!name) return;
    Require(!GoesElsewhere(*name), "a name goes to its kind");
    const std::optional<std::string> read = ReadFields(*name);
    Require(read.has_value(), "an encoded name can be read");
    Require(test::CompleteFields(info_, Parsed(*read)) == test::CompleteFields(info_, fields),
            "an encoded name carries the fields it was built from");
    Require(Encode(Parsed(*read)) == name, "equal fields give equal names");
  }

 private:
  bool GoesElsewhere(const std::string& name) const {
    if (info_.entry_point == EntryPoint::kMarker) return false;
    const std::optional<BubbleKind> kind = FindBubbleKind(name);
    return !kind || &InfoOf(*kind) != &info_;
  }

  // Returns nullopt when the name does not parse or holds a string that is not UTF-8.
  std::optional<std::string> ReadFields(const std::string& name) const {
    try {
      return info_.codec.read_fields(name);
    } catch (const EncodeError&) {
      return std::nullopt;
    }
  }

  static Json::Value Parsed(const std::string& fields) {
    Json::Value value;
    std::string error;
    Require(JsonUtil::ParseStrictly(fields, value, error), "the fields of a name are JSON");
    return value;
  }

  // Returns nullopt when the encoder refuses the fields.
  std::optional<std::string> Encode(const Json::Value& fields) const {
    try {
      return info_.codec.encode_fields(fields);
    } catch (const EncodeError&) {
      return std::nullopt;
    }
  }

  std::shared_ptr<BubbleDrawDescriptor> Decoded(const std::string& name) const {
    return Decode(name, info_.entry_point, std::make_shared<BubbleDrawDescriptor>()).out;
  }

  const BubbleKindInfo& info_;
};

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  if (size == 0) return -1;
  const BubbleKindInfo& info = *AllKindInfos()[*data % AllKindInfos().size()];
  const std::string payload(fuzz::AsText(data + 1, size - 1));
  const fuzz::RoundTrip round_trip(info);
  round_trip.CheckName(MapResourceManager::kavrix_resource_prefix + payload + std::string(info.marker));
  round_trip.CheckFields(payload);
  return 0;
}
