// Decodes payloads nested to the limit and beyond it: the result is the same with every JsonCpp and on a
// small stack, and only brackets that the reader takes for brackets count.

#include <json/reader.h>

#include <algorithm>
#include <iostream>
#include <optional>

#include "descriptors/descriptors.h"
#include "map_resource/bubble_kinds.h"
#include "payload/json_tree.h"
#include "payload/plain_scanner.h"
#include "tests/support/carried_fields.h"
#include "tests/support/decode_test.h"
#include "tests/support/json_tail.h"
#include "tests/support/thread_stack.h"

// Some JsonCpp versions mark the legacy reader deprecated.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::test {
namespace {

constexpr std::size_t kLimit = kDeepestTreeValue;  // of a payload that is not plain
constexpr std::size_t kPlainLimit = kDeepestPlainValue;

std::string Repeated(const std::string& text, std::size_t times) {
  std::string repeated;
  for (std::size_t i = 0; i < times; ++i) repeated += text;
  return repeated;
}

// Makes an object with `innermost` at depth `depth`. Between them come arrays and objects, opened in turn by
// each of `openings`.
std::string Nested(const std::vector<std::string>& openings, const std::string& innermost,
                   std::size_t depth) {
  std::string text = R"({"content":"read","nest":)";
  std::string closings;
  for (std::size_t i = 0; i + 2 < depth; ++i) {
    const std::string& opening = openings[i % openings.size()];
    text += opening;
    closings.insert(0, opening[0] == '{' ? "}" : "]");
  }
  return text + innermost + closings + "}";
}

const std::vector<std::vector<std::string>> kShapes = {
    {"["}, {R"({"k":)"}, {R"({"k":)", "["}, {"[", R"({"k":)"}, {"[0,"}, {R"({"a":0,"k":)"}};

const std::vector<std::string> kInnermost = {"1", "null", R"("t")", "[]", "{}", "{ /* } */ }"};

bool Parses(const std::string& text) {
  Json::Value root;
  return ParseTree(text, root);
}

TEST(NestingTest, ValuesAtTheLimitParseAndOneDeeperDoNot) {
  for (const auto& shape : kShapes) {
    for (const std::string& innermost : kInnermost) {
      EXPECT_TRUE(Parses(Nested(shape, innermost, kLimit - 1))) << shape[0] << innermost;
      EXPECT_TRUE(Parses(Nested(shape, innermost, kLimit))) << shape[0] << innermost;
      EXPECT_FALSE(Parses(Nested(shape, innermost, kLimit + 1))) << shape[0] << innermost;
      EXPECT_FALSE(Parses(Nested(shape, innermost, 4 * kLimit))) << shape[0] << innermost;
    }
  }
}

TEST(NestingTest, AnEmptyArrayIsOneValueAndAScalarInItOneDeeper) {
  EXPECT_TRUE(Parses(R"({"k":)" + Repeated("[", kLimit - 1) + Repeated("]", kLimit - 1) + "}"));
  EXPECT_FALSE(Parses(R"({"k":)" + Repeated("[", kLimit - 1) + "1" + Repeated("]", kLimit - 1) + "}"));
  EXPECT_TRUE(Parses(R"({"k":)" + Repeated("[", kLimit - 2) + "1" + Repeated("]", kLimit - 2) + "}"));
}

TEST(NestingTest, BracketsThatOpenNothingDoNotCount) {
  const std::string brackets = Repeated("[{", 2 * kLimit);
  EXPECT_TRUE(Parses(R"({"k":")" + brackets + R"("})"));
  EXPECT_TRUE(Parses(R"({")" + brackets + R"(":1})"));
  EXPECT_TRUE(Parses(R"({"k":"\")" + brackets + R"(\\"})"));
  EXPECT_TRUE(Parses(R"({"k":/*)" + brackets + R"(*/1})"));
  EXPECT_TRUE(Parses("{\"k\"://" + brackets + "\n1}"));
  EXPECT_TRUE(Parses("{\"k\"://" + brackets + "\r1}"));
  EXPECT_TRUE(Parses("/*/" + brackets + "*/{}"));
  EXPECT_TRUE(Parses("//" + brackets + "\n{}"));
  EXPECT_TRUE(Parses(R"({"k":[)" + Repeated("[],{},", 2 * kLimit) + "0]}"));
}

TEST(NestingTest, WhatComesAfterTheRootDoesNotCount) {
  EXPECT_TRUE(Parses("{}" + Repeated("[{", 2 * kLimit)));
  EXPECT_TRUE(Parses("{} // " + Repeated("[{", 2 * kLimit)));
  EXPECT_TRUE(Parses("{\"k\":[1]} \"" + Repeated("[{", 2 * kLimit)));
}

TEST(NestingTest, TextsThatAreNeverClosedDoNotParse) {
  for (const std::string opening : {"[", "{", R"({"k":)", "[{\"k\":", "/*[", "\"["}) {
    EXPECT_FALSE(Parses(Repeated(opening, 4 * kLimit)));
    EXPECT_FALSE(Parses(R"({"k":)" + Repeated(opening, 4 * kLimit)));
  }
}

// What follows the object in the names of every kind with a JSON payload, with a direction other than 0.
std::vector<std::string> TailsOfJsonKinds() {
  std::vector<std::string> tails;
  for (const BubbleKind kind : kBubbleKinds) {
    std::optional<std::string> tail = TailAfterObject(InfoOf(kind));
    EXPECT_EQ(tail.has_value(), IsJsonKind(InfoOf(kind))) << MarkerOf(kind);
    if (!tail) continue;
    if (tail->front() == '@') tail->replace(0, 2, "@1");
    tails.push_back(*tail);
  }
  return tails;
}

class DeepNameTest : public DecodeTest {
 protected:
  // Returns the records of the last decode, with the payload cut out.
  std::vector<SeenRecord> RecordsWithout(const std::string& payload) const {
    std::vector<SeenRecord> without = records();
    for (SeenRecord& record : without) {
      const std::size_t at = record.message.find(payload);
      if (at != std::string::npos) record.message.erase(at, payload.size());
    }
    return without;
  }
};

// A payload with a value at `depth` that JsonCpp has to read: it holds a comment.
std::string NestedWithComment(const std::vector<std::string>& openings, std::size_t depth) {
  return Nested(openings, "1/**/", depth);
}

TEST_F(DeepNameTest, EveryJsonKindTakesATooDeepPayloadForABrokenOne) {
  const std::string broken = R"({"content":"read",})";
  for (const std::string& tail : TailsOfJsonKinds()) {
    Decode(broken + tail);
    const auto expected = out_;
    const auto expected_records = RecordsWithout(broken);
    for (const std::string& deep :
         {Nested({"["}, "1", kPlainLimit + 1), NestedWithComment({"["}, kLimit + 1)}) {
      Decode(deep + tail);
      EXPECT_EQ(*out_, *expected) << tail;
      EXPECT_EQ(RecordsWithout(deep), expected_records) << tail;
    }
  }
}

TEST_F(DeepNameTest, EveryJsonKindReadsAPayloadAtTheLimit) {
  const std::string flat = R"({"content":"read","nest":0})";
  for (const std::string& tail : TailsOfJsonKinds()) {
    Decode(flat + tail);
    const auto expected = out_;
    for (const auto& shape : kShapes) {
      Decode(Nested(shape, "1", kPlainLimit) + tail);
      EXPECT_EQ(*out_, *expected) << tail << shape[0];
      Decode(NestedWithComment(shape, kLimit) + tail);
      EXPECT_EQ(*out_, *expected) << tail << shape[0];
    }
  }
}

TEST_F(DeepNameTest, PlainPayloadsGoAsDeepAsJsonCppDoes) {
  const auto decodes_all = [this](const std::string& payload) {
    Decode(payload + ".trafficBubble");
    Json::Value root;
    bool parses = false;
    try {
      parses = Json::Reader().parse(payload, root, false);
    } catch (const Json::Exception&) {
      parses = false;
    }
    EXPECT_EQ(Out<TrafficDrawDescriptor>().content == "read", parses);
    return parses;
  };
  for (const auto& shape : kShapes) {
    for (const std::string innermost : {"1", "null", R"("t")", "[]", "{}"}) {
      EXPECT_TRUE(decodes_all(Nested(shape, innermost, kPlainLimit - 1))) << shape[0] << innermost;
      EXPECT_TRUE(decodes_all(Nested(shape, innermost, kPlainLimit))) << shape[0] << innermost;
      EXPECT_FALSE(decodes_all(Nested(shape, innermost, kPlainLimit + 1))) << shape[0] << innermost;
    }
  }
}

TEST_F(DeepNameTest, MarkerNamesHaveTheSameLimits) {
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  const auto decodes = [&](const std::string& payload) {
    out_ = nullptr;
    transform_.GetMarkerDrawDescriptor(prefix + payload + ".marker", out_);
    return out_ != nullptr;
  };
  EXPECT_FALSE(decodes(Nested({"["}, "1", kPlainLimit + 1)));
  EXPECT_TRUE(decodes(Nested({"["}, "1", kPlainLimit)));
  EXPECT_FALSE(decodes(NestedWithComment({"["}, kLimit + 1)));
  EXPECT_TRUE(decodes(NestedWithComment({"["}, kLimit)));
}

// Sanitizers make stack frames larger than a client's.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kStackSize = 2 << 20;
#else
constexpr std::size_t kStackSize = 256 << 10;
#endif

TEST_F(DeepNameTest, TheDeepestNamesDecodeOnAThreadWithASmallStack) {
  const auto stack_used = [this](const std::string& rest) {
    return StackUsedOnThread(kStackSize, [&] { Decode(rest); });
  };
  std::size_t most = 0;
  for (const auto& shape : kShapes) {
    for (const std::string& tail : TailsOfJsonKinds()) {
      Decode(R"({"content":"read","nest":0})" + tail);
      const auto expected = out_;
      most = std::max(most, stack_used(NestedWithComment(shape, kLimit) + tail));
      EXPECT_EQ(*out_, *expected) << tail;
      most = std::max(most, stack_used(Nested(shape, "1", kPlainLimit) + tail));
      EXPECT_EQ(*out_, *expected) << tail;
    }
  }
  std::cout << "the deepest names used " << most << " bytes of stack\n";

  for (const auto& shape : kShapes) {
    for (const std::size_t depth : {kLimit + 1, 2 * kLimit, kPlainLimit + 1, 100 * kLimit}) {
      EXPECT_LE(stack_used(Nested(shape, "1", depth) + ".trafficBubble"), most) << shape[0] << depth;
      EXPECT_LE(stack_used(R"({"k":)" + Repeated(shape[0], depth) + ".trafficBubble"), most)
          << shape[0] << depth;
    }
  }
}

}  // namespace
}  // namespace kavrix::test
