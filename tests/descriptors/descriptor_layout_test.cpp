// Tests the members of the descriptors, their types and their order.

#include <gtest/gtest.h>

#include "descriptors/descriptors.h"
#include "tests/support/member_layout.h"

namespace kavrix::test {
namespace {

// Counts the members that a descriptor shows; a list is one.
class MemberCounter : public MemberVisitor {
 public:
  void Integer(const char*, std::int64_t) override { Count(); }
  void Flag(const char*, bool) override { Count(); }
  void Real(const char*, float) override { Count(); }
  void Text(const char*, const std::string&) override { Count(); }
  void BeginList(const char*) override { in_list_ = true; }
  void EndList() override {
    in_list_ = false;
    Count();
  }
  void BeginObject() override {}
  void EndObject() override {}

  std::size_t count() const { return count_; }

 private:
  void Count() { count_ += in_list_ ? 0 : 1; }

  bool in_list_ = false;
  std::size_t count_ = 0;
};

// Tests the members that a derived type adds to those of the base.
template <class Descriptor, class... Members>
void ExpectOwn(Members Descriptor::*... members) {
  static_assert(std::is_base_of_v<BubbleDrawDescriptor, Descriptor>);
  const Descriptor descriptor;
  SCOPED_TRACE(descriptor.TypeName());
  ExpectMembers(descriptor, EndOf(&BubbleDrawDescriptor::is_force, descriptor), members...);
  MemberCounter counter;
  descriptor.VisitOwnMembers(counter);
  EXPECT_EQ(counter.count(), sizeof...(Members)) << "a member is missing in VisitOwnMembers or here";
}

// Tests the members of one type. Does not compile for a type that has no specialisation below.
template <class Descriptor>
void ExpectLayout() = delete;

template <>
void ExpectLayout<BubbleDrawDescriptor>() {
  using D = BubbleDrawDescriptor;
  static_assert(std::is_polymorphic_v<D> && std::has_virtual_destructor_v<D>);
  ExpectMembers(D(), sizeof(void*), Is<std::int32_t>(&D::scene), Is<std::string>(&D::content),
                Is<std::string>(&D::lan), Is<std::uint16_t>(&D::bubble_kind), Is<std::int16_t>(&D::type),
                Is<std::int16_t>(&D::direction), Is<bool>(&D::mode_flag), Is<std::string>(&D::style_name),
                Is<std::string>(&D::icon), Is<std::uint32_t>(&D::style_word),
                Is<std::array<float, 2>>(&D::style_scale), Is<bool>(&D::selected), Is<bool>(&D::is_force));
}

template <>
void ExpectLayout<TrafficDrawDescriptor>() {
  using D = TrafficDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::light_text), Is<std::int32_t>(&D::extra_type),
               Is<float>(&D::style_float_1), Is<float>(&D::style_float_2), Is<float>(&D::style_float_3),
               Is<std::uint32_t>(&D::style_word_2));
}

template <>
void ExpectLayout<IndoorEntriesBubbleDrawDescriptor>() {
  using D = IndoorEntriesBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::int16_t>(&D::entries_value), Is<std::string>(&D::entries_text));
}

template <>
void ExpectLayout<CompanionBubbleDrawDescriptor>() {
  using D = CompanionBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::time), Is<std::string>(&D::label), Is<std::string>(&D::distance),
               Is<std::string>(&D::fee), Is<std::string>(&D::light), Is<bool>(&D::better),
               Is<std::int32_t>(&D::scene));
}

template <>
void ExpectLayout<CameraDrawDescriptor>() {
  using D = CameraDrawDescriptor;
  ExpectOwn<D>(Is<std::vector<D::Camera>>(&D::cameras), Is<std::int32_t>(&D::distance),
               Is<std::string>(&D::snap_text), Is<std::array<std::uint32_t, 3>>(&D::plain_style_values),
               Is<std::uint32_t>(&D::mode_style_value));
  using Camera = D::Camera;
  ExpectMembers(Camera(), 0, Is<std::int32_t>(&Camera::type), Is<std::int32_t>(&Camera::speed));
}

