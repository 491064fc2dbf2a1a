#ifndef KAVRIX_MAP_RESOURCE_NAME_FORMAT_H_
#define KAVRIX_MAP_RESOURCE_NAME_FORMAT_H_

#include <algorithm>
#include <string>
#include <string_view>

#include "key_list/key_reader.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/resource_name.h"
#include "util/fields.h"

// The format of a kind, a struct in the kind's file, describes its names:
//
//   kMarker                   the marker
//   Carried                   what a name carries: the descriptor, or a struct that adds what it lacks
//   List(keys, carried)       the key list: the keys of the JSON object, or the fields
//   ListAll(keys, carried)    the key list, then what else the name carries
//   PayloadOf(name)           the payload that Read takes
//   Read(payload, carried)    reads a payload
//   ReadName(name, carried)   reads the payload of a whole name; false where the parser logs a failure
//
// The parser and the encoder's proof of a name run the same Read. A format derives from the base below that
// fits its names, which takes the format as `Self` and gives all but kMarker and List.
namespace kavrix {

// How a format reads. The decoder reads as below; Tracing of name_trace.h notes what is read from where.
struct Decoding {
  // Calls `list` with a reader of the JSON object in `text`; false when `text` is not one.
  template <class List>
  static bool ReadObject(std::string_view text, List list) {
    return ReadJsonObject(text, list);
  }

  // Cuts `text` into fields. False when they are fewer than `least` or, unless `least` is fewer than N, more
  // than N.
  template <std::size_t N>
  static bool Split(std::string_view text, char separator, Fields<N>& fields, std::size_t least = N) {
    fields = SplitFields<N>(text, separator);
    return least == N ? fields.count == N : fields.count >= least;
  }

  template <std::size_t N, class List>
  static void ReadFields(const Fields<N>& fields, List list) {
    FieldReader reader(fields.at.data(), std::min(fields.count, N));
    list(reader);
  }

  static void ReadDirection(std::string_view text, BubbleDrawDescriptor& descriptor) {
    kavrix::ReadDirection(text, descriptor);
  }
  static void ReadDirectionTail(std::string_view tail, BubbleDrawDescriptor& descriptor) {
    kavrix::ReadDirectionTail(tail, descriptor);
  }
};

// Reads the direction from what follows "@": the integer, a dot and the marker's word, which is not compared.
// A tail of another shape leaves the direction unchanged.
template <class Reading>
void ReadDirectionTail(std::string_view tail, BubbleDrawDescriptor& descriptor, Reading reading) {
  Fields<2> fields;
  if (reading.Split(tail, '.', fields)) reading.ReadDirection(fields.at[0], descriptor);
}

// For callers of Read that have nothing to do there.
struct NoAction {
  template <class... Arguments>
  void operator()(const Arguments&...) const {}
};

// prefix JSON-object marker
template <class Self, class CarriedType>
struct JsonFormat {
  using Carried = CarriedType;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
  }
  static std::string_view PayloadOf(const std::string& name) {
    return StripPrefixAndMarker(name, Self::kMarker);
  }
  // False when the payload is not a JSON object. Calls `when_parsed` before it reads the first key.
  template <class Reading = Decoding, class Action = NoAction>
  static bool Read(std::string_view payload, Carried& carried, Reading reading = {},
                   Action when_parsed = {}) {
    return reading.ReadObject(payload, [&](auto& keys) {
      when_parsed();
      Self::List(keys, carried);
    });
  }
  template <class Reading = Decoding>
  static bool ReadName(const std::string& name, Carried& carried, Reading reading = {}) {
    return Self::Read(Self::PayloadOf(name), carried, reading);
  }
};

// The same, but Read finds the object in the whole name, and a name without one is not a failure.
template <class Self, class CarriedType>
struct WholeNameFormat : JsonFormat<Self, CarriedType> {
  static std::string_view PayloadOf(const std::string& name) { return FindJsonObject(name); }
  template <class Reading = Decoding>
  static bool ReadName(const std::string& name, CarriedType& carried, Reading reading = {}) {
    Self::Read(PayloadOf(name), carried, reading);
    return true;
  }
};

// prefix JSON-object "@" direction marker
template <class Self, class CarriedType>
struct JsonAndDirectionFormat {
  using Carried = CarriedType;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
    keys.Integer("direction", carried.direction);
  }
  static std::string_view PayloadOf(const std::string& name) { return StripPrefix(name); }
  // False when the part before "@" is not a JSON object: passes it to `on_broken_json`, and reads the
  // direction after that all the same. A payload that is not two parts sets nothing and is not a failure.
  template <class Reading = Decoding, class Action = NoAction>
  static bool Read(std::string_view payload, Carried& carried, Reading reading = {},
                   Action on_broken_json = {}) {
    Fields<2> parts;
    if (!reading.Split(payload, '@', parts)) return true;
    const bool parsed = reading.ReadObject(parts.at[0], [&](auto& keys) { Self::List(keys, carried); });
    if (!parsed) on_broken_json(parts.at[0]);
    reading.ReadDirectionTail(parts.at[1], carried);
    return parsed;
  }
  template <class Reading = Decoding>
  static bool ReadName(const std::string& name, Carried& carried, Reading reading = {}) {
    return Self::Read(Self::PayloadOf(name), carried, reading);
  }
};

// prefix head "@" direction marker, where the head is FieldCount fields joined by "_". With fewer LeastFields
// some may be missing, and more may follow. Head and tail are read independently of each other, and nothing
// is a failure.
template <class Self, class CarriedType, std::size_t FieldCount, std::size_t LeastFields = FieldCount>
struct FieldsFormat {
  using Carried = CarriedType;
  static constexpr std::size_t kFieldCount = FieldCount;
  template <class Keys, class AnyCarried>
  static void ListAll(Keys& keys, AnyCarried& carried) {
    Self::List(keys, carried);
    keys.Integer("direction", carried.direction);
  }
  static std::string_view PayloadOf(const std::string& name) { return StripPrefix(name); }
  template <class Reading = Decoding>
  static void Read(std::string_view payload, Carried& carried, Reading reading = {}) {
    Fields<2> parts;
    if (!reading.Split(payload, '@', parts)) return;
    Fields<FieldCount> head;
    if (reading.Split(parts.at[0], '_', head, LeastFields)) {
      reading.ReadFields(head, [&](auto& fields) { Self::List(fields, carried); });
    }
    reading.ReadDirectionTail(parts.at[1], carried);
  }
  template <class Reading = Decoding>
  static bool ReadName(const std::string& name, Carried& carried, Reading reading = {}) {
    Self::Read(Self::PayloadOf(name), carried, reading);
    return true;
  }
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_NAME_FORMAT_H_
