#ifndef KAVRIX_TESTS_SUPPORT_GALLERY_PAGE_H_
#define KAVRIX_TESTS_SUPPORT_GALLERY_PAGE_H_

#include <string>
#include <vector>

#include "tests/support/read_xml.h"

namespace kavrix::test {

// A page as both readers of XML see it.
class Page {
 public:
  explicit Page(const std::string& text) : text_(text), elements_(ReadXml(text)) {}

  const std::string& text() const { return text_; }
  const std::vector<XmlElement>& elements() const { return elements_; }
  std::vector<std::string> Texts(const std::string& element) const;

  // Nothing runs, nothing is fetched, and nothing clashes.
  void ExpectHarmless() const;

 private:
  std::string text_;
  std::vector<XmlElement> elements_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_GALLERY_PAGE_H_
