#include "map_resource/bubble_kinds.h"
#include "tests/support/carried_fields.h"
#include "tests/support/reference_test.h"

// Each key of each kind by itself: one that no sample and no golden carries is still read by both decoders.
namespace kavrix::test {
namespace {

// A value that a name carries for the key instead of `usual`.
Json::Value Another(const KeyInfo& key, const Json::Value& usual) {
  if (key.type == "flag") return 1 - usual.asInt();
  if (key.type == "text") return usual.asString() + "x";
  if (key.type == "array of texts" || key.type == "array of objects") {
    Json::Value array(Json::arrayValue);
    array.append(key.type == "array of texts" ? Json::Value("x") : Json::Value(Json::objectValue));
    return array;
  }
  return usual.asInt() + 7;
}

class ReferenceKeysTest : public ReferenceTest {
 protected:
  std::string AllMembersOf(const BubbleKindInfo& info, const std::string& name) {
    if (info.entry_point == EntryPoint::kMarker) {
      transform_.GetMarkerDrawDescriptor(name, out_);
    } else {
      transform_.GetBubbleDrawDescriptor(name, out_);
    }
    std::ostringstream stream;
    WriteAllMembers(stream, *out_);
    return stream.str();
  }

  // `usual` and `changed` are fields that differ in the key.
  void ExpectRead(const BubbleKindInfo& info, const std::string& key, const Json::Value& usual,
                  const Json::Value& changed) {
    const std::string name = info.codec.encode_fields(changed);
    EXPECT_NE(AllMembersOf(info, name), AllMembersOf(info, info.codec.encode_fields(usual)))
        << info.marker << " " << key << " changes no member";
    ExpectSame(name, info.entry_point == EntryPoint::kMarker);
  }
};

TEST_F(ReferenceKeysTest, EveryKeyChangesTheDescriptorAndTheReferenceReadsItToo) {
  int keys = 0;
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    KeyLister lister;
    info->codec.list_keys(lister);
    Json::Value usual = CompleteFields(*info, Json::objectValue);
    if (usual.isMember("nav_mode")) usual["scene"] = 1;  // where it counts
    for (const KeyInfo& key : lister.keys()) {
      ++keys;
      const std::size_t item = key.key.find("[].");
      if (item == std::string::npos) {
        Json::Value changed = usual;
        changed[key.key] = Another(key, usual[key.key]);
        ExpectRead(*info, key.key, usual, changed);
        continue;
      }
      const std::string list = key.key.substr(0, item);
      Json::Value with_item = usual;
      with_item[list].append(Json::objectValue);
      with_item = CompleteFields(*info, with_item);
      Json::Value changed = with_item;
      Json::Value& value = changed[list][0][key.key.substr(item + 3)];
      value = Another(key, value);
      ExpectRead(*info, key.key, with_item, changed);
    }
  }
  EXPECT_GT(keys, 100);
}

}  // namespace
}  // namespace kavrix::test
