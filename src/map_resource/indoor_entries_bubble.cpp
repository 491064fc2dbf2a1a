// The indoor-entries bubble: the entries of an indoor place.
//
//   name = prefix content "_" mode "_" lan "_" entries_value "_" entries_text "@" direction
//   ".inDoorEntriesBubble"
//
// Irregular: entries_value is read as atoi reads it, so a text that is no number stores 0 where every other
// number would leave its member alone. The closing record repeats the whole name, under a tag without the
// module word. Head and tail are read independently; nothing is ever a failure.

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"
#include "util/key_reader.h"
#include "util/tagged_log.h"

namespace kavrix {

using logging::LogLevel;

namespace {

constexpr std::uint16_t kKindCode = 13;

template <class Fields, class Entries>
void IndoorEntriesFields(Fields& fields, Entries& entries) {
  fields.Text(0, "content", entries.content);
  fields.TrueWhenZero(1, "mode", entries.mode_flag);
  fields.Text(2, "lan", entries.lan);
  fields.LeadingInteger(3, "entries_value", entries.entries_value);
  fields.Text(4, "entries_text", entries.entries_text);
}

}  // namespace

void MapResourceTransform::ParseIndoorEntriesBubbleResourceName(const std::string& resource_name,
                                                                std::shared_ptr<BubbleDrawDescriptor>& out) {
  const auto entries = Publish<IndoorEntriesBubbleDrawDescriptor>(out);
  entries->bubble_kind = kKindCode;
  const auto parts = SplitFields<2>(StripPrefix(resource_name), '@');
  if (parts.count == 2) {
    const auto fields = SplitFields<5>(parts.at[0], '_');
    if (fields.count == 5) {
      FieldReader reader(fields.at.data());
      IndoorEntriesFields(reader, *entries);
    }
    ReadDirectionTail(parts.at[1], *entries);
  }

  BubbleLayerConfigContainer config = context_->GetBubbleLayerConfigInLock();
  ApplyCommonStyle(std::move(config.indoor_entries_style), *entries);
  KAVRIX_LOG(LogTagMapLayerMgr_IndoorEntries, LogLevel::kRoutine, *out << "resource_name " << resource_name);
}

const BubbleKindInfo kIndoorEntriesBubbleInfo = {
    "IndoorEntriesBubbleDrawDescriptor", kKindCode, PayloadWay::kPrefixStripped,
    "content \"_\" mode \"_\" lan \"_\" entries_value \"_\" entries_text \"@\" direction",
    [](KeyLister& keys) {
      IndoorEntriesBubbleDrawDescriptor entries;
      IndoorEntriesFields(keys, entries);
      DirectionTail(keys, entries);
    }};

}  // namespace kavrix
