#ifndef KAVRIX_MAP_RESOURCE_RESOURCE_NAME_H_
#define KAVRIX_MAP_RESOURCE_RESOURCE_NAME_H_

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix {

// A resource name is prefix + payload + marker. Neither end is ever compared: as many bytes are dropped as
// the prefix and the marker have. A name shorter than the prefix throws std::out_of_range.

// Everything after the prefix, marker included.
std::string_view StripPrefix(const std::string& resource_name);

// What stands between prefix and marker. In a name too short to hold both the count wraps around and
// everything after the prefix is left.
std::string_view StripPrefixAndMarker(const std::string& resource_name, std::string_view marker);

// Makes the descriptor of a kind and shows it to the caller at once: whatever fails later, it is there to
// draw.
template <class Descriptor>
std::shared_ptr<Descriptor> Publish(std::shared_ptr<BubbleDrawDescriptor>& out) {
  auto descriptor = std::make_shared<Descriptor>();
  out = descriptor;
  return descriptor;
}

// Makes the descriptor of a kind that decodes the whole name itself, and publishes it whatever it made of it.
template <class Descriptor>
void PublishInitialised(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out) {
  auto descriptor = std::make_shared<Descriptor>();
  descriptor->InitWithJson(resource_name);
  out = std::move(descriptor);
}

// Reads the direction from a decimal integer, low 16 bits; any other text leaves it alone.
void ReadDirection(std::string_view text, BubbleDrawDescriptor& descriptor);

// The same from the text after "@": the integer, a dot and the marker word, which is not compared. A tail of
// another shape leaves the direction alone.
void ReadDirectionTail(std::string_view tail, BubbleDrawDescriptor& descriptor);

// The text from the first brace after the prefix to the last one: the JSON object of a whole resource name.
// Empty when there is none.
std::string_view FindJsonObject(std::string_view resource_name);

// The reading of a style record that most kinds share: value 2 is the word, value 3 both scales. Takes the
// name.
template <class Record>
void ApplyCommonStyle(Record&& record, BubbleDrawDescriptor& descriptor) {
  descriptor.style_name = std::forward<Record>(record).name;
  descriptor.style_word = record.Word(2);
  descriptor.style_scale.fill(record.Float(3));
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_RESOURCE_NAME_H_
