// Names far larger than any client builds decode to the right values. The allocation tests measure their
// cost.

#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

constexpr std::size_t kTenMegabytes = 10'000'000;
constexpr int kManyItems = 100'000;

std::string Joined(int count, const std::function<std::string(int)>& item) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i == 0 ? "" : ",") + item(i);
  return text;
}

class HostileSizeTest : public DecodeTest {};

TEST_F(HostileSizeTest, ATextOfTenMegabytes) {
  const std::string text(kTenMegabytes, 'x');
  Decode(R"({"content":")" + text + R"(","direction":7,"mode":1}.trafficBubble)");
  EXPECT_TRUE(Base().content == text);
  EXPECT_EQ(Base().direction, 7);
  EXPECT_EQ(Base().style_name, "traffic_style");
  ASSERT_EQ(records().size(), 2U);
  EXPECT_TRUE(records()[0].message == "[Kavrix][ctx]resource_name:" + name_);
  EXPECT_TRUE(records()[1].message == "[Kavrix][ctx]" + Printed(Base()));
}

TEST_F(HostileSizeTest, AFieldOfTenMegabytes) {
  const std::string text(kTenMegabytes, 'x');
  Decode(text + "|sub_0_x_0@3.etaBubble");
  EXPECT_TRUE(Base().content == text);
  EXPECT_EQ(Out<DestNameEtaDrawDescriptor>().sub_text, "sub");
  EXPECT_EQ(Base().direction, 3);
}

TEST_F(HostileSizeTest, TenMegabytesOfSeparators) {
  for (const char separator : {'@', '_', '.', '|'}) {
    for (const char* const marker : {".etaBubble", ".nameBubble", ".lightWaitBubble", ".hdLongSolidBubble"}) {
      Decode(std::string(kTenMegabytes / 10, separator) + marker);
      EXPECT_EQ(Base().direction, 0) << separator << marker;
    }
  }
}

TEST_F(HostileSizeTest, ANameWithoutAMarkerOfTenMegabytes) {
  DecodeWhole(std::string(kTenMegabytes, '.'));
  EXPECT_EQ(out_, nullptr);
  ASSERT_EQ(records().size(), 2U);
  EXPECT_TRUE(records()[1].message == "[Kavrix][ctx]resource_name:" + name_ + ", it is a not valid bubble.");
}

TEST_F(HostileSizeTest, ABrokenPayloadOfTenMegabytes) {
  const std::string payload = R"({"content":")" + std::string(kTenMegabytes, 'x');
  Decode(payload + ".trafficBubble");
  EXPECT_EQ(Base().content, "");
  ASSERT_EQ(records().size(), 2U);
  EXPECT_TRUE(records()[1].message == "[Kavrix][ctx]parse json failed: " + payload);
}

TEST_F(HostileSizeTest, AHundredThousandKeys) {
  const auto other = [](int i) { return "\"key_" + std::to_string(i) + "\":" + std::to_string(i); };
  Decode(R"({"content":"c",)" + Joined(kManyItems, other) + R"(,"direction":7,"mode":1}.trafficBubble)");
  EXPECT_EQ(Base().content, "c");
  EXPECT_EQ(Base().direction, 7);
  EXPECT_FALSE(Base().mode_flag);
}

TEST_F(HostileSizeTest, OneKeyAHundredThousandTimes) {
  const auto same = [](int i) { return "\"direction\":" + std::to_string(i % 1'000); };
  Decode("{" + Joined(kManyItems, same) + "}.trafficBubble");
  EXPECT_EQ(Base().direction, 999);
}

TEST_F(HostileSizeTest, AHundredThousandCameras) {
  const auto camera = [](int i) {
    return "{\"type\":" + std::to_string(i) + ",\"speed\":" + std::to_string(-i) + "}";
  };
  Decode(R"({"cameras":[)" + Joined(kManyItems, camera) + R"(],"distance":350}.cameraBubble)");
  const auto& cameras = Out<CameraDrawDescriptor>().cameras;
  ASSERT_EQ(cameras.size(), static_cast<std::size_t>(kManyItems));
  for (int i = 0; i < kManyItems; ++i) {
    ASSERT_EQ(cameras[static_cast<std::size_t>(i)].type, i);
    ASSERT_EQ(cameras[static_cast<std::size_t>(i)].speed, -i);
  }
  EXPECT_EQ(Out<CameraDrawDescriptor>().distance, 350);
}

TEST_F(HostileSizeTest, AHundredThousandLightsAndLines) {
  const auto zero = [](int) { return std::string("0"); };
  Decode(R"({"light_descriptors":[)" + Joined(kManyItems, zero) + "]}@2.multiLightCountdownBubble");
  const auto& lights = Out<MultiLightCountdownTimerDrawDescriptor>().light_descriptors;
  ASSERT_EQ(lights.size(), static_cast<std::size_t>(kManyItems));
  EXPECT_EQ(lights.back().turn_arrow_type, -1);
  EXPECT_EQ(Base().direction, 2);

  const auto line = [](int i) { return "\"" + std::to_string(i) + "\""; };
  Decode(R"({"second_content":[)" + Joined(kManyItems, line) + "]}.routeExplainBubble");
  const auto& lines = Out<ExplainBubbleDrawDescriptor>().second_content;
  ASSERT_EQ(lines.size(), static_cast<std::size_t>(kManyItems));
  EXPECT_EQ(lines.back(), "99999");
}

}  // namespace
}  // namespace kavrix::test
