#ifndef KAVRIX_TESTS_SUPPORT_GLOBAL_LOCALE_H_
#define KAVRIX_TESTS_SUPPORT_GLOBAL_LOCALE_H_

#include <locale>
#include <string>

namespace kavrix::test {

// Makes the global C++ locale write and read 1234.5 as "1.234,5" while it lives. Needs no installed locale.
class GlobalLocale {
 public:
  GlobalLocale() : earlier_(std::locale::global(std::locale(std::locale::classic(), new Punctuation))) {}
  GlobalLocale(const GlobalLocale&) = delete;
  GlobalLocale& operator=(const GlobalLocale&) = delete;
  ~GlobalLocale() { std::locale::global(earlier_); }

 private:
  class Punctuation : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  std::locale earlier_;
};

// Makes the classic locale the global C++ one while it lives, for what is compared with the library: JsonCpp
// reads reals by the global locale.
class ClassicLocale {
 public:
  ClassicLocale() : earlier_(std::locale::global(std::locale::classic())) {}
  ClassicLocale(const ClassicLocale&) = delete;
  ClassicLocale& operator=(const ClassicLocale&) = delete;
  ~ClassicLocale() { std::locale::global(earlier_); }

 private:
  std::locale earlier_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_GLOBAL_LOCALE_H_
