#include <cstdlib>

#include "descriptors/indoor_entries_bubble_draw_descriptor.h"
#include "tests/reference/fields.h"
#include "tests/reference/kinds.h"
#include "tests/reference/style.h"

namespace kavrix::reference {

void IndoorEntriesBubble(const Call& call, Out& out) {
  auto entries = std::make_shared<IndoorEntriesBubbleDrawDescriptor>();
  out = entries;
  entries->bubble_kind = 13;
  const std::vector<std::string> parts = Split(AfterPrefix(call.name), '@');
  if (parts.size() == 2) {
    const std::vector<std::string> fields = Split(parts[0], '_');
    if (fields.size() == 5) {
      entries->content = fields[0];
      ReadMode(fields[1], *entries);
      entries->lan = fields[2];
      // What atoi gives where long has 64 bits.
      entries->entries_value = static_cast<std::int16_t>(std::strtoll(fields[3].c_str(), nullptr, 10));
      entries->entries_text = fields[4];
    }
    ReadDirection(parts[1], *entries);
  }

  const BubbleLayerConfigContainer config = call.context.GetBubbleLayerConfigInLock();
  CommonStyle(config.indoor_entries_style, *entries);
  call.Log(kRoutine, "MapLayerMgr_IndoorEntries", "ParseIndoorEntriesBubbleResourceName", *out,
           "resource_name ", call.name);
}

}  // namespace kavrix::reference
