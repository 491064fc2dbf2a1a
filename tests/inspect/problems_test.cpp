#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inspect/explain.h"
#include "tests/support/global_locale.h"

namespace kavrix::test {
namespace {

using inspect::ByteRange;
using inspect::Problem;
using inspect::Severity;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kPrefix = "kavrix://resource/";  // 18 bytes

std::vector<Problem> Check(const std::string& after_prefix) {
  return inspect::CheckBubbleName(kPrefix + after_prefix);
}

// "code severity begin-end", one for each problem.
std::vector<std::string> Texts(const std::vector<Problem>& problems) {
  std::vector<std::string> texts;
  for (const Problem& problem : problems) {
    const std::string place =
        problem.bytes ? std::to_string(problem.bytes->begin) + "-" + std::to_string(problem.bytes->end) : "?";
    texts.push_back(problem.code + " " + inspect::SeverityName(problem.severity) + " " + place);
  }
  return texts;
}

std::vector<std::string> CheckedTexts(const std::string& after_prefix) { return Texts(Check(after_prefix)); }

TEST(ProblemsTest, NameWithoutAMarkerIsAnErrorOfTheWholeName) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1}"), ElementsAre("no-marker error 0-28"));
  EXPECT_THAT(Texts(inspect::CheckBubbleName("")), ElementsAre("no-marker error 0-0"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1}.trafficBubble"), IsEmpty());
}

TEST(ProblemsTest, MarkerNameWithoutItsEntryPointGetsTheOptionAsASuggestion) {
  const std::vector<Problem> problems = Check("{\"mode\":1}.marker");
  ASSERT_THAT(Texts(problems), ElementsAre("no-marker error 0-35"));
  EXPECT_EQ(problems[0].suggestion, "--marker");
  EXPECT_EQ(Check("{\"mode\":1}.mark")[0].suggestion, std::nullopt);
}

TEST(ProblemsTest, NearMarkerIsAtMostTwoChangesAwayOrDiffersInCase) {
  for (const std::string marker : {".TrafficBubble", ".trafficbubble", ".TRAFFICBUBBLE", ".traficBubble",
                                   ".trafficBuble", ".trafficBubbl", "trafficBubble", ".traffcBublle"}) {
    const std::vector<Problem> problems = Check("{\"mode\":1}" + marker);
    ASSERT_EQ(problems.size(), 1U) << marker;
    EXPECT_EQ(problems[0].code, "near-marker") << marker;
    EXPECT_EQ(problems[0].severity, Severity::kError);
    EXPECT_EQ(problems[0].suggestion, ".trafficBubble") << marker;
    EXPECT_EQ(problems[0].bytes->end, 28 + marker.size()) << marker;
  }
  EXPECT_THAT(CheckedTexts("{\"mode\":1}.trafBubble"), ElementsAre("no-marker error 0-39"));
}

TEST(ProblemsTest, EachOtherPlaceOfAMarkerIsAProblem) {
  EXPECT_THAT(CheckedTexts("a.etaBubble_0_1@2.nameBubble"), ElementsAre("two-markers warning 19-29"));
  EXPECT_THAT(CheckedTexts("a.nameBubble_0_1@2.nameBubble"), ElementsAre("two-markers warning 19-30"));
  EXPECT_THAT(CheckedTexts("a.nameBubbl_0_1@2.nameBubble"), IsEmpty());
}

TEST(ProblemsTest, OtherBytesThanThePrefixAreAWarning) {
  EXPECT_THAT(Texts(inspect::CheckBubbleName("kavrix://Resource/{\"mode\":1}.trafficBubble")),
              ElementsAre("prefix warning 0-18"));
  EXPECT_THAT(Texts(inspect::CheckBubbleName("{\"mode\":1}.YawNoticeBubble")),
              ElementsAre("prefix warning 0-18"));
}

TEST(ProblemsTest, NameShorterThanThePrefixIsAnErrorOnlyWhereThePrefixIsDroppedByItsLength) {
  EXPECT_THAT(Texts(inspect::CheckBubbleName("x.turnBubble")), ElementsAre("too-short error 0-12"));
  EXPECT_THAT(Texts(inspect::CheckBubbleName(".YawNoticeBubble")),
              ElementsAre("not-json warning 0-0", "prefix warning 0-16"));
}

TEST(ProblemsTest, BrokenPayloadHasOneProblemAtTheByteThatNoJsonCanGoOnWith) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"{\"mode\":1 \"scene\":2}", "28-29"},
      {"{\"mode\":1,}", "28-29"},
      {"{mode:1}", "19-20"},
      {"{\"mode\" 1}", "26-27"},
      {"{\"mode\":}", "26-27"},
      {"{\"mode\":tru}", "29-30"},
      {"{\"mode\":[1,2}", "30-31"},
      {"{\"mode\":1", "27-27"},
      {"{\"content\":\"a", "31-31"},
      {"{\"content\":\"\\x\"}", "31-32"},
      {"{\"content\":\"\\u00g0\"}", "34-35"},
      {"", "18-18"},
      {"  ", "20-20"},
      {"[1]", "18-19"},
      {"\"text\"", "18-19"},
      {" 1", "19-20"},
      {"{\"mode\":1e400}", "26-27"},
  };
  for (const auto& [payload, place] : cases) {
    EXPECT_THAT(CheckedTexts(payload + ".trafficBubble"), ElementsAre("not-json error " + place)) << payload;
  }
}

