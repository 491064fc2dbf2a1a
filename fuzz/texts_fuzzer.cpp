// Compares the readers of text fields with simpler code, or checks their results.

#include "fuzz/fuzzing.h"
#include "map_resource/resource_name.h"
#include "util/fields.h"
#include "util/string_util.h"
#include "util/utf8.h"

namespace kavrix::fuzz {
namespace {

void CheckNumbers(std::string_view text) {
  int number = 12345;
  const bool is_number = ReadInt(text, number);
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
  const std::string valid = ToValidUtf8(text);
  Require(ToValidUtf8(valid) == valid, "a text made valid stays as it is");
  const bool is_ascii = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
  if (is_ascii) Require(valid == text, "ASCII stays as it is");
}

void CheckJsonObject(std::string_view text) {
  const std::string_view object = FindJsonObject(text);
  if (object.empty()) return;
  Require(object.front() == '{' && object.back() == '}', "an object is enclosed in braces");
  Require(object.data() >= text.data() && object.data() + object.size() <= text.data() + text.size(),
          "an object is a piece of the name");
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
  BubbleDrawDescriptor descriptor;
  ReadDirectionTail(input.text(), descriptor);
  return 0;
}
