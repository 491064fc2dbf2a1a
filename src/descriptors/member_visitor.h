#ifndef KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_
#define KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_

#include <cstdint>
#include <string>

namespace kavrix {

// Receives the members of a descriptor in declaration order. Inside a list the names are empty; an item is a
// plain value or a record of named members.
class MemberVisitor {
 public:
  virtual ~MemberVisitor() = default;
  virtual void Integer(const char* name, std::int64_t value) = 0;
  virtual void Flag(const char* name, bool value) = 0;
  virtual void Real(const char* name, float value) = 0;
  virtual void Text(const char* name, const std::string& value) = 0;
  virtual void BeginList(const char* name) = 0;
  virtual void EndList() = 0;
  virtual void BeginRecord() = 0;
  virtual void EndRecord() = 0;
};

}  // namespace kavrix

#endif  // KAVRIX_DESCRIPTORS_MEMBER_VISITOR_H_
