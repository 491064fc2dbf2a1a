#ifndef KAVRIX_TESTS_SUPPORT_PRINTED_DOCUMENTS_H_
#define KAVRIX_TESTS_SUPPORT_PRINTED_DOCUMENTS_H_

#include <map>
#include <string>
#include <vector>

namespace kavrix::test {

// What the tool prints for the sample and golden names of every kind, and the configuration files and lines
// of fields that it reads, by the names of their schemas.
std::map<std::string, std::vector<std::string>> PrintedDocuments();

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_PRINTED_DOCUMENTS_H_
