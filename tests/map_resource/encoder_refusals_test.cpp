// Compares which fields the encoder takes with the rules.

#include <gtest/gtest.h>

#include <random>

#include "map_resource/bubble_kinds.h"
#include "map_resource/encode_error.h"
#include "tests/support/carried_fields.h"
#include "tests/support/effort.h"
#include "tests/support/random_fields.h"

namespace kavrix::test {
namespace {

bool IsTaken(const BubbleKindInfo& info, const Json::Value& fields) {
  try {
    info.codec.encode_fields(fields);
    return true;
  } catch (const EncodeError&) {
    return false;
  }
}

// Values at which the rules change.
Json::Value AnyValue(std::mt19937& random) {
  static const std::vector<Json::Value> kValues = {Json::Value(),
                                                   true,
                                                   0,
                                                   1,
                                                   2,
                                                   -1,
                                                   32767,
                                                   32768,
                                                   -32768,
                                                   -32769,
                                                   2147483647,
                                                   -2147483647,
                                                   1.0,
                                                   1e300,
                                                   Json::Value(Json::Int64(2147483648)),
                                                   Json::Value(Json::Int64(-2147483648LL)),
                                                   Json::Value(Json::Int64(-2147483649LL)),
                                                   Json::Value(Json::UInt(1)),
                                                   Json::Value(Json::UInt64(18446744073709551615ULL)),
                                                   "",
                                                   "a",
                                                   "a.b",
                                                   "a_b",
                                                   "a@b",
                                                   "a|b",
                                                   "|",
                                                   "\xFF",
                                                   "\xED\xA0\x80",
                                                   ".trafficBubble",
                                                   ".nameBubble.",
                                                   "x.etaBubble",
                                                   ".inDoorEntriesBubble",
                                                   ".labelBubble",
                                                   ".lightWaitBubble",
                                                   ".hdLongSolidBubble",
                                                   ".LaneChangeBubble",
                                                   ".marker",
                                                   ".TrafficBubble",
                                                   Json::arrayValue,
                                                   Json::objectValue};
  return kValues[random() % kValues.size()];
}

// Replaces one value, in an array's object too, or adds a key that no kind has.
void Change(Json::Value& fields, std::mt19937& random) {
  if (random() % 16 == 0) {
    fields["unknown"] = 1;
    return;
  }
  const std::vector<std::string> keys = fields.getMemberNames();
  if (keys.empty()) return;
  Json::Value& value = fields[keys[random() % keys.size()]];
  if (value.isArray() && !value.empty() && random() % 2 == 0) {
    Json::Value& element = value[static_cast<Json::ArrayIndex>(random() % value.size())];
    if (element.isObject() && random() % 4 != 0) return Change(element, random);
    element = AnyValue(random);
    return;
  }
  if (value.isArray() && random() % 2 == 0) {
    value.append(AnyValue(random));
    return;
  }
  value = AnyValue(random);
}

TEST(EncoderRefusalsTest, NothingIsRefusedButWhatNamesCannotCarry) {
  const unsigned seed = Seed();
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    RandomFields random_fields(seed);
    std::mt19937 random(seed);
    int taken = 0;
    int refused = 0;
    for (int left = IsComplete() ? 50'000 : 500; left > 0; --left) {
      Json::Value fields = random_fields.Make(*info);
      for (auto changes = 1 + random() % 2; changes > 0; --changes) Change(fields, random);
      const bool is_taken = IsTaken(*info, fields);
      ASSERT_EQ(is_taken, CanBeCarried(*info, fields))
          << info->Name() << ' ' << fields.toStyledString() << HowToRepeat(seed);
      ++(is_taken ? taken : refused);
    }
    EXPECT_GT(taken, 20) << info->Name();
    EXPECT_GT(refused, 100) << info->Name();
  }
}

TEST(EncoderRefusalsTest, FieldsThatAreNoObjectAreRefused) {
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    for (const Json::Value& fields :
         {Json::Value(), Json::Value(1), Json::Value("a"), Json::Value(Json::arrayValue)}) {
      EXPECT_FALSE(IsTaken(*info, fields)) << info->Name();
      EXPECT_FALSE(CanBeCarried(*info, fields)) << info->Name();
    }
  }
}

}  // namespace
}  // namespace kavrix::test
