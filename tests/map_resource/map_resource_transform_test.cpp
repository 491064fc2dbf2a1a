#include "map_resource/map_resource_transform.h"

#include <atomic>
#include <thread>
#include <type_traits>

#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr";
constexpr char kFunction[] = "GetBubbleDrawDescriptor";

class MapResourceTransformTest : public DecodeTest {
 protected:
  SeenRecord Rejection() const {
    return Failure(kTag, kFunction, "resource_name:" + name_ + ", it is a not valid bubble.");
  }
};

TEST_F(MapResourceTransformTest, ConstructorTakesTheContextOverAndLeavesTheArgumentEmpty) {
  auto context = std::make_shared<KavrixContext>("ctx");
  const std::weak_ptr<KavrixContext> watched = context;
  {
    const MapResourceTransform transform(std::move(context));
    EXPECT_EQ(context, nullptr);
    EXPECT_EQ(watched.use_count(), 1);
  }
  EXPECT_TRUE(watched.expired());
}

TEST_F(MapResourceTransformTest, ConstructorSharesAContextThatTheCallerKeeps) {
  const auto context = std::make_shared<KavrixContext>("ctx");
  const MapResourceTransform transform(context);
  EXPECT_EQ(context.use_count(), 2);
}

TEST_F(MapResourceTransformTest, ConstructorDoesNotCheckForANullContext) {
  EXPECT_NO_THROW(MapResourceTransform{nullptr});
}

TEST_F(MapResourceTransformTest, ClassHasNoVirtualFunctions) {
  EXPECT_FALSE(std::is_polymorphic_v<MapResourceTransform>);
}

TEST_F(MapResourceTransformTest, RejectedNameWritesExactlyTwoRecords) {
  DecodeWhole("kavrix://resource/{}.unknownBubble");
  EXPECT_THAT(
      records(),
      ElementsAre(SeenRecord{0, "KavrixMapLayerMgr", "GetBubbleDrawDescriptor",
                             "[Kavrix][ctx]resource_name:kavrix://resource/{}.unknownBubble"},
                  SeenRecord{1, "KavrixMapLayerMgr", "GetBubbleDrawDescriptor",
                             "[Kavrix][ctx]resource_name:kavrix://resource/{}.unknownBubble, it is a not "
                             "valid bubble."}));
}

