#include "map_resource/bubble_kinds.h"
#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using EveryBubbleTest = DecodeTest;

TEST_F(EveryBubbleTest, RoutineRecordComesFirstForEveryKind) {
  for (const std::string_view marker : kBubbleMarkers) {
    Decode("{}" + std::string(marker));
    ASSERT_FALSE(records().empty()) << marker;
    EXPECT_EQ(records()[0], Request()) << marker;
  }
}

TEST_F(EveryBubbleTest, EachMarkerLeadsToItsOwnDescriptorTypeAndKindCode) {
  for (const BubbleKind kind : kBubbleKinds) {
    const BubbleKindInfo& info = InfoOf(kind);
    for (const std::string payload : {"{}@1", "@1", "[1]@1", "broken@1"}) {
      out_.reset();
      Decode(payload + std::string(info.marker));
      ASSERT_NE(out_, nullptr) << payload << info.marker;
      EXPECT_STREQ(Base().TypeName(), info.descriptor_type) << payload << info.marker;
      EXPECT_EQ(out_->bubble_kind, info.kind_code.value_or(0)) << payload << info.marker;
    }
  }
}

TEST_F(EveryBubbleTest, LogsThatAreOffChangeNothing) {
  for (const std::string_view marker : kBubbleMarkers) {
    for (const std::string payload : {"{}", "{", "{}@1", "{@1", "a_0_0@1", "1_2@3"}) {
      Decode(payload + std::string(marker));
      const auto logged = out_;
      logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {});
      out_ = nullptr;
      Decode(payload + std::string(marker));
      EXPECT_THAT(records(), ::testing::IsEmpty());
      ASSERT_EQ(out_ == nullptr, logged == nullptr) << name_;
      if (out_ != nullptr) {
        EXPECT_EQ(*out_, *logged) << name_;
      }
      collector_.Install();
      out_ = nullptr;
    }
  }
}

}  // namespace
}  // namespace kavrix::test
