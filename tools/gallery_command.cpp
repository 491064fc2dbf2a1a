#include "tools/gallery_command.h"

#include <unistd.h>

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <sstream>
#include <utility>
#include <vector>

#include "inspect/decoder.h"
#include "inspect/drawn_name.h"
#include "inspect/explain_name.h"
#include "inspect/problems.h"
#include "map_resource/encode_error.h"
#include "tools/error_line.h"
#include "tools/gallery_page.h"
#include "tools/hints.h"
#include "tools/name_options.h"
#include "tools/samples.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

// To find the mode in a longer name takes too long.
constexpr std::size_t kLongestExplained = 16384;

bool HasStyle(const BubbleDrawDescriptor& descriptor) {
  const auto is_style_value = [](const FlatMember& member) {
    return member.path == "style_name" || std::holds_alternative<std::uint32_t>(member.value) ||
           std::holds_alternative<float>(member.value);
  };
  const std::vector<FlatMember> members = FlatMembers(descriptor);
  return std::any_of(members.begin(), members.end(),
                     [&](const FlatMember& member) { return is_style_value(member) && !IsDefault(member); });
}

// More make a page that browsers are slow with, and would have to be held in memory.
constexpr std::size_t kMostNames = 1000;

// Draws names of one entry point, on any number of threads.
class Painter {
 public:
  Painter(const inspect::TransformSetup& setup, EntryPoint entry_point)
      : setup_(setup), entry_point_(entry_point), decoder_(setup, entry_point) {}

  GalleryName Paint(const std::string& name) {
    GalleryName painted;
    painted.decoded = decoder_.Decode(name);
    painted.kind = inspect::KindNameOf(painted.decoded, entry_point_);
    painted.problems = inspect::ProblemsOf(name, entry_point_);
    const std::string problem = inspect::WhyFailed(painted.decoded, painted.problems);
    if (painted.decoded.descriptor == nullptr) {
      painted.pictures.push_back(
          {inspect::PictureOf(painted.decoded, entry_point_, problem), "nothing is drawn"});
      return painted;
    }
    for (const bool is_day : {true, false})
      painted.pictures.push_back(InMode(painted.decoded, problem, is_day));
    return painted;
  }

 private:
  GalleryPicture InMode(const inspect::Decoded& decoded, const std::string& problem, bool is_day) {
    const std::string mode = is_day ? "day" : "night";
    if (decoded.failed) {
      return {inspect::PictureOf(decoded, entry_point_, problem, is_day),
              mode + "; the mode of the name is not known"};
    }
    if (decoded.descriptor->mode_flag == is_day) {
      return {inspect::PictureOf(decoded, entry_point_, problem), mode + ", as the name decodes"};
    }
    if (const std::optional<std::string> name = OtherName(decoded.name, is_day)) {
      const inspect::Decoded other = decoder_.Decode(*name);
      return {inspect::PictureOf(other, entry_point_, problem), mode};
    }
    const std::string note = HasStyle(*decoded.descriptor) ? ", with the style values of the other mode" : "";
    return {inspect::PictureOf(decoded, entry_point_, problem, is_day), mode + note};
  }

  std::optional<std::string> OtherName(const std::string& name, bool is_day) const {
    if (name.size() > kLongestExplained) return std::nullopt;
    try {
      return inspect::InMode(inspect::ExplainName(name, entry_point_, setup_), is_day);
    } catch (const EncodeError&) {  // the prefix holds a marker, and nothing can be explained
      return std::nullopt;
    }
  }

  const inspect::TransformSetup& setup_;
  const EntryPoint entry_point_;
  inspect::Decoder decoder_;
};

// The names of a page, by their kinds. Several threads may add to it.
class Gallery {
 public:
  void Add(std::size_t number, const GalleryName& name) {
    Entry entry = {name.kind, ToHtml(name), name.decoded.failed};
    const std::lock_guard<std::mutex> lock(mutex_);
    entries_.emplace(number, std::move(entry));
  }
  void LeaveOut() {
    const std::lock_guard<std::mutex> lock(mutex_);
    ++left_out_;
  }

