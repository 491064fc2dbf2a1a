#ifndef KAVRIX_TOOLS_TEXT_NAMES_H_
#define KAVRIX_TOOLS_TEXT_NAMES_H_

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "inspect/name_extractor.h"
#include "tools/name_source.h"

namespace kavrix::tools {

// Names out of files, one after the other. A file that cannot be read is told of, and the others go on.
class TextNames : public NameSource {
 public:
  struct Options {
    bool null_delimited = false;  // names end in NUL, not newline
    bool are_logs = false;        // names stand somewhere in the text; else they are one a line
    inspect::LogLines log_lines = inspect::LogLines::kText;
    bool tells_of_hidden_names = false;  // of files that are no text, such as compressed ones
    bool unique = false;                 // each name once, which keeps all of them in memory
  };

  // `paths` must not be empty.
  TextNames(std::vector<std::string> paths, const Options& options);
  ~TextNames() override;

  bool Take(std::size_t most, std::vector<InputName>& names) override;
  void SetOnPause(std::function<void()> on_pause) override { on_pause_ = std::move(on_pause); }
  void Interrupt() override { interrupted_ = true; }
  bool IsTyped() const override;
  std::optional<std::uint64_t> Bytes() const override { return bytes_; }
  std::uint64_t BytesTaken() const override { return bytes_taken_; }

  // Whether the user was told of trouble with a file.
  bool HadTrouble() const { return had_trouble_; }

 private:
  struct File;

  bool Fill();
  bool OpenNext();
  void ReadLines(std::string_view lines);
  void ReadLog(std::string_view lines);
  void RequireText(std::string_view first) const;
  void Add(std::string name, std::size_t line, std::size_t byte);
  void Tell(const std::string& message);

  const std::vector<std::string> paths_;
  const Options options_;
  std::optional<std::uint64_t> bytes_;
  std::function<void()> on_pause_;
  std::atomic<bool> interrupted_{false};

  std::size_t next_path_ = 0;
  std::unique_ptr<File> file_;  // null between files
  std::vector<InputName> waiting_;
  std::size_t next_waiting_ = 0;
  std::size_t added_ = 0;
  std::uint64_t bytes_taken_ = 0;
  std::unordered_set<std::string> seen_;
  bool had_trouble_ = false;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_TEXT_NAMES_H_
