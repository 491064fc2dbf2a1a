#ifndef KAVRIX_TESTS_SUPPORT_GOLDEN_H_
#define KAVRIX_TESTS_SUPPORT_GOLDEN_H_

#include <string>
#include <vector>

#include "map_resource/bubble_kinds.h"

// A kind's golden file holds the output of "decode --format json" for its names, one line each, and the codes
// of the problems that "check" finds in them.
namespace kavrix::test {

// The test runner's --update-goldens sets it.
extern bool update_goldens;

// What to do about a recorded text that is no longer what the tool prints.
inline constexpr char kHowToUpdate[] =
    "run build/dev/unit_tests --update-goldens, which rewrites goldens and documents, and read what it "
    "changed";

// The first line in which two texts differ, by its number and what it is in each; empty when they are equal.
std::string FirstDifference(const std::string& recorded, const std::string& printed);

std::string GoldenPath(const BubbleKindInfo& info);

// Returns the names in a kind's golden file.
std::vector<std::string> GoldenNames(const BubbleKindInfo& info);

// Returns the golden names of all bubble kinds, without marker names.
std::vector<std::string> BubbleGoldenNames();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_GOLDEN_H_
