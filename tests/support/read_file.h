#ifndef KAVRIX_TESTS_SUPPORT_READ_FILE_H_
#define KAVRIX_TESTS_SUPPORT_READ_FILE_H_

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kavrix::test {

// Returns the bytes of a file; nothing when there is none.
inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_READ_FILE_H_
