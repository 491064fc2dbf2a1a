#ifndef KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_
#define KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "marker_type.h"

namespace kavrix {

/// Receives the members of a descriptor in declaration order. An item of a list is a value with an empty
/// name, or an object with named members. Style words (colours, or bits that only the drawing side
/// understands) and marker types arrive as integers unless the visitor overrides Word and Code.
class KAVRIX_EXPORT MemberVisitor {
 public:
  /// Virtual, because visitors are derived from the class.
  virtual ~MemberVisitor();
  /// Receives an integer of any width.
  virtual void Integer(const char* name, std::int64_t value) = 0;
  /// Receives a style word; unless overridden, passes it to Integer.
  virtual void Word(const char* name, std::uint32_t value) { Integer(name, value); }
  /// Receives a marker type; unless overridden, passes its value to Integer.
  virtual void Code(const char* name, MarkerType value) { Integer(name, static_cast<std::int64_t>(value)); }
  /// Receives a flag.
  virtual void Flag(const char* name, bool value) = 0;
  /// Receives a float.
  virtual void Real(const char* name, float value) = 0;
  /// Receives a string, whose bytes need not be UTF-8.
  virtual void Text(const char* name, const std::string& value) = 0;
  /// Begins a list, whose items follow.
  virtual void BeginList(const char* name) = 0;
  /// Ends the list.
  virtual void EndList() = 0;
  /// Begins an item of a list, whose named members follow.
  virtual void BeginObject() = 0;
  /// Ends the item.
  virtual void EndObject() = 0;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_