TEST_F(MapResourceTransformTest, RejectedNameLeavesOutUntouched) {
  Decode("{}.unknownBubble");
  EXPECT_EQ(out_, nullptr);
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  Decode("{}.unknownBubble");
  EXPECT_EQ(out_, earlier);
  EXPECT_EQ(*earlier, BubbleDrawDescriptor());
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(MapResourceTransformTest, EmptyNameIsLoggedWithNothingAfterItAndRejected) {
  DecodeWhole("");
  EXPECT_THAT(records(), ElementsAre(Routine(kTag, kFunction, "resource_name:"),
                                     Failure(kTag, kFunction, "resource_name:, it is a not valid bubble.")));
  EXPECT_EQ(out_, nullptr);
}

TEST_F(MapResourceTransformTest, NameShorterThanEveryMarkerIsRejectedWithoutAnException) {
  EXPECT_NO_THROW(DecodeWhole(".t"));
  EXPECT_THAT(records(), ElementsAre(Request(), Rejection()));
}

TEST_F(MapResourceTransformTest, OrderBeatsPosition) {
  Decode(R"({"content":".trafficBubble"}.cameraBubble)");
  EXPECT_STREQ(Base().TypeName(), "TrafficDrawDescriptor");
  Decode(R"({"content":"a.nameBubble"}.cameraBubble)");
  EXPECT_STREQ(Base().TypeName(), "BubbleDrawDescriptor");
  EXPECT_EQ(records()[1].tag, "KavrixMapLayerMgr_BubbleName");
}

TEST_F(MapResourceTransformTest, MarkerIsRecognisedWithTextAfterIt) {
  Decode("{}.turnBubble?v=1");
  EXPECT_STREQ(Base().TypeName(), "TurnArrowBubbleDrawDescriptor");
}

TEST_F(MapResourceTransformTest, MultiLightMarkerLeadsToTheMultiLightParser) {
  Decode("{}.multiLightCountdownBubble");
  EXPECT_STREQ(Base().TypeName(), "MultiLightCountdownTimerDrawDescriptor");
}

TEST_F(MapResourceTransformTest, MarkersWithALetterInTheOtherCaseAreRejected) {
  for (const std::string rest :
       {"{}.TrafficBubble", "{}.forceDotBubble", "{}.trafficbubble", "{}.TURNBUBBLE"}) {
    Decode(rest);
    EXPECT_THAT(records(), ElementsAre(Request(), Rejection()));
    EXPECT_EQ(out_, nullptr);
  }
}

TEST_F(MapResourceTransformTest, MarkerNameIsNoBubble) {
  Decode("{}.marker");
  EXPECT_THAT(records(), ElementsAre(Request(), Rejection()));
}

TEST_F(MapResourceTransformTest, RejectedTagSilencesOnlyTheDispatcher) {
  std::vector<std::string> tags;
  struct Sink : logging::LogSink {
    explicit Sink(std::vector<std::string>& seen) : seen_(seen) {}
    void Write(const logging::LogRecord& record) override { seen_.push_back(record.tag); }
    std::vector<std::string>& seen_;
  };
  const auto filter = [](const std::string& tag) { return tag != "KavrixMapLayerMgr"; };
  logging::SetLoggerInstance(0, {std::make_shared<Sink>(tags), logging::LogLevel::kRoutine, filter});
  Decode("{}.unknownBubble");
  EXPECT_THAT(tags, ElementsAre());
  Decode("{}.trafficBubble");
  EXPECT_THAT(tags, ElementsAre("KavrixMapLayerMgr_BubbleTraffic"));
}

TEST_F(MapResourceTransformTest, RecordsNameTheFileTheyAreWrittenIn) {
  Decode("{}.unknownBubble");
  EXPECT_THAT(collector_.files(), ElementsAre("map_resource_transform.cpp", "map_resource_transform.cpp"));
}

TEST_F(MapResourceTransformTest, LogsThatAreOffChangeNothingForABrokenMarkerName) {
  logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {});
  transform_.GetMarkerDrawDescriptor("kavrix://resource/{.marker", out_);
  EXPECT_EQ(out_, nullptr);
  EXPECT_THAT(records(), ::testing::IsEmpty());
}

TEST_F(MapResourceTransformTest, EveryCallMakesANewDescriptor) {
  Decode("{}.trafficBubble");
  const auto first = out_;
  Decode("{}.trafficBubble");
  EXPECT_NE(out_, first);
  EXPECT_EQ(first.use_count(), 1);
}

TEST_F(MapResourceTransformTest, RouteAccidentParserNeedsNoObject) {
  MapResourceTransform::ParseRouteAccidentResourceName("kavrix://resource/{}.RouteAccidentBubble", out_);
  EXPECT_STREQ(Base().TypeName(), "RouteAccidentBubbleDrawDescriptor");
}

TEST_F(MapResourceTransformTest, TwoThreadsMayUseOneObject) {
  std::atomic<int> wrong{0};
  MapResourceTransform transform(std::make_shared<KavrixContext>("threads"));
  struct Sink : logging::LogSink {
    void Write(const logging::LogRecord&) override { ++records; }
    std::atomic<int> records{0};
  };
  const auto sink = std::make_shared<Sink>();
  logging::SetLoggerInstance(0, {sink, logging::LogLevel::kRoutine, {}});
  const auto decode = [&](const std::string& name, int scene, const std::string& content) {
    for (int i = 0; i < 300; ++i) {
      std::shared_ptr<BubbleDrawDescriptor> out;
      transform.GetBubbleDrawDescriptor(name, out);
      if (out == nullptr || out->scene != scene || out->content != content) ++wrong;
    }
  };
  std::thread other(decode, R"(kavrix://resource/{"scene":3,"content":"a"}.trafficBubble)", 3, "a");
  decode("kavrix://resource/b_0_4@1.nameBubble", 4, "b");
  other.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(sink->records, 1200);
}

}  // namespace
}  // namespace kavrix::test
