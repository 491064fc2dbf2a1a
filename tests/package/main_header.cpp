// Every client compiles the main header again and again: it brings neither JsonCpp nor the streams nor the
// descriptors of single kinds.
#include "map_resource/map_resource_transform.h"

#if defined(JSON_CONFIG_H_INCLUDED) || defined(JSON_FORWARDS_H_INCLUDED) || defined(JSON_H_INCLUDED)
#error "the main header includes JsonCpp"
#endif
#if defined(_GLIBCXX_ISTREAM) || defined(_GLIBCXX_SSTREAM)
#error "the main header includes the streams"
#endif
#if defined(_GLIBCXX_OSTREAM) && __cplusplus < 202002L  // as C++20, <memory> includes it
#error "the main header includes the streams"
#endif
#if defined(KAVRIX_DESCRIPTORS_DESCRIPTORS_H_) || defined(KAVRIX_DESCRIPTORS_TRAFFIC_DRAW_DESCRIPTOR_H_)
#error "the main header includes the descriptors of single kinds"
#endif

#include <json/value.h>

// The declaration of Json::Value in the main header agrees with JsonCpp's.
void Decode(const Json::Value& value, std::shared_ptr<kavrix::BubbleDrawDescriptor>& out) {
  kavrix::MapResourceTransform::ParseMarkerResourceName(value, out);
}
