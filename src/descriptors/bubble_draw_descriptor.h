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

/// Everything needed to draw one bubble, handed around as a shared pointer. Whatever neither the resource
/// name nor the style set is zero, false or empty. Most kinds derive a class of their own.
///
/// The comment of a member says what fills it: a key of the name's JSON object or a field of the name, in
/// quotes; a numbered value of the style record; or the parser itself. A key that is absent or of another
/// type leaves the member as it was ("mode" aside), as does a field that is not the number it should be.
/// Members of 16 bits keep the low 16 bits of an integer. A kind fills only some of these members: those of
/// its own comment or, when it has no class of its own, of its parser's in MapResourceTransform.
///
/// Codes and units that no comment explains are the client's own: the numbers are handed on as they are.
class KAVRIX_EXPORT BubbleDrawDescriptor {
 public:
  /// Virtual, because descriptors are held as pointers to their base.
  virtual ~BubbleDrawDescriptor() = default;

  /// Returns the class name, without the namespace: a literal. Every derived class has its own, which As
  /// compares.
  virtual const char* TypeName() const;

  /// Visits the 13 members of this class. Text output, JSON output and equality all run this and
  /// VisitOwnMembers.
  void VisitBaseMembers(MemberVisitor& visitor) const;
  /// Visits the members that the derived class adds.
  virtual void VisitOwnMembers(MemberVisitor&) const {}

  /// Scene code: "scene". In some kinds, 0 and all other values select different style records.
  std::int32_t scene = 0;
  std::string content;  ///< Main text, or the key of the image: "content", unless the kind says otherwise.
  std::string lan;      ///< Language code of the texts: "lan".
  std::uint16_t bubble_kind = 0;  ///< The bubble layer's kind code: a constant, 0 for kinds without one.
  std::int16_t type = 0;          ///< Sub-type code: "type", unless the kind says otherwise.
  std::int16_t direction = 0;     ///< Side or direction code: "direction", or the number after `@`.
  /// Selects the first of two value sets of a style record: true when "mode" is 0, and when a JSON object has
  /// no "mode" or one of another type.
  bool mode_flag = false;
  std::string style_name;              ///< Name of the style (image): that of the style record.
  std::string icon;                    ///< Icon name: "icon". Only route-explain bubbles have it.
  std::uint32_t style_word = 0;        ///< Style word: value 2, unless the kind says otherwise.
  std::array<float, 2> style_scale{};  ///< Scale pair: both value 3, unless the kind says otherwise.
  bool selected = false;  ///< Selection state: true when "is_selected_" is 1. Only cameras have it.
  bool is_force = false;  ///< Force flag: true when "is_force_" is 1, unless the kind says otherwise.
};

/// Casts a descriptor to its own type; null when it is of another type:
///
///     if (const auto traffic = As<TrafficDrawDescriptor>(out)) Draw(traffic->light_text);
///
/// Compares type names and so needs no RTTI, neither in the library nor in the client.
template <class Descriptor>
const Descriptor* As(const BubbleDrawDescriptor* descriptor) {
  static_assert(std::is_same_v<decltype(&Descriptor::TypeName), const char* (Descriptor::*)() const>,
                "an inherited TypeName does not tell the class from its base");
  static const std::string_view type_name = Descriptor().TypeName();
  if (descriptor == nullptr || descriptor->TypeName() != type_name) return nullptr;
  return static_cast<const Descriptor*>(descriptor);
}
/// The same for a descriptor that may be changed.
template <class Descriptor>
Descriptor* As(BubbleDrawDescriptor* descriptor) {
  return const_cast<Descriptor*>(As<Descriptor>(static_cast<const BubbleDrawDescriptor*>(descriptor)));
}
/// The same with shared ownership.
template <class Descriptor>
std::shared_ptr<Descriptor> As(const std::shared_ptr<BubbleDrawDescriptor>& descriptor) {
  return As<Descriptor>(descriptor.get()) == nullptr ? nullptr
                                                     : std::static_pointer_cast<Descriptor>(descriptor);
}
/// The same with shared ownership of a descriptor that may not be changed.
template <class Descriptor>
std::shared_ptr<const Descriptor> As(const std::shared_ptr<const BubbleDrawDescriptor>& descriptor) {
  return As<Descriptor>(descriptor.get()) == nullptr ? nullptr
                                                     : std::static_pointer_cast<const Descriptor>(descriptor);
}

/// Writes only the members of the base class, whatever the object's own type is, on one line:
///
///     BubbleDrawDescriptor{scene:0, content:"km 3", lan:"", ..., style_scale:[1.500000, 1.500000], ...}
///
/// Strings are escaped as util/log_line.h lists, and their quotes too: none can end the line or look like
/// another member. Of the stream's state only the notation and the precision of floats count, and none of it
/// changes. Throws std::bad_alloc, with nothing written, when memory runs out.
KAVRIX_EXPORT std::ostream& operator<<(std::ostream& stream, const BubbleDrawDescriptor& descriptor);

/// Writes all members of the object in the same form.
KAVRIX_EXPORT std::ostream& WriteAllMembers(std::ostream& stream, const BubbleDrawDescriptor& descriptor);

/// Writes all members of an object whose type is known: WriteAllMembers.
template <class Descriptor, std::enable_if_t<std::is_base_of_v<BubbleDrawDescriptor, Descriptor> &&
                                                 !std::is_same_v<BubbleDrawDescriptor, Descriptor>,
                                             int> = 0>
std::ostream& operator<<(std::ostream& stream, const Descriptor& descriptor) {
  return WriteAllMembers(stream, descriptor);
}

/// Returns true when both have the same type and all their members are equal.
KAVRIX_EXPORT bool operator==(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b);
/// Returns true when the type or a member differs.
KAVRIX_EXPORT bool operator!=(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b);

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_BUBBLE_DRAW_DESCRIPTOR_H_
