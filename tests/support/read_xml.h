#ifndef KAVRIX_TESTS_SUPPORT_READ_XML_H_
#define KAVRIX_TESTS_SUPPORT_READ_XML_H_

#include <map>
#include <string>
#include <vector>

namespace kavrix::test {

// An element as a reader of XML sees it.
struct XmlElement {
  std::string name;
  std::map<std::string, std::string> attributes;  // but xmlns
  std::string text;                               // of the elements inside too

  bool Has(const std::string& attribute) const { return attributes.count(attribute) != 0; }
};

bool operator==(const XmlElement& a, const XmlElement& b);

// Returns the elements of a document in the order of their start tags. Throws std::runtime_error, with the
// place, unless two strict readers that have nothing in common (expat and libxml2) both take the document,
// and see the same in it.
std::vector<XmlElement> ReadXml(const std::string& document);

// Returns the elements with this name.
std::vector<XmlElement> Named(const std::vector<XmlElement>& elements, const std::string& name);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_READ_XML_H_
