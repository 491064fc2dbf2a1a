#include "tests/support/gallery_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace kavrix::test {

using ::testing::HasSubstr;
using ::testing::Not;

std::vector<std::string> Page::Texts(const std::string& element) const {
  std::vector<std::string> texts;
  for (const XmlElement& found : Named(elements_, element)) texts.push_back(found.text);
  return texts;
}

void Page::ExpectHarmless() const {
  EXPECT_EQ(text_.rfind("<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\"", 0), 0U);
  EXPECT_THAT(text_, HasSubstr("<meta charset=\"utf-8\"/>"));
  EXPECT_THAT(text_, HasSubstr("content=\"default-src 'none'; style-src 'unsafe-inline'\""));
  EXPECT_THAT(text_, HasSubstr("prefers-color-scheme: dark"));
  EXPECT_THAT(text_, Not(HasSubstr("url(")));
  EXPECT_THAT(text_, Not(HasSubstr("@import")));
  static const std::set<std::string> kHarmless = {
      "html",   "head",  "meta",  "title",  "style", "body",  "header",  "main",      "nav", "section",
      "h1",     "h2",    "p",     "ul",     "li",    "a",     "span",    "code",      "div", "article",
      "h3",     "table", "tbody", "tr",     "th",    "td",    "strong",  "details",   "svg", "desc",
      "figure", "rect",  "path",  "circle", "text",  "tspan", "summary", "figcaption"};
  std::set<std::string> ids;
  for (const XmlElement& element : elements_) {
    EXPECT_EQ(kHarmless.count(element.name), 1U) << element.name;
    for (const auto& [attribute, value] : element.attributes) {
      EXPECT_NE(attribute.substr(0, 2), "on");
      EXPECT_NE(attribute, "src");
      EXPECT_TRUE(attribute != "href" || value.substr(0, 6) == "#kind-") << value;
      EXPECT_TRUE(attribute != "id" || ids.insert(value).second) << value;
    }
  }
  for (const XmlElement& link : Named(elements_, "a")) {
    EXPECT_EQ(ids.count(link.attributes.at("href").substr(1)), 1U) << link.attributes.at("href");
  }
}

}  // namespace kavrix::test
