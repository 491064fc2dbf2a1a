#ifndef KAVRIX_BENCH_PLAIN_PLAIN_FIELDS_H_
#define KAVRIX_BENCH_PLAIN_PLAIN_FIELDS_H_

#include <json/value.h>

#include <string>
#include <vector>

#include "descriptors/bubble_draw_descriptor.h"

// The pieces that the plain decoder reads names with.
namespace kavrix::plain {

// What stands behind the prefix.
std::string AfterPrefix(const std::string& resource_name);

// What stands between the prefix and a marker of that length.
std::string BetweenPrefixAndMarker(const std::string& resource_name, std::size_t marker_length);

// From the first brace behind the prefix to the last one; empty when there are none.
std::string BetweenBraces(const std::string& resource_name);

std::vector<std::string> Split(const std::string& text, char separator);

// True when the whole text is a decimal integer of 32 bits; on false `value` keeps what it has.
bool ToInt(const std::string& text, int& value);

// True when the text is a JSON object.
bool Parse(const std::string& text, Json::Value& root);

// The member of an object when it is there and of the type, else `current`.
std::string TextOr(const Json::Value& object, const std::string& key, const std::string& current);
int IntOr(const Json::Value& object, const std::string& key, int current);

// Fills `direction` from the piece of a name behind its "@": a number, a dot and the marker's word.
void ReadDirection(const std::string& tail, BubbleDrawDescriptor& descriptor);

template <class Record>
void CommonStyle(const Record& record, BubbleDrawDescriptor& descriptor) {
  descriptor.style_name = record.name;
  descriptor.style_word = record.Word(2);
  descriptor.style_scale[0] = record.Float(3);
  descriptor.style_scale[1] = record.Float(3);
}

}  // namespace kavrix::plain

#endif  // KAVRIX_BENCH_PLAIN_PLAIN_FIELDS_H_
