#ifndef KAVRIX_MAP_RESOURCE_RESOURCE_NAME_H_
#define KAVRIX_MAP_RESOURCE_RESOURCE_NAME_H_

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "descriptors/bubble_draw_descriptor.h"

namespace kavrix {

// A resource name is prefix + payload + marker. The first two functions drop as many bytes as the prefix and
// the marker have, whatever they are, and throw std::out_of_range for a name shorter than the prefix.

// Returns everything after the prefix, marker included.
std::string_view StripPrefix(const std::string& resource_name);

// Returns the bytes between prefix and marker. In a name too short to hold both the count wraps around, and
// everything after the prefix is returned.
std::string_view StripPrefixAndMarker(const std::string& resource_name, std::string_view marker);

// Makes the descriptor of a kind and stores it in `out` at once: whatever fails later, the caller can draw
// it.
template <class Descriptor>
std::shared_ptr<Descriptor> Publish(std::shared_ptr<BubbleDrawDescriptor>& out) {
  auto descriptor = std::make_shared<Descriptor>();
  out = descriptor;
  return descriptor;
}

// Makes the descriptor of a kind that decodes the whole name itself. Stores it in `out` whether or not the
// name holds a readable object.
template <class Descriptor>
void PublishInitialised(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out) {
  auto descriptor = std::make_shared<Descriptor>();
  descriptor->InitWithJson(resource_name);
  out = std::move(descriptor);
}

// Reads the direction from a decimal integer, low 16 bits; anything else leaves it unchanged.
void ReadDirection(std::string_view text, BubbleDrawDescriptor& descriptor);

// Reads the direction from what follows "@", as ReadDirectionTail of name_format.h does for the decoder.
void ReadDirectionTail(std::string_view tail, BubbleDrawDescriptor& descriptor);

// Returns the JSON object of a whole resource name: from the first "{" after the prefix, if the name has the
// prefix, to the last "}". Empty when there is none.
std::string_view FindJsonObject(std::string_view resource_name);

// Fills the style as most kinds do: the word from value 2, both scales from value 3. Moves the name out of
// the record.
template <class Record>
void ApplyCommonStyle(Record&& record, BubbleDrawDescriptor& descriptor) {
  descriptor.style_name = std::forward<Record>(record).name;
  descriptor.style_word = record.Word(2);
  descriptor.style_scale.fill(record.Float(3));
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_RESOURCE_NAME_H_
