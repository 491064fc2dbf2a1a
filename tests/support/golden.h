#ifndef KAVRIX_TESTS_SUPPORT_GOLDEN_H_
#define KAVRIX_TESTS_SUPPORT_GOLDEN_H_

#include <string>
#include <vector>

#include "map_resource/bubble_kinds.h"

// The golden file of a kind holds what "decode --format json" prints for its names, a line each.
namespace kavrix::test {

// Set by the test runner's --update-goldens.
extern bool update_goldens;

std::string GoldenPath(const BubbleKindInfo& info);

// The names of a kind's golden file.
std::vector<std::string> GoldenNames(const BubbleKindInfo& info);

// The names of all bubble kinds, without marker names.
std::vector<std::string> BubbleGoldenNames();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_GOLDEN_H_