  std::size_t left_out() const { return left_out_; }
  bool IsEmpty() const { return entries_.empty(); }

  // The page; the gallery is then empty.
  std::string Page(const std::string& title) {
    std::vector<GalleryGroup> groups;
    for (const BubbleKindInfo* const info : AllKindInfos())
      groups.push_back({std::string(info->Name()), {}, 0});
    groups.push_back({"", {}, 0});
    for (auto& numbered : entries_) {
      Entry& entry = numbered.second;
      const auto is_it = [&](const GalleryGroup& group) { return group.kind == entry.kind; };
      const auto group = std::find_if(groups.begin(), groups.end(), is_it);
      group->names.push_back(std::move(entry.html));
      group->failed += entry.failed ? 1 : 0;
    }
    entries_.clear();
    return ToPage(title, groups, left_out_);
  }

 private:
  struct Entry {
    std::string kind;
    std::string html;
    bool failed;
  };

  std::mutex mutex_;
  std::map<std::size_t, Entry> entries_;  // by the names' numbers
  std::size_t left_out_ = 0;
};

void AddLines(const char* names, Painter painter, std::size_t& number, Gallery& gallery) {
  std::istringstream lines(names);
  for (std::string name; std::getline(lines, name);) gallery.Add(++number, painter.Paint(name));
}

void AddSamples(const inspect::TransformSetup& setup, Gallery& gallery) {
  std::size_t number = 0;
  AddLines(kSampleNames, Painter(setup, EntryPoint::kBubble), number, gallery);
  AddLines(kSampleMarkerNames, Painter(setup, EntryPoint::kMarker), number, gallery);
}

// Returns how many names failed.
std::size_t AddNames(const NameOptions& options, const inspect::TransformSetup& setup, Gallery& gallery) {
  Painter painter(setup, options.Entry());
  Hints hints(options);
  const auto add = [&](const InputName& given) -> NameResult {
    if (given.number > kMostNames) {
      gallery.LeaveOut();
      return {};
    }
    const GalleryName painted = painter.Paint(given.name);
    gallery.Add(given.number, painted);
    return {"", painted.decoded.failed, painted.decoded.failed ? hints.For(given.name) : ""};
  };
  return WorkInBulk(options.bulk, add);
}

int Run(const NameOptions& options) {
  const inspect::TransformSetup setup = options.Apply();
  Gallery gallery;
  std::size_t failed = 0;
  const bool is_any_given = !options.bulk.names.empty() || options.bulk.input || isatty(STDIN_FILENO) == 0;
  if (is_any_given) failed = AddNames(options, setup, gallery);
  const bool has_samples = gallery.IsEmpty() && !options.bulk.input;
  if (has_samples) AddSamples(setup, gallery);
  Output output(false);
  output.Write(gallery.Page(has_samples ? "Samples" : "Bubbles"));
  output.Flush();
  if (gallery.left_out() != 0) {
    WriteErrorLine("the page has the first " + std::to_string(kMostNames) + " names; " +
                   std::to_string(gallery.left_out()) + " are left out");
  }
  return failed == 0 && gallery.left_out() == 0 ? 0 : 1;
}

}  // namespace

CommandDescription GalleryCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<NameOptions>();
    AddDrawnNameOptions(command, *options, "[NAME]...",
                        "Resource names; without any, read one a line from standard input");
    AddJobs(command, options->bulk);
    options->bulk.prints_results = false;
    command.Details(
        "Prints one HTML page that needs nothing else: no script, nothing fetched. Each name is drawn by day "
        "and\n"
        "by night, with its problems and its members. The pictures are schematic.\n"
        "Without names (no arguments, no --input, and standard input empty or a terminal), the page has\n"
        "samples of all kinds and of marker names. A page has at most 1000 names; it is held in memory "
        "until\n"
        "the last is read.");
    command.ExitStatus(
        "0 every name decodes; 1 a name fails or is left out; 2 usage, input or output error.");
    command.Example("kavrix-resource extract --unique client.log | kavrix-resource gallery > gallery.html");
    return [options] { return Run(*options); };
  };
  return {"gallery", "Draw many resource names, as one HTML page", list_options};
}

}  // namespace kavrix::tools
