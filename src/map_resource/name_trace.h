#ifndef KAVRIX_MAP_RESOURCE_NAME_TRACE_H_
#define KAVRIX_MAP_RESOURCE_NAME_TRACE_H_

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "key_list/key_tracer.h"
#include "map_resource/name_format.h"

namespace kavrix {

// Goes a format's way through a name as Decoding does, and notes what it touches.
struct Tracing {
  template <class List>
  bool ReadObject(std::string_view text, List list) const {
    TracedObject& object = trace.object.emplace();
    object.text = text;
    PayloadNodes payload;
    object.is_object = payload.Read(text);
    if (!object.is_object) return false;
    object.is_plain = payload.IsPlain();
    if (object.is_plain) object.bytes = payload.nodes()[0].Bytes();
    JsonKeyTracer keys(trace, payload.nodes());
    list(keys);
    keys.AddUnknown();
    return true;
  }

  template <std::size_t N>
  bool Split(std::string_view text, char separator, Fields<N>& fields, std::size_t least = N) const {
    const bool is_accepted = Decoding::Split(text, separator, fields, least);
    trace.splits.push_back({text, separator, least, least != N, is_accepted});
    return is_accepted;
  }

  template <std::size_t N, class List>
  void ReadFields(const Fields<N>& fields, List list) const {
    FieldTracer tracer(trace, fields.at.data(), std::min(fields.count, N));
    list(tracer);
    tracer.AddUnknown();
  }

  void ReadDirection(std::string_view text, BubbleDrawDescriptor& descriptor) const {
    FieldTracer(trace, &text, 1).Integer(0, "direction", descriptor.direction);
  }
  void ReadDirectionTail(std::string_view tail, BubbleDrawDescriptor& descriptor) const {
    kavrix::ReadDirectionTail(tail, descriptor, *this);
  }

  NameTrace& trace;
};

template <class Format>
bool TraceName(const std::string& name, NameTrace& trace) {
  trace.payload = Format::PayloadOf(name);
  typename Format::Carried carried{};
  return Format::ReadName(name, carried, Tracing{trace});
}

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_NAME_TRACE_H_
