#ifndef KAVRIX_DESCRIPTORS_BUBBLE_DRAW_DESCRIPTOR_H_
#define KAVRIX_DESCRIPTORS_BUBBLE_DRAW_DESCRIPTOR_H_

#include <array>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "../util/export.h"
#include "member_visitor.h"

namespace kavrix {

// Everything needed to draw one bubble, handed around as a shared pointer. Whatever neither the resource name
// nor the style set is zero, false or empty. Most kinds derive a class of their own.
class KAVRIX_EXPORT BubbleDrawDescriptor {
 public:
  virtual ~BubbleDrawDescriptor() = default;

  // The class name, without the namespace: a literal. Every derived class has its own, which As compares;
  // those of the library are in type_names.cpp.
  virtual const char* TypeName() const;

  // Visit the 13 members of this class, and those that the derived class adds. Text output, JSON output and
  // equality all run these two.
  void VisitBaseMembers(MemberVisitor& visitor) const;
  virtual void VisitOwnMembers(MemberVisitor&) const {}

  std::int32_t scene = 0;         // zero and non-zero select different style records
  std::string content;            // main string, or the image key
  std::string lan;                // language code of the content
  std::uint16_t bubble_kind = 0;  // the bubble layer's kind code
  std::int16_t type = 0;          // sub-type code
  std::int16_t direction = 0;     // side or direction code
  bool mode_flag = false;         // selects the first of the two value sets of a style record
  std::string style_name;         // style (image) name
  std::string icon;               // icon name
  std::uint32_t style_word = 0;
  std::array<float, 2> style_scale{};
  bool selected = false;
  bool is_force = false;
};

// Casts a descriptor to its own type; null when it is of another type:
//
//   if (const auto traffic = As<TrafficDrawDescriptor>(out)) Draw(traffic->light_text);
//
// Compares type names and so needs no RTTI, neither in the library nor in the client.
template <class Descriptor>
const Descriptor* As(const BubbleDrawDescriptor* descriptor) {
  static_assert(std::is_same_v<decltype(&Descriptor::TypeName), const char* (Descriptor::*)() const>,
                "an inherited TypeName does not tell the class from its base");
  static const std::string_view type_name = Descriptor().TypeName();
  if (descriptor == nullptr || descriptor->TypeName() != type_name) return nullptr;
  return static_cast<const Descriptor*>(descriptor);
}
template <class Descriptor>
Descriptor* As(BubbleDrawDescriptor* descriptor) {
  return const_cast<Descriptor*>(As<Descriptor>(static_cast<const BubbleDrawDescriptor*>(descriptor)));
}
template <class Descriptor>
std::shared_ptr<Descriptor> As(const std::shared_ptr<BubbleDrawDescriptor>& descriptor) {
  return As<Descriptor>(descriptor.get()) == nullptr ? nullptr
                                                     : std::static_pointer_cast<Descriptor>(descriptor);
}
template <class Descriptor>
std::shared_ptr<const Descriptor> As(const std::shared_ptr<const BubbleDrawDescriptor>& descriptor) {
  return As<Descriptor>(descriptor.get()) == nullptr ? nullptr
                                                     : std::static_pointer_cast<const Descriptor>(descriptor);
}

// Writes only the members of the base class, whatever the object's own type is, on one line:
//
//   BubbleDrawDescriptor{scene:0, content:"km 3", lan:"", ..., style_scale:[1.500000, 1.500000], ...}
//
// Strings are escaped as util/log_line.h lists, and their quotes too: none can end the line or look like
// another member. Of the stream's state only the notation and the precision of floats count, and none of it
// changes. Throws std::bad_alloc, with nothing written, when memory runs out.
KAVRIX_EXPORT std::ostream& operator<<(std::ostream& stream, const BubbleDrawDescriptor& descriptor);

// Writes all members of the object in the same form.
KAVRIX_EXPORT std::ostream& WriteAllMembers(std::ostream& stream, const BubbleDrawDescriptor& descriptor);

template <class Descriptor, std::enable_if_t<std::is_base_of_v<BubbleDrawDescriptor, Descriptor> &&
                                                 !std::is_same_v<BubbleDrawDescriptor, Descriptor>,
                                             int> = 0>
std::ostream& operator<<(std::ostream& stream, const Descriptor& descriptor) {
  return WriteAllMembers(stream, descriptor);
}

// True when both have the same type and all members are equal.
KAVRIX_EXPORT bool operator==(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b);
KAVRIX_EXPORT bool operator!=(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_BUBBLE_DRAW_DESCRIPTOR_H_
