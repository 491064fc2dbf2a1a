#ifndef KAVRIX_TESTS_SUPPORT_MEMBER_LAYOUT_H_
#define KAVRIX_TESTS_SUPPORT_MEMBER_LAYOUT_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

namespace kavrix::test {

// Returns the member; does not compile if it has another type.
template <class Type, class Member, class Owner>
constexpr Member Owner::*Is(Member Owner::*member) {
  static_assert(std::is_same_v<Member, Type>, "the member has another type");
  return member;
}

// Returns the offset of the first byte after a member in its object.
template <class Object, class Member, class Owner>
std::size_t EndOf(Member Owner::*member, const Object& object) {
  const auto* const first = reinterpret_cast<const std::byte*>(&object);
  const auto* const place = reinterpret_cast<const std::byte*>(&(object.*member));
  return static_cast<std::size_t>(place - first) + sizeof(Member);
}

// The members of `Owner` itself follow one another in this order from byte `begin` on, with nothing between
// them and after the last but what their alignment needs: one too few or in another place is seen, and one
// too many unless it fits into that padding.
template <class Owner, class... Members>
void ExpectMembers(const Owner& object, std::size_t begin, Members Owner::*... members) {
  std::size_t number = 0;
  const auto aligned = [](std::size_t place, std::size_t alignment) {
    return (place + alignment - 1) / alignment * alignment;
  };
  [[maybe_unused]] const auto follows = [&](std::size_t end, std::size_t size, std::size_t alignment) {
    EXPECT_EQ(end - size, aligned(begin, alignment)) << "begin of member " << ++number;
    begin = end;
  };
  (follows(EndOf(members, object), sizeof(Members), alignof(Members)), ...);
  EXPECT_EQ(sizeof(Owner), aligned(begin, alignof(Owner))) << "after the last member";
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_MEMBER_LAYOUT_H_
