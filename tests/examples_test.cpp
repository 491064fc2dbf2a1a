#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "tests/support/read_file.h"
#include "tests/support/tool.h"

// The README and docs/embedding.md quote the programs of examples/ and their output, indented by four blanks.
namespace kavrix::test {
namespace {

std::string Indented(const std::string& text) {
  std::string indented;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find('\n', begin) + 1;
    const std::string line = text.substr(begin, end - begin);
    indented += (line == "\n" ? "" : "    ") + line;
    begin = end;
  }
  return indented;
}

// Blanks the source line in each log record, because it changes with the source.
std::string WithoutSourceLines(const std::string& text) {
  return std::regex_replace(text, std::regex(R"(\.cpp:[0-9]+)"), ".cpp:N");
}

TEST(ExamplesTest, DocumentsQuoteEachProgramAndWhatItPrints) {
  const std::string quotes = WithoutSourceLines(ReadFile(KAVRIX_SOURCE_DIR "/README.md") +
                                                ReadFile(KAVRIX_SOURCE_DIR "/docs/embedding.md"));
  int programs = 0;
  for (const auto& file : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/examples")) {
    if (file.path().extension() != ".cpp") continue;
    ++programs;
    const std::string program = Indented(ReadFile(file.path()));
    EXPECT_NE(quotes.find(program), std::string::npos) << file.path() << " is not quoted:\n" << program;
    const ToolResult result =
        RunShell(KAVRIX_EMULATOR " '" KAVRIX_EXAMPLES_DIR "/example_" + file.path().stem().string() + "'");
    EXPECT_EQ(result.status, 0) << file.path();
    EXPECT_NE(result.output, "") << file.path();
    EXPECT_NE(quotes.find("\n" + Indented(WithoutSourceLines(result.output))), std::string::npos)
        << file.path() << " prints what no document says:\n"
        << result.output;
  }
  EXPECT_GT(programs, 3);
}

}  // namespace
}  // namespace kavrix::test