TEST(ProblemsTest, BrokenPayloadIsAWarningWhereTheDecodeDoesNotFail) {
  EXPECT_THAT(CheckedTexts("{.turnBubble"), ElementsAre("not-json warning 19-19"));
  EXPECT_THAT(CheckedTexts("{}}.YawNoticeBubble"),
              ElementsAre("absent-mode warning 18-20", "trailing-text warning 20-21"));
  EXPECT_THAT(CheckedTexts("{\xFF"
                           "a\":1,1}@5.SafeWarningBubble"),
              ElementsAre("not-json warning 19-20"));
}

TEST(ProblemsTest, UnknownKeyGetsTheNearestKey) {
  const std::vector<Problem> problems =
      Check("{\"mode\":1,\"contnt\":\"a\",\"Direction\":1,\"zzz\":{\"mode\":1}}.trafficBubble");
  ASSERT_THAT(Texts(problems), ElementsAre("unknown-key warning 29-35", "unknown-key warning 42-51",
                                           "unknown-key warning 56-59"));
  EXPECT_EQ(problems[0].message, "\"contnt\" is not a key of trafficBubble");
  EXPECT_EQ(problems[0].suggestion, "content");
  EXPECT_EQ(problems[1].suggestion, "direction");
  EXPECT_EQ(problems[2].suggestion, std::nullopt);
}

TEST(ProblemsTest, UnknownKeyOfAListsObjectGetsTheNearestKeyThere) {
  const std::vector<Problem> problems =
      Check("{\"mode\":1,\"cameras\":[{\"typ\":1,\"speed\":2}]}.cameraBubble");
  ASSERT_THAT(Texts(problems), ElementsAre("unknown-key warning 41-44"));
  EXPECT_EQ(problems[0].suggestion, "type");
}

TEST(ProblemsTest, EarlierOfTwoMembersWithOneKeyIsAProblem) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"mode\":0}.trafficBubble"),
              ElementsAre("duplicate-key warning 20-24"));
}

TEST(ProblemsTest, SameKeyInTwoObjectsIsNoProblem) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"cameras\":[{\"type\":1},{\"type\":2}]}.cameraBubble"), IsEmpty());
}

TEST(ProblemsTest, KeyWithAnEscapeIsShownAsItReads) {
  EXPECT_EQ(Check("{\"mode\":1,\"a\\\"b\":1}.trafficBubble")[0].message,
            "\"a\"b\" is not a key of trafficBubble");
}

TEST(ProblemsTest, ValueOfAnotherTypeIsAProblem) {
  for (const std::string value : {"null", "true", "1.0", "\"1\"", "[]", "{}", "1e2"}) {
    EXPECT_THAT(CheckedTexts("{\"mode\":1,\"scene\":" + value + "}.trafficBubble").size(), 1U) << value;
    EXPECT_EQ(Check("{\"mode\":1,\"scene\":" + value + "}.trafficBubble")[0].code, "wrong-type") << value;
  }
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"scene\":-0}.trafficBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"content\":1}.trafficBubble"),
              ElementsAre("wrong-type warning 38-39"));
  EXPECT_THAT(CheckedTexts("{\"mode\":\"0\"}.trafficBubble"), ElementsAre("wrong-type warning 27-28"));
}

TEST(ProblemsTest, ElementOfAnotherTypeIsAProblem) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"cameras\":[{},5]}.cameraBubble"),
              ElementsAre("wrong-type warning 42-43"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"second_content\":[\"a\",5]}.routeExplainBubble"),
              ElementsAre("wrong-type warning 50-51"));
}

