#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "tests/support/document.h"
#include "tests/support/read_file.h"
#include "tests/support/tool.h"

// The documents say what is true: their commands print what is shown, and their links lead somewhere.
namespace kavrix::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const fs::path kRoot = KAVRIX_SOURCE_DIR;

// A folder for the commands of one document, where samples/ and docs/ are those of the sources and the tool
// is found by its name.
class Workplace {
 public:
  Workplace() {
    fs::create_directory(path_ / "bin");
    fs::create_symlink(KAVRIX_TOOL, path_ / "bin" / "kavrix-resource");
    for (const char* const folder : {"samples", "docs"}) {
      fs::create_directory_symlink(kRoot / folder, path_ / folder);
    }
  }
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;
  ~Workplace() { fs::remove_all(path_); }

  // Returns what a command prints, its errors last.
  std::vector<std::string> Run(const std::string& command) const {
    const std::string script = "cd '" + path_.string() + "'; PATH=$PWD/bin:/usr/bin:/bin\n" + command;
    const ToolResult result = RunProgram({"/bin/bash", "-c", script});
    std::vector<std::string> lines = result.Lines();
    const ToolResult errors = {0, result.errors, ""};
    for (const std::string& line : errors.Lines()) lines.push_back(line);
    return lines;
  }

 private:
  static fs::path MakeFolder() {
    std::string path = fs::temp_directory_path() / "kavrix_documents_XXXXXX";
    if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("cannot make a folder");
    return path;
  }

  const fs::path path_ = MakeFolder();
};

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  return text;
}

TEST(DocumentsTest, CommandsPrintWhatTheDocumentsShow) {
  std::size_t commands = 0;
  for (const std::string& document : Documents()) {
    const Workplace workplace;
    for (const ShownCommand& shown : ShownCommands(ReadFile(kRoot / document))) {
      ++commands;
      const std::vector<std::string> output = workplace.Run(shown.command);
      EXPECT_TRUE(IsAsShown(shown.output, output))
          << document << ':' << shown.line << ": $ " << shown.command << "\nshown:\n"
          << Joined(shown.output) << "printed:\n"
          << Joined(output);
    }
  }
  EXPECT_GT(commands, 20U);
}

TEST(DocumentsTest, LinksLeadToFilesAndHeadingsThatAreThere) {
  std::size_t links = 0;
  for (const std::string& document : Documents()) {
    const fs::path path = kRoot / document;
    for (const std::string& target : LinkTargets(ReadFile(path))) {
      ++links;
      const std::string file = target.substr(0, target.find('#'));
      const fs::path linked = file.empty() ? path : path.parent_path() / file;
      EXPECT_TRUE(fs::exists(linked)) << document << " links to " << target;
      if (file.size() < target.size()) {
        const std::string anchor = target.substr(file.size() + 1);
        EXPECT_EQ(Anchors(ReadFile(linked)).count(anchor), 1U) << document << " links to " << target;
      }
    }
  }
  EXPECT_GT(links, 20U);
}

TEST(DocumentsTest, IndexLinksToEveryDocument) {
  const std::vector<std::string> targets = LinkTargets(ReadFile(kRoot / "docs/README.md"));
  for (const std::string& document : Documents()) {
    const std::string target = fs::path(document).lexically_relative("docs");
    if (target == "README.md") continue;
    EXPECT_NE(std::find(targets.begin(), targets.end(), target), targets.end())
        << "docs/README.md has no link to " << target;
  }
}

TEST(DocumentsTest, ScriptsThatTheDocumentsNameAreThere) {
  static const std::regex name("scripts/([a-z_-]+)");
  std::size_t names = 0;
  for (const std::string& document : Documents()) {
    const std::string text = ReadFile(kRoot / document);
    for (std::sregex_iterator found(text.begin(), text.end(), name), end; found != end; ++found) {
      EXPECT_TRUE(fs::exists(kRoot / (*found)[0].str())) << document << " names " << (*found)[0];
      ++names;
    }
  }
  EXPECT_GT(names, 20U);
}