template <>
void ExpectLayout<DestNameEtaDrawDescriptor>() {
  using D = DestNameEtaDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::sub_text), Is<std::uint32_t>(&D::second_style_value),
               Is<std::uint32_t>(&D::second_mode_style_value), Is<std::uint32_t>(&D::third_mode_style_value),
               Is<std::uint32_t>(&D::fourth_mode_style_value));
}

template <>
void ExpectLayout<ExplainBubbleDrawDescriptor>() {
  using D = ExplainBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::uid), Is<std::string>(&D::explain_content),
               Is<std::vector<std::string>>(&D::second_content), Is<std::int32_t>(&D::second_type),
               Is<std::int32_t>(&D::scene_type), Is<std::int32_t>(&D::bubble_type));
}

template <>
void ExpectLayout<LightCountdownTimerDrawDescriptor>() {
  using D = LightCountdownTimerDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::id), Is<std::int32_t>(&D::style), Is<std::int32_t>(&D::light_type),
               Is<std::int32_t>(&D::turn_arrow_type), Is<std::int32_t>(&D::time), Is<std::string>(&D::text));
}

template <>
void ExpectLayout<MultiLightCountdownTimerDrawDescriptor>() {
  using D = MultiLightCountdownTimerDrawDescriptor;
  using Light = D::OneLightCountdownTimerDrawDescriptor;
  ExpectOwn<D>(Is<std::int32_t>(&D::style), Is<std::string>(&D::id), Is<bool>(&D::is_animation),
               Is<std::vector<Light>>(&D::light_descriptors));
  ExpectMembers(Light(), 0, Is<std::int32_t>(&Light::light_type), Is<std::int32_t>(&Light::turn_arrow_type),
                Is<std::int32_t>(&Light::remain_time), Is<std::string>(&Light::text),
                Is<std::int32_t>(&Light::total_time));
}

template <>
void ExpectLayout<ViaPointDrawDescriptor>() {
  using D = ViaPointDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::route_id), Is<std::int32_t>(&D::index), Is<bool>(&D::is_selected),
               Is<bool>(&D::is_reached), Is<bool>(&D::is_main_map), Is<std::int32_t>(&D::resource_id));
}

template <>
void ExpectLayout<TurnArrowBubbleDrawDescriptor>() {
  using D = TurnArrowBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::int32_t>(&D::distance));
}

template <>
void ExpectLayout<LightWaitBubbleDrawDescriptor>() {
  ExpectOwn<LightWaitBubbleDrawDescriptor>();
}

template <>
void ExpectLayout<HDLongSolidBubbleDrawDescriptor>() {
  ExpectOwn<HDLongSolidBubbleDrawDescriptor>();
}

template <>
void ExpectLayout<YawNoticeBubbleDrawDescriptor>() {
  using D = YawNoticeBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::int32_t>(&D::reason));
}

template <>
void ExpectLayout<RouteAccidentBubbleDrawDescriptor>() {
  using D = RouteAccidentBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::string>(&D::accident_id), Is<std::int32_t>(&D::severity));
}

template <>
void ExpectLayout<SafeWarningBubbleDrawDescriptor>() {
  using D = SafeWarningBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::int32_t>(&D::category), Is<std::int32_t>(&D::distance));
}

template <>
void ExpectLayout<HDLaneChangeBubbleDrawDescriptor>() {
  using D = HDLaneChangeBubbleDrawDescriptor;
  ExpectOwn<D>(Is<std::int32_t>(&D::target_lane), Is<std::int32_t>(&D::distance));
}

template <>
void ExpectLayout<MarkerDrawDescriptor>() {
  using D = MarkerDrawDescriptor;
  ExpectOwn<D>(Is<std::int16_t>(&D::marker_type), Is<std::string>(&D::name),
               Is<std::int32_t>(&D::resource_id), Is<bool>(&D::is_main_map));
}

#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) \
  TEST(DescriptorLayoutTest, Kind) { ExpectLayout<Descriptor>(); }
#include "map_resource/bubble_kinds.def"

TEST(DescriptorLayoutTest, MarkerName) { ExpectLayout<MarkerDrawDescriptor>(); }

}  // namespace
}  // namespace kavrix::test
