#ifndef KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_
#define KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_

#include <cstdint>
#include <string>

#include "../util/export.h"
#include "marker_type.h"

namespace kavrix {

// Receives the members of a descriptor in declaration order. An item of a list is a value with an empty name,
// or an object with named members. Style words (colours, or bits that only the drawing side understands) and
// marker types arrive as integers unless the visitor overrides Word and Code.
class KAVRIX_EXPORT MemberVisitor {
 public:
  virtual ~MemberVisitor();
  virtual void Integer(const char* name, std::int64_t value) = 0;
  virtual void Word(const char* name, std::uint32_t value) { Integer(name, value); }
  virtual void Code(const char* name, MarkerType value) { Integer(name, static_cast<std::int64_t>(value)); }
  virtual void Flag(const char* name, bool value) = 0;
  virtual void Real(const char* name, float value) = 0;
  virtual void Text(const char* name, const std::string& value) = 0;
  virtual void BeginList(const char* name) = 0;
  virtual void EndList() = 0;
  virtual void BeginObject() = 0;
  virtual void EndObject() = 0;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_
