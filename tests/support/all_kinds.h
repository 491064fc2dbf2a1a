#ifndef KAVRIX_TESTS_SUPPORT_ALL_KINDS_H_
#define KAVRIX_TESTS_SUPPORT_ALL_KINDS_H_

#include <string>
#include <vector>

#include "map_resource/bubble_kinds.h"

namespace kavrix::test {

// Every kind, marker names last.
std::vector<const BubbleKindInfo*> AllKinds();

// The names of a kind's golden file.
std::vector<std::string> GoldenNames(BubbleKind kind);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_ALL_KINDS_H_
