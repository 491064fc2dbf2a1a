#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/read_file.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

// The comment or, in Python, the string after a script's first line.
std::string HeadComment(const std::string& text) {
  const std::string quotes = "\"\"\"";
  const std::size_t begin = text.find('\n') + 1;
  if (text.compare(begin, quotes.size(), quotes) == 0) {
    const std::size_t first = begin + quotes.size();
    std::string comment = text.substr(first, text.find(quotes, first) - first);
    comment.erase(comment.find_last_not_of('\n') + 1);
    return comment;
  }
  std::string comment;
  std::istringstream lines(text.substr(begin));
  for (std::string line; std::getline(lines, line) && line.rfind('#', 0) == 0;) {
    comment += line.substr(line.size() > 1 ? 2 : 1) + '\n';
  }
  return comment;
}

std::vector<std::string> Scripts() {
  std::vector<std::string> paths = {KAVRIX_SOURCE_DIR "/.ci/run",
                                    KAVRIX_SOURCE_DIR "/examples/cluster/mapper",
                                    KAVRIX_SOURCE_DIR "/examples/cluster/reducer"};
  for (const auto& entry : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/scripts")) {
    const std::string path = entry.path();
    if (access(path.c_str(), X_OK) == 0) paths.push_back(path);  // others are modules
  }
  return paths;
}

TEST(ScriptsTest, EveryScriptAnswersHelpWithItsHeadComment) {
  std::size_t scripts = 0;
  for (const std::string& path : Scripts()) {
    const std::string text = ReadFile(path);
    const bool knows_help =
        text.find("--help") != std::string::npos || text.find("argparse") != std::string::npos;
    if (!knows_help) {
      ADD_FAILURE() << path << " does not know --help";  // and is not run: it would do its work
      continue;
    }
    ++scripts;
    const std::string comment = HeadComment(text);
    EXPECT_NE(comment, "") << path;
    const ToolResult result = RunProgram({path, "--help"});
    EXPECT_EQ(result.status, 0) << path;
    EXPECT_EQ(result.errors, "") << path;
    EXPECT_THAT(result.output, HasSubstr(comment)) << path;
  }
  EXPECT_GT(scripts, 12U);
}

}  // namespace
}  // namespace kavrix::test