TEST(ProblemsTest, IntegerThatLosesBitsOrDoesNotFitIsOutOfRange) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"direction\":32768}.trafficBubble"),
              ElementsAre("out-of-range warning 40-45"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"direction\":32767}.trafficBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"scene\":2147483648}.trafficBubble"),
              ElementsAre("out-of-range warning 36-46"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1,\"scene\":-2147483648}.trafficBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("A_0_1@65536.nameBubble"), ElementsAre("out-of-range warning 24-29"));
  EXPECT_THAT(CheckedTexts("A_0_99999999999@1.nameBubble"), ElementsAre("out-of-range warning 22-33"));
  EXPECT_THAT(CheckedTexts("A_0_zh_70000_t@1.inDoorEntriesBubble"),
              ElementsAre("out-of-range warning 25-30"));
}

TEST(ProblemsTest, FlagThatIsNeitherZeroNorOneIsAProblem) {
  EXPECT_THAT(CheckedTexts("{\"mode\":2}.trafficBubble"), ElementsAre("flag-value warning 26-27"));
  EXPECT_THAT(CheckedTexts("A_2_1@1.nameBubble"), ElementsAre("flag-value warning 20-21"));
  EXPECT_THAT(CheckedTexts("A_0_1_x@1.lightWaitBubble"), ElementsAre("flag-value warning 24-25"));
  EXPECT_THAT(CheckedTexts("A_0_1_true@1.lightWaitBubble"), ElementsAre("flag-value warning 24-28"));
  EXPECT_THAT(CheckedTexts("A_0_1_0@1.lightWaitBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("A_0_x@1.hdLongSolidBubble"), IsEmpty());  // any third field sets the flag
}

TEST(ProblemsTest, AbsentModeIsAProblemOfTheObjectInJsonKindsOnly) {
  EXPECT_THAT(CheckedTexts(" {\"scene\":1}.trafficBubble"), ElementsAre("absent-mode warning 19-30"));
  EXPECT_THAT(CheckedTexts("A@1.nameBubble"), ElementsAre("field-count warning 18-19"));
}

TEST(ProblemsTest, OtherCountOfPartsIsAProblem) {
  EXPECT_THAT(CheckedTexts("A_B_0_0@1.nameBubble"), ElementsAre("field-count warning 18-25"));
  EXPECT_THAT(CheckedTexts("A_0@1@2.labelBubble"), ElementsAre("field-count warning 18-37"));
  EXPECT_THAT(CheckedTexts("A_0@1.2.labelBubble"), ElementsAre("field-count warning 22-37"));
  EXPECT_THAT(CheckedTexts("A@1.hdLongSolidBubble"), ElementsAre("field-count warning 18-19"));
  EXPECT_THAT(CheckedTexts("A_0_1_2_3@1.hdLongSolidBubble"), IsEmpty());
}

TEST(ProblemsTest, OtherCountOfPartsIsAnErrorOnlyWhereTheDecodeFails) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1}.SafeWarningBubble"), ElementsAre("field-count error 18-28"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1}@1@2.SafeWarningBubble"), ElementsAre("field-count error 18-32"));
}

