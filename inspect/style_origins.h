#ifndef KAVRIX_INSPECT_STYLE_ORIGINS_H_
#define KAVRIX_INSPECT_STYLE_ORIGINS_H_

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "descriptors/bubble_draw_descriptor.h"
#include "inspect/transform_setup.h"
#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// A value of the configuration: a value of a style record, from 1, or with number 0 the record's name. The
// context's own value has no record.
struct StyleCell {
  std::string record;  // "traffic_style", "marker_bubble"; empty: multi_light_type of the context
  std::size_t number = 0;
};

inline bool operator==(const StyleCell& a, const StyleCell& b) {
  return a.record == b.record && a.number == b.number;
}
inline bool operator!=(const StyleCell& a, const StyleCell& b) { return !(a == b); }

// Members, by their paths, that a value of the configuration or of the context gave.
using StyleOrigins = std::map<std::string, StyleCell>;

// Finds them by decoding the name under two configurations in which every value tells where it stands. Writes
// no log records.
StyleOrigins FindStyleOrigins(const std::string& name, EntryPoint entry_point);

// Only the style records, without the members that take values from them: for a fraction of the time.
std::set<std::string> FindStyleRecords(const std::string& name, EntryPoint entry_point);

// Decodes a name without log records. What was set before an exception stays set; null: nothing was.
std::shared_ptr<BubbleDrawDescriptor> DecodeQuietly(const TransformSetup& setup, EntryPoint entry_point,
                                                    const std::string& name);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_STYLE_ORIGINS_H_
