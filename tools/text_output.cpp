#include "tools/text_output.h"

#include <fmt/color.h>
#include <fmt/format.h>

#include <algorithm>

#include "inspect/style_origins.h"
#include "util/escape.h"
#include "util/utf8.h"

namespace kavrix::tools {
namespace {

class Page {
 public:
  explicit Page(const TextOptions& options) : options_(options) {}

  void Headline(std::string_view text) { text_ += Styled(fmt::emphasis::bold, Printable(text)) + "\n"; }
  void Line(std::string_view label, std::string_view value) {
    text_ += fmt::format("  {:<10}  {}\n", label, value);
  }
  void Heading(std::string_view label) { text_ += fmt::format("  {}\n", label); }
  void Indented(std::string_view text) { text_ += fmt::format("    {}\n", text); }
  std::string Styled(const fmt::text_style& style, const std::string& text) const {
    return options_.colour ? fmt::format(style, "{}", text) : text;
  }
  std::string Bad(const std::string& text) const { return Styled(fmt::fg(fmt::terminal_color::red), text); }
  std::string Dim(const std::string& text) const { return Styled(fmt::emphasis::faint, text); }
  std::string Take() { return std::move(text_); }

 private:
  const TextOptions& options_;
  std::string text_;
};

// How a value of each type is shown.
struct ValueText {
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(std::uint32_t word) const { return fmt::format("{} ({:#010x})", word, word); }
  std::string operator()(MarkerType type) const { return MarkerTypeName(type); }
  std::string operator()(bool flag) const { return flag ? "true" : "false"; }
  std::string operator()(float real) const { return fmt::format("{}", real); }
  std::string operator()(const std::string& text) const {
    std::string quoted;
    AppendQuoted(quoted, ToValidUtf8(text));
    return quoted;
  }
};

void AddMembers(const BubbleDrawDescriptor& descriptor, const TextOptions& options, Page& page) {
  std::vector<FlatMember> members = FlatMembers(descriptor);
  const auto hidden = [&](const FlatMember& member) {
    const bool in_record = member.path.find("].") != std::string::npos;
    return !options.all_members && !in_record && IsDefault(member);
  };
  members.erase(std::remove_if(members.begin(), members.end(), hidden), members.end());
  std::size_t width = 0;
  for (const FlatMember& member : members) width = std::max(width, member.path.size());
  for (const FlatMember& member : members) {
    page.Indented(fmt::format("{:<{}}  {}", member.path, width, ShownValue(member)));
  }
}

// The configuration record that the style's name came from; empty when there is none.
std::string StyleRecordUsed(const inspect::Decoded& decoded) {
  if (!decoded.kind) return "";
  const inspect::StyleOrigins origins = inspect::FindStyleOrigins(decoded.name, EntryPoint::kBubble);
  const auto found = origins.find("style_name");
  return found == origins.end() ? "" : found->second.record;
}

void AddRecords(const std::vector<inspect::CapturedRecord>& records, Page& page) {
  if (records.empty()) return page.Line("records", page.Dim("none"));
  page.Heading("records");
  std::size_t tag_width = 0;
  std::size_t function_width = 0;
  for (const inspect::CapturedRecord& record : records) {
    tag_width = std::max(tag_width, record.tag.size());
    function_width = std::max(function_width, record.function.size());
  }
  for (const inspect::CapturedRecord& record : records) {
    const std::string level = std::to_string(record.level);
    page.Indented(fmt::format("{}  {:<{}}  {:<{}}  {}", record.level == 0 ? level : page.Bad(level),
                              record.tag, tag_width, record.function, function_width,
                              Printable(record.message)));
  }
}

}  // namespace

std::string ShownValue(const FlatMember& member) { return std::visit(ValueText(), member.value); }

std::string Printable(std::string_view text) {
  std::string printable;
  while (!text.empty()) {
    const Utf8Piece piece = NextUtf8(text);
    if (!piece.is_valid) {
      printable += "\xEF\xBF\xBD";
    } else if (IsControl(piece.code_point)) {
      AppendControl(printable, piece.code_point);
    } else {
      printable += text.substr(0, piece.length);
    }
    text.remove_prefix(piece.length);
  }
  return printable;
}

std::string ToText(const inspect::Decoded& decoded, const TextOptions& options) {
  Page page(options);
  page.Headline(decoded.name);
  page.Line("kind", decoded.kind ? std::string(InfoOf(*decoded.kind).Name()) : page.Dim("none"));
  if (decoded.exception) page.Line("exception", page.Bad(*decoded.exception));
  if (decoded.descriptor == nullptr) {
    page.Line("descriptor", page.Dim("none, out was left untouched"));
  } else {
    page.Line("descriptor", decoded.descriptor->TypeName());
    AddMembers(*decoded.descriptor, options, page);
    const std::string style = StyleRecordUsed(decoded);
    page.Line("style", style.empty() ? page.Dim("none from the configuration") : style);
  }
  AddRecords(decoded.records, page);
  return page.Take();
}

}  // namespace kavrix::tools
