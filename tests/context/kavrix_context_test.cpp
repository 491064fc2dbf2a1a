#include "context/kavrix_context.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <type_traits>

namespace kavrix::test {
namespace {

// Makes a configuration whose records all have the name `name` and hold `word` in every value and item.
BubbleLayerConfigContainer UniformConfig(const std::string& name, std::uint32_t word) {
  BubbleLayerConfigContainer config;
  ForEachStyleRecord(config, [&](const char*, auto& record) {
    record.name = name;
    record.reserved_1 = word;
    record.reserved_2 = word;
    record.items = {word, word};
    record.values.fill(word);
  });
  return config;
}

bool IsUniform(const BubbleLayerConfigContainer& config) {
  const std::string& name = config.route_name_style.name;
  const std::uint32_t word = config.route_name_style.Word(1);
  bool is_uniform = true;
  ForEachStyleRecord(config, [&](const char*, const auto& record) {
    is_uniform = is_uniform && record.name == name && record.reserved_1 == word && record.reserved_2 == word;
    for (const std::uint32_t item : record.items) is_uniform = is_uniform && item == word;
    for (const std::uint32_t value : record.values) is_uniform = is_uniform && value == word;
  });
  return is_uniform;
}

TEST(KavrixContextTest, NewContextHasItsNameADefaultConfigurationAndMultiLightTypeZero) {
  const KavrixContext context("main-map");
  EXPECT_EQ(context.context_name, "main-map");
  EXPECT_EQ(context.multi_light_type, 0);
  const auto config = context.GetBubbleLayerConfigInLock();
  ForEachStyleRecord(config, [](const char* member, const auto& record) {
    EXPECT_EQ(record.name, "") << member;
    EXPECT_THAT(record.values, ::testing::Each(0U)) << member;
  });
}

TEST(KavrixContextTest, NameIsNeverChanged) {
  EXPECT_TRUE((std::is_same_v<decltype(KavrixContext::context_name), const std::string>));
}

TEST(KavrixContextTest, ConfigurationIsGivenBackWhole) {
  KavrixContext context("ctx");
  context.SetBubbleLayerConfig(UniformConfig("a", 1));
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  EXPECT_TRUE(IsUniform(config));
  EXPECT_EQ(config.traffic_scene_style.name, "a");
  EXPECT_EQ(config.traffic_scene_style.Word(11), 1U);
  EXPECT_EQ(config.unread_style_12.items.size(), 2U);
}

TEST(KavrixContextTest, ChangedCopyDoesNotTouchTheContext) {
  KavrixContext context("ctx");
  context.SetBubbleLayerConfig(UniformConfig("a", 1));
  BubbleLayerConfigContainer copy = context.GetBubbleLayerConfigInLock();
  copy.turn_style.name = "changed";
  copy.turn_style.items[0] = 9;
  const std::string taken = std::move(copy.eta_style.name);
  const BubbleLayerConfigContainer later = context.GetBubbleLayerConfigInLock();
  EXPECT_EQ(later.turn_style.name, "a");
  EXPECT_EQ(later.turn_style.items[0], 1U);
  EXPECT_EQ(later.eta_style.name, "a");
}

TEST(KavrixContextTest, ReplacedConfigurationDoesNotTouchEarlierCopies) {
  KavrixContext context("ctx");
  context.SetBubbleLayerConfig(UniformConfig("a", 1));
  const BubbleLayerConfigContainer earlier = context.GetBubbleLayerConfigInLock();
  context.SetBubbleLayerConfig(UniformConfig("b", 2));
  EXPECT_EQ(earlier.traffic_style.name, "a");
  EXPECT_EQ(earlier.traffic_style.Word(2), 1U);
  EXPECT_TRUE(IsUniform(earlier));
  EXPECT_EQ(context.GetBubbleLayerConfigInLock().traffic_style.name, "b");
}

TEST(KavrixContextTest, CopyTakenWhileTheConfigurationIsExchangedIsOfOnlyOneConfiguration) {
  KavrixContext context("ctx");
  const auto first = UniformConfig("the first name, longer than fits in place", 1);
  const auto second = UniformConfig("the second name, also longer than fits in place", 2);
  context.SetBubbleLayerConfig(first);
  std::atomic<bool> is_done{false};
  std::thread exchanger([&] {
    for (int i = 0; !is_done; ++i) context.SetBubbleLayerConfig(i % 2 == 0 ? second : first);
  });
  int mixed = 0;
  for (int i = 0; i < 3000; ++i) {
    if (!IsUniform(context.GetBubbleLayerConfigInLock())) ++mixed;
  }
  is_done = true;
  exchanger.join();
  EXPECT_EQ(mixed, 0);
}

TEST(KavrixContextTest, AccessorMayBeOverriddenByAClientThatKeepsItsConfigurationElsewhere) {
  class ClientContext : public KavrixContext {
   public:
    using KavrixContext::KavrixContext;
    BubbleLayerConfigContainer GetBubbleLayerConfigInLock() const override {
      return UniformConfig("client", 3);
    }
  };
  const ClientContext client("ctx");
  const KavrixContext& context = client;
  EXPECT_EQ(context.GetBubbleLayerConfigInLock().turn_style.name, "client");
}

}  // namespace
}  // namespace kavrix::test