TEST(DocumentsTest, GuideForContributorsNamesEveryScriptThatTests) {
  const std::string guide = ReadFile(kRoot / "CONTRIBUTING.md");
  std::size_t scripts = 0;
  for (const fs::directory_entry& script : fs::directory_iterator(kRoot / "scripts")) {
    const std::string name = script.path().filename();
    if (name.rfind("test-", 0) != 0) continue;
    EXPECT_NE(guide.find("`scripts/" + name + '`'), std::string::npos) << name;
    ++scripts;
  }
  EXPECT_GT(scripts, 5U);
}

TEST(DocumentsTest, LinesFitAReviewersWindow) {
  constexpr std::size_t kLongest = 200;
  const std::set<std::string> with_all_samples = {"docs/explain.md", "docs/resource-names.md"};
  for (const std::string& document : Documents()) {
    if (with_all_samples.count(document) != 0) continue;
    const std::string text = ReadFile(kRoot / document);
    std::size_t number = 0;
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = std::min(text.find('\n', begin), text.size());
      ++number;
      const bool is_row = text[begin] == '|' && document != "README.md";  // cannot be wrapped
      EXPECT_TRUE(is_row || end - begin <= kLongest) << document << ':' << number;
      begin = end + 1;
    }
  }
}

TEST(DocumentsTest, NoDocumentHoldsAPathOfSomebodysMachine) {
  for (const std::string& document : Documents()) {
    const std::string text = ReadFile(kRoot / document);
    for (const char* const folder : {"/root/", "/home/", "/tmp/"}) {
      EXPECT_EQ(text.find(folder), std::string::npos) << document << " holds " << folder;
    }
  }
}

TEST(DocumentsTest, ChangelogBeginsWithTheVersionThatIsBuilt) {
  const std::string changelog = ReadFile(kRoot / "CHANGELOG.md");
  std::smatch version;
  ASSERT_TRUE(std::regex_search(changelog, version, std::regex("\n## ([0-9.]+)")));
  EXPECT_EQ(version[1], KAVRIX_VERSION);
}

TEST(DocumentsTest, CommandsAreTakenOutOfADocumentWithTheirOutput) {
  const std::vector<ShownCommand> commands =
      ShownCommands("# A\n\n    $ a \\\n        b\n    one\n\n    two\n    $ c\n\ntext\n    not one\n");
  ASSERT_EQ(commands.size(), 2U);
  EXPECT_EQ(commands[0].line, 3U);
  EXPECT_EQ(commands[0].command, "a \\\n    b");
  EXPECT_THAT(commands[0].output, ElementsAre("one", "", "two"));
  EXPECT_EQ(commands[1].command, "c");
  EXPECT_THAT(commands[1].output, IsEmpty());
}

TEST(DocumentsTest, ShownOutputMayLeaveOutLinesAndTheRestOfALine) {
  EXPECT_TRUE(IsAsShown({"a", "b"}, {"a", "b", ""}));
  EXPECT_FALSE(IsAsShown({"a"}, {"a", "b"}));
  EXPECT_FALSE(IsAsShown({"a", "b"}, {"a"}));
  EXPECT_FALSE(IsAsShown({}, {"a"}));
  EXPECT_TRUE(IsAsShown({"a", "...", "d"}, {"a", "b", "c", "d"}));
  EXPECT_TRUE(IsAsShown({"a", "...", "d"}, {"a", "d", "d"}));
  EXPECT_FALSE(IsAsShown({"a", "...", "d"}, {"a", "b", "c"}));
  EXPECT_TRUE(IsAsShown({"..."}, {}));
  EXPECT_TRUE(IsAsShown({"{\"a\"..."}, {"{\"a\":1}"}));
  EXPECT_FALSE(IsAsShown({"{\"a\"..."}, {"{\"b\":1}"}));
}

}  // namespace
}  // namespace kavrix::test