TEST(ProblemsTest, FieldThatIsNoNumberIsAProblem) {
  EXPECT_THAT(CheckedTexts("A_x_1@1.nameBubble"), ElementsAre("not-a-number warning 20-21"));
  EXPECT_THAT(CheckedTexts("A_0_1@ 1.nameBubble"), ElementsAre("not-a-number warning 24-26"));
  EXPECT_THAT(CheckedTexts("A_0_1@.nameBubble"), ElementsAre("not-a-number warning 24-24"));
  EXPECT_THAT(CheckedTexts("A_+0_-1@+1.nameBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("A_0_zh_abc_t@1.inDoorEntriesBubble"), ElementsAre("not-a-number warning 25-28"));
  EXPECT_THAT(CheckedTexts("A_0_zh_ 12abc_t@1.inDoorEntriesBubble"), IsEmpty());
}

TEST(ProblemsTest, TextAfterTheRootOrTheMarkerIsAProblem) {
  EXPECT_THAT(CheckedTexts("{\"mode\":1} x.trafficBubble"), ElementsAre("trailing-text warning 29-30"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1} \t.trafficBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("{\"mode\":1}.trafficBubble?v=2"), ElementsAre("trailing-text warning 42-46"));
  EXPECT_THAT(CheckedTexts("A_0_1@1.nameBubble tail"), ElementsAre("trailing-text warning 37-41"));
  EXPECT_THAT(CheckedTexts("{\"mode\":1}y@1.companionBubble"), ElementsAre("trailing-text warning 28-29"));
}

TEST(ProblemsTest, BytesThatAreNotUtf8AreAProblem) {
  EXPECT_THAT(CheckedTexts("A\xFF_0_1@1.nameBubble"), ElementsAre("not-utf8 warning 19-20"));
  EXPECT_THAT(CheckedTexts("A\xC3\xA9_0_1@1.nameBubble"), IsEmpty());
}

TEST(ProblemsTest, ProblemsAreOrderedByFirstByteThenCode) {
  EXPECT_THAT(CheckedTexts("{\"scene\":null,\"x\":1}@x.companionBubble"),
              ElementsAre("absent-mode warning 18-38", "wrong-type warning 27-31",
                          "unknown-key warning 33-34", "not-a-number warning 39-40"));
}

TEST(ProblemsTest, PlacesOfKeysAreNotKnownWhereThePayloadIsNotPlain) {
  EXPECT_THAT(CheckedTexts("{/**/\"mode\":2,\"x\":1}.trafficBubble"),
              ElementsAre("flag-value warning 30-31", "unknown-key warning ?"));
}

TEST(ProblemsTest, ValuesThatAreNotPlainAreQuotedAsTheyStand) {
  const ClassicLocale classic;  // JsonCpp reads 2.75
  const std::vector<Problem> problems =
      Check("/**/{\"mode\":1,\"scene\":99999999999999999999,\"direction\":2.75}.trafficBubble");
  ASSERT_THAT(Texts(problems), ElementsAre("out-of-range warning 40-60", "wrong-type warning 73-77"));
  EXPECT_EQ(problems[0].message, "99999999999999999999 does not fit 32 bits: it is not read");
  EXPECT_EQ(problems[1].message, "2.75 is of another type than \"direction\": it is not read");
}

TEST(ProblemsTest, PayloadThatIsNotPlainKeepsItsPartsWhateverItsTextsHold) {
  EXPECT_THAT(CheckedTexts("{\"id\":\"a\\u0040b\",/*c*/\"mode\":0}@1.lightCountdownBubble"), IsEmpty());
  EXPECT_THAT(CheckedTexts("{\"mode\":0/**/}xyz.trafficBubble"), ElementsAre("trailing-text warning 32-35"));
  EXPECT_THAT(CheckedTexts("// c\n{\"mode\":0,\"zzzz\":1}@1.companionBubble"),
              ElementsAre("unknown-key warning ?"));
}

TEST(ProblemsTest, MarkerInABrokenPayloadIsAPartOfIt) {
  EXPECT_THAT(CheckedTexts("{\"content\":\"x.trafficBubble\",\"mode\":0}.turnBubble"),
              ElementsAre("not-json error 53-53", "two-markers warning 56-67"));
}

TEST(ProblemsTest, DirectionInTheObjectOfAKindThatHasItAfterTheAtSign) {
  const std::vector<Problem> problems = Check("{\"direction\":1,\"mode\":0}@1.lightCountdownBubble");
  ASSERT_THAT(Texts(problems), ElementsAre("unknown-key warning 20-29"));
  EXPECT_EQ(problems[0].message, "\"direction\" is read after \"@\", not from the object");
  EXPECT_EQ(problems[0].suggestion, std::nullopt);
}

TEST(ProblemsTest, OtherBlanksThanJsonsAreText) {
  EXPECT_THAT(CheckedTexts("{\"mode\":0}\v.trafficBubble"), ElementsAre("trailing-text warning 28-29"));
}

TEST(ProblemsTest, NestingOverTheLimitIsAtTheValueThatIsTooDeep) {
  const auto nested = [](std::size_t depth, const std::string& inside) {
    return "{\"mode\":1,\"a\":" + std::string(depth, '[') + inside + std::string(depth, ']') +
           "}.trafficBubble";
  };
  EXPECT_THAT(CheckedTexts(nested(998, "1")), ElementsAre("unknown-key warning 29-30"));
  EXPECT_THAT(CheckedTexts(nested(999, "1")), ElementsAre("not-json error 1031-1032"));
  EXPECT_THAT(CheckedTexts(nested(300, "/**/1")), ElementsAre("not-json error 287-288"));
}

TEST(ProblemsTest, MarkerNameIsCheckedAgainstItsOwnKeysAndTail) {
  const auto check = [](const std::string& after_prefix) {
    return Texts(inspect::CheckMarkerName(kPrefix + after_prefix));
  };
  EXPECT_THAT(check("{\"mode\":1,\"is_main_map\":1}.marker"), IsEmpty());
  EXPECT_THAT(check("{\"mode\":1,\"is_main_map\":5}.marker"), ElementsAre("flag-value warning 42-43"));
  EXPECT_THAT(check("{\"mode\":1}.Marker"), ElementsAre("near-marker warning 28-35"));
  EXPECT_THAT(check("{\"mode\":1}abcdefg"), ElementsAre("no-marker warning 0-35"));
  EXPECT_THAT(check("{\"mode\":1.marker"), ElementsAre("not-json error 27-27"));
}

}  // namespace
}  // namespace kavrix::test
