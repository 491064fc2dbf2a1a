// The indoor-entries bubble: the entries of an indoor place.
//
//   name = prefix content "_" mode "_" lan "_" entries_value "_" entries_text "@" direction
//          ".inDoorEntriesBubble"
//
// Irregular: entries_value is read as atoi does: a field that is not a number stores 0, where other fields
// leave the member unchanged. The closing log record repeats the whole name, under a tag without the module
// word. Head and tail are read independently, and no name is logged as a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/name_codec.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 13;

struct IndoorEntriesFormat : FieldsFormat<IndoorEntriesFormat, IndoorEntriesBubbleDrawDescriptor, 5> {
  static constexpr std::string_view kMarker = MarkerOf(BubbleKind::kIndoorEntries);
  template <class Fields, class Entries>
  static void List(Fields& fields, Entries& entries) {
    fields.Text(0, "content", entries.content);
    fields.TrueWhenZero(1, "mode", entries.mode_flag);
    fields.Text(2, "lan", entries.lan);
    fields.LeadingInteger(3, "entries_value", entries.entries_value);
    fields.Text(4, "entries_text", entries.entries_text);
  }
};

}  // namespace

void MapResourceTransform::ParseIndoorEntriesBubbleResourceName(const std::string& resource_name,
                                                                std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto entries = Publish<IndoorEntriesBubbleDrawDescriptor>(out);
  entries->bubble_kind = kKindCode;
  IndoorEntriesFormat::Read(IndoorEntriesFormat::PayloadOf(resource_name), *entries);

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(config.indoor_entries_style), *entries);
  KAVRIX_LOG(LogTagMapLayerMgr_IndoorEntries, LogLevel::kRoutine, *out << "resource_name " << resource_name);
}

std::string EncodeIndoorEntriesBubbleResourceName(const IndoorEntriesBubbleDrawDescriptor& entries) {
  return EncodeName<IndoorEntriesFormat>(entries);
}

constexpr BubbleKindInfo kIndoorEntriesBubbleInfo = MakeInfo<IndoorEntriesFormat>(
    BubbleKind::kIndoorEntries, kKindCode, PayloadWay::kPrefixStripped,
    "content \"_\" mode \"_\" lan \"_\" entries_value \"_\" entries_text \"@\" direction");

}  // namespace kavrix
