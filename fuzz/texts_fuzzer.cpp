// Compares the readers of texts with plain code: integers, fields, directions, objects, UTF-8.

#include "fuzz/fuzzing.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/resource_name.h"
#include "tests/reference/fields.h"
#include "tests/reference/self_initialised.h"
#include "tests/support/utf8_agreement.h"
#include "util/fields.h"
#include "util/string_util.h"

namespace kavrix::fuzz {
namespace {

void CheckNumbers(std::string_view text) {
  int number = 12345;
  const bool is_number = ReadInt(text, number);
  int by_reference = 12345;
  Require(reference::ToInt(std::string(text), by_reference) == is_number && by_reference == number,
          "the reference reads the same integer");
  if (is_number) {
    Require(LeadingInt(text) == number, "both readers of integers agree on what both accept");
    Require(std::strtol(std::string(text).c_str(), nullptr, 10) == number, "an integer is what strtol reads");
  } else {
    Require(number == 12345, "a text that is no integer leaves the value alone");
  }
  const long expected =
      std::strtol(std::string(text).c_str(), nullptr, 10);  // stops at a NUL, as LeadingInt does
  Require(LeadingInt(text) == static_cast<int>(expected), "leading digits are what strtol reads");
}

void CheckFields(std::string_view text, char separator) {
  const std::vector<std::string> all =
      SplitString(std::string(text), std::string(1, separator), WhitespaceHandling::kKeep, SplitResult::kAll);
  const auto fields = SplitFields<3>(text, separator);
  Require(fields.count == std::min<std::size_t>(all.size(), 4), "both splitters count the same fields");
  for (std::size_t i = 0; i < std::min<std::size_t>(fields.count, 3); ++i) {
    Require(fields.at[i] == all[i], "both splitters cut the same fields");
  }
  std::string joined;
  for (std::size_t i = 0; i < all.size(); ++i) joined += (i == 0 ? "" : std::string(1, separator)) + all[i];
  Require(joined == text, "fields joined again give the text");
}

void CheckTrimmedFields(std::string_view text) {
  for (const std::string& field :
       SplitString(std::string(text), "@_.", WhitespaceHandling::kTrim, SplitResult::kNonEmpty)) {
    Require(!field.empty() && field.find_first_of("@_.") == std::string::npos, "no field is empty");
    Require(field.front() != ' ' && field.back() != ' ', "no field keeps its blanks");
  }
}

void CheckUtf8(std::string_view text) {
  const std::string difference = test::DisagreementOnUtf8(text);
  Require(difference.empty(), difference.c_str());
}

void CheckJsonObject(std::string_view text) {
  Require(FindJsonObject(text) == reference::BetweenBraces(std::string(text)),
          "an object goes from the first brace after the prefix to the last");
}

void CheckDirection(std::string_view tail) {
  constexpr std::int16_t kBefore = 12345;
  BubbleDrawDescriptor actual;
  actual.direction = kBefore;
  BubbleDrawDescriptor expected = actual;
  ReadDirectionTail(tail, actual);
  reference::ReadDirection(std::string(tail), expected);
  Require(actual == expected, "a direction is the number before the only dot, or stays");
}

}  // namespace
}  // namespace kavrix::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kavrix;
  const fuzz::ExactCopy input(fuzz::AsText(data, size));
  fuzz::CheckNumbers(input.text());
  for (const char separator : {'@', '_', '.'}) fuzz::CheckFields(input.text(), separator);
  fuzz::CheckTrimmedFields(input.text());
  fuzz::CheckUtf8(input.text());
  fuzz::CheckJsonObject(input.text());
  const std::string name = MapResourceManager::kavrix_resource_prefix + std::string(input.text());
  fuzz::CheckJsonObject(fuzz::ExactCopy(name).text());
  fuzz::CheckDirection(input.text());
  return 0;
}
