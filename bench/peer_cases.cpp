// The decode of P1 to P4 beside what else does the job, or a part of it: the bare JsonCpp parse, the
// reference decoder, and parse + keys into the descriptor by the library's own reader and by others.

#include <json/reader.h>

#include <cstdlib>
#include <memory>

#include "bench/cases.h"
#include "bench/key_lists.h"
#include "bench/names.h"
#include "bench/peers.h"
#include "map_resource/map_resource_transform.h"
#include "payload/json_tree.h"
#include "tests/reference/reference_decoder.h"

namespace kavrix::bench {
namespace {

template <class Transform>
Case DecodeCase(const char* group, const Name& name) {
  return {std::string(group) + "/" + name.id, [&name] {
            return [transform = std::make_shared<Transform>(MakeContext()), &name] {
              std::shared_ptr<BubbleDrawDescriptor> out;
              transform->GetBubbleDrawDescriptor(name.name, out);
              Use(out);
            };
          }};
}

// Parses the payload of `name` and reads its keys into a descriptor.
template <class Peer, class Descriptor, class KeyList>
Case JobCase(const char* group, const Name& name, KeyList key_list, bool parses = true) {
  return {std::string(group) + "/" + name.id, [&name, key_list, parses] {
            return [peer = std::make_shared<Peer>(), &name, key_list, parses] {
              const auto descriptor = std::make_shared<Descriptor>();
              if (peer->Read(name.payload, *descriptor, key_list) != parses) std::abort();
              Use(descriptor);
            };
          }};
}

template <class Descriptor, class KeyList>
void AddJsonCases(std::vector<Case>& cases, const Name& name, KeyList key_list) {
  cases.push_back(JobCase<LibraryPeer, Descriptor>("library-job", name, key_list));
  cases.push_back(JobCase<JsonCppPeer, Descriptor>("jsoncpp-job", name, key_list));
  cases.push_back(JobCase<NlohmannPeer, Descriptor>("nlohmann-job", name, key_list));
  cases.push_back(JobCase<RapidJsonPeer, Descriptor>("rapidjson-job", name, key_list));
  cases.push_back(JobCase<SimdjsonPeer, Descriptor>("simdjson-job", name, key_list));
  cases.push_back({std::string("bare-parse/") + name.id, [&name] {
                     return [&name] {
                       Json::Value root;
                       Json::Reader reader;
                       Use(reader.parse(name.payload, root, false));
                     };
                   }});
}

// What a payload would cost the library if no scanner looked at it first.
class TreePeer {
 public:
  template <class Descriptor, class KeyList>
  bool Read(const std::string& payload, Descriptor& descriptor, KeyList key_list) {
    Json::Value tree;
    if (!ParseTree(payload, tree)) return false;
    const PayloadNodes nodes(tree);
    JsonKeyReader keys(nodes.nodes());
    key_list(keys, descriptor);
    return true;
  }
};

void AddFallbackCases(std::vector<Case>& cases, const Name& name, bool parses) {
  cases.push_back(DecodeCase<MapResourceTransform>("decode", name));
  cases.push_back(JobCase<LibraryPeer, TrafficDrawDescriptor>("library-job", name, TrafficKeys(), parses));
  cases.push_back(JobCase<TreePeer, TrafficDrawDescriptor>("tree-job", name, TrafficKeys(), parses));
}

}  // namespace

void AddPeerCases(std::vector<Case>& cases) {
  for (const Name* const name : {&P1(), &P2(), &P3(), &P4()}) {
    cases.push_back(DecodeCase<MapResourceTransform>("decode", *name));
    cases.push_back(DecodeCase<reference::ReferenceDecoder>("reference", *name));
  }
  AddJsonCases<TrafficDrawDescriptor>(cases, P1(), TrafficKeys());
  AddJsonCases<CameraDrawDescriptor>(cases, P2(), CameraKeys());
  AddJsonCases<MultiLightCountdownTimerDrawDescriptor>(cases, P3(), LightsKeys());
  AddFallbackCases(cases, P1WithComment(), true);
  AddFallbackCases(cases, P1WithLongNumber(), true);
  AddFallbackCases(cases, P1Broken(), false);
}

}  // namespace kavrix::bench
