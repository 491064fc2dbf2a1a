#ifndef KAVRIX_BENCH_CASES_H_
#define KAVRIX_BENCH_CASES_H_

#include <functional>
#include <string>
#include <vector>

namespace kavrix::bench {

// One thing to measure. `make` does the preparation, which is not measured, and returns the work that is.
struct Case {
  std::string id;  // "group/what"
  std::function<std::function<void()>()> make;
};

// All cases, in the order of the reports. The group "length" has names of growing length, "linear" names of
// one and of two million bytes.
const std::vector<Case>& Cases();

// Each adds a part of Cases().
void AddDecodeCases(std::vector<Case>& cases);
void AddPeerCases(std::vector<Case>& cases);
void AddStageCases(std::vector<Case>& cases);

// Keeps the compiler from dropping what computes `value`.
template <class Value>
void Use(const Value& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

}  // namespace kavrix::bench

#endif  // KAVRIX_BENCH_CASES_H_
