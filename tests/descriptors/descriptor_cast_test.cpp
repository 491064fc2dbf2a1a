// Tests As, the cast that needs no RTTI.

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "descriptors/descriptors.h"

namespace kavrix::test {
namespace {

// A descriptor of the type of each kind, and of marker names.
std::vector<std::shared_ptr<BubbleDrawDescriptor>> DescriptorsOfAllKinds() {
  return {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) std::make_shared<Descriptor>(),
#include "map_resource/bubble_kinds.def"
      std::make_shared<MarkerDrawDescriptor>()};
}

// Expects As to find the descriptors of the type and no others.
template <class Descriptor>
void ExpectFindsItsOwn() {
  for (const auto& shared : DescriptorsOfAllKinds()) {
    const BubbleDrawDescriptor& descriptor = *shared;
    const bool is_own = typeid(descriptor) == typeid(Descriptor);
    EXPECT_EQ(As<Descriptor>(&descriptor), is_own ? &descriptor : nullptr) << descriptor.TypeName();
  }
}

TEST(DescriptorCastTest, TellsAllTypesApart) {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) ExpectFindsItsOwn<Descriptor>();
#include "map_resource/bubble_kinds.def"
  ExpectFindsItsOwn<MarkerDrawDescriptor>();
}

TEST(DescriptorCastTest, KeepsConstAndShares) {
  const auto bubble = std::make_shared<TurnArrowBubbleDrawDescriptor>();
  const std::shared_ptr<BubbleDrawDescriptor> shared = bubble;
  const std::shared_ptr<const BubbleDrawDescriptor> shared_const = bubble;
  BubbleDrawDescriptor* const plain = bubble.get();
  const BubbleDrawDescriptor* const plain_const = bubble.get();

  EXPECT_EQ(As<TurnArrowBubbleDrawDescriptor>(plain), bubble.get());
  const std::shared_ptr<TurnArrowBubbleDrawDescriptor> turn = As<TurnArrowBubbleDrawDescriptor>(shared);
  EXPECT_EQ(turn, bubble);
  EXPECT_EQ(bubble.use_count(), 4);
  static_assert(std::is_same_v<decltype(As<TurnArrowBubbleDrawDescriptor>(plain_const)),
                               const TurnArrowBubbleDrawDescriptor*>);
  const std::shared_ptr<const TurnArrowBubbleDrawDescriptor> const_turn =
      As<TurnArrowBubbleDrawDescriptor>(shared_const);
  EXPECT_EQ(const_turn, bubble);
  EXPECT_EQ(bubble.use_count(), 5);
}

TEST(DescriptorCastTest, GivesAnEmptyPointerForAnotherTypeAndForNull) {
  const std::shared_ptr<BubbleDrawDescriptor> bubble = std::make_shared<TurnArrowBubbleDrawDescriptor>();
  const std::shared_ptr<const BubbleDrawDescriptor> const_bubble = bubble;
  EXPECT_EQ(As<TrafficDrawDescriptor>(bubble).use_count(), 0);
  EXPECT_EQ(As<TrafficDrawDescriptor>(const_bubble).use_count(), 0);
  EXPECT_EQ(As<TrafficDrawDescriptor>(std::shared_ptr<BubbleDrawDescriptor>()), nullptr);
  EXPECT_EQ(As<TrafficDrawDescriptor>(std::shared_ptr<const BubbleDrawDescriptor>()), nullptr);
}

}  // namespace
}  // namespace kavrix::test
