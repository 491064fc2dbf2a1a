#ifndef KAVRIX_TOOLS_NAME_SOURCE_H_
#define KAVRIX_TOOLS_NAME_SOURCE_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kavrix::tools {

// A name, and where it comes from.
struct InputName {
  std::string name;
  std::size_t number = 0;  // among all names, from 1
  std::string file;        // "-" for standard input, "argument" for one of the command line
  std::size_t line = 0;    // in a file, from 1; 0 where lines are not counted
  std::size_t byte = 0;    // in the line, from 0
};

// Where the names come from that a command works on. One thread at a time takes from it.
class NameSource {
 public:
  NameSource() = default;
  NameSource(const NameSource&) = delete;
  NameSource& operator=(const NameSource&) = delete;
  virtual ~NameSource() = default;

  // Appends up to `most` names; waits only for the first. False at the end. Throws StreamError.
  virtual bool Take(std::size_t most, std::vector<InputName>& names) = 0;

  // Sets what is called before input is waited for.
  virtual void SetOnPause(std::function<void()> on_pause) = 0;

  // From another thread: makes a Take that waits for input return soon, as at the end.
  virtual void Interrupt() = 0;

  // Whether somebody types the names on a terminal.
  virtual bool IsTyped() const = 0;

  // The size of the whole input; none when it is unknown.
  virtual std::optional<std::uint64_t> Bytes() const = 0;

  // How much of it was read for the names that were taken.
  virtual std::uint64_t BytesTaken() const = 0;
};

// The names of the command line.
class GivenNames : public NameSource {
 public:
  explicit GivenNames(const std::vector<std::string>& names) : names_(names) {}

  bool Take(std::size_t most, std::vector<InputName>& names) override;
  void SetOnPause(std::function<void()>) override {}
  void Interrupt() override {}
  bool IsTyped() const override { return false; }
  std::optional<std::uint64_t> Bytes() const override;
  std::uint64_t BytesTaken() const override { return bytes_taken_; }

 private:
  const std::vector<std::string>& names_;
  std::size_t taken_ = 0;
  std::uint64_t bytes_taken_ = 0;
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_NAME_SOURCE_H_
