#include "page/library.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "config/bubble_layer_config_file.h"
#include "inspect/config_setup.h"
#include "inspect/decoded_json.h"
#include "inspect/drawn_name.h"
#include "inspect/explain_name.h"
#include "inspect/explained_json.h"
#include "inspect/json_writer.h"
#include "inspect/kind_json.h"
#include "inspect/problems.h"
#include "inspect/text_search.h"
#include "util/strict_json.h"

namespace kavrix::page {
namespace {

using inspect::Decoded;
using inspect::JsonWriter;
using inspect::Problem;
using inspect::Severity;

EntryPoint EntryOf(const std::string& name, ReadAs as) {
  if (as != ReadAs::kItsMarker) return as == ReadAs::kMarkerName ? EntryPoint::kMarker : EntryPoint::kBubble;
  const bool is_marker_name = !FindBubbleKind(name) && inspect::EndsWith(name, kMarkerNameTail);
  return is_marker_name ? EntryPoint::kMarker : EntryPoint::kBubble;
}

const BubbleKindInfo* InfoOfName(const std::string& name, ReadAs as) {
  if (EntryOf(name, as) == EntryPoint::kMarker) return &kMarkerNameInfo;
  const std::optional<BubbleKind> kind = FindBubbleKind(name);
  return kind ? &InfoOf(*kind) : nullptr;
}

// The first error or, without one, the first warning.
std::string WorstMessage(const std::vector<Problem>& problems) {
  const auto is_error = [](const Problem& problem) { return problem.severity == Severity::kError; };
  const auto error = std::find_if(problems.begin(), problems.end(), is_error);
  if (error != problems.end()) return error->message;
  return problems.empty() ? "" : problems.front().message;
}

}  // namespace

std::string Library::Kinds() {
  JsonWriter json;
  json.BeginArray();
  for (const BubbleKindInfo* const info : AllKindInfos()) json.Json(inspect::ToJsonLine(*info, ""));
  json.EndArray();
  return json.Take();
}

void Library::SetConfig(const std::string& json_text) {
  setup_ = inspect::SetupFrom(ParseBubbleLayerConfig(json_text));
  bubbles_ = std::make_unique<inspect::Decoder>(setup_, EntryPoint::kBubble);
  markers_ = std::make_unique<inspect::Decoder>(setup_, EntryPoint::kMarker);
}

inspect::Decoder& Library::DecoderOf(EntryPoint entry_point) {
  return entry_point == EntryPoint::kMarker ? *markers_ : *bubbles_;
}

std::string Library::Decode(const std::string& name, ReadAs as) {
  return inspect::ToJsonLine(DecoderOf(EntryOf(name, as)).Decode(name));
}

bool Library::HasFailed(const std::string& name, ReadAs as) {
  return DecoderOf(EntryOf(name, as)).Decode(name).failed;
}

std::string Library::Explain(const std::string& name, ReadAs as) const {
  return inspect::ToJsonLine(inspect::ExplainName(name, EntryOf(name, as), setup_));
}

std::string Library::Draw(const std::string& name, ReadAs as, Mode mode) {
  const EntryPoint entry_point = EntryOf(name, as);
  inspect::Decoder& decoder = DecoderOf(entry_point);
  const Decoded decoded = decoder.Decode(name);
  const std::string problem = inspect::WhyFailed(decoded, inspect::ProblemsOf(name, entry_point));
  const bool is_day = mode == Mode::kDay;
  if (mode == Mode::kOfName || decoded.descriptor == nullptr || decoded.descriptor->mode_flag == is_day) {
    return inspect::PictureOf(decoded, entry_point, problem);
  }
  if (const auto other = inspect::InMode(inspect::ExplainName(name, entry_point, setup_), is_day)) {
    return inspect::PictureOf(decoder.Decode(*other), entry_point, problem);
  }
  return inspect::PictureOf(decoded, entry_point, problem, is_day);
}

std::string Library::Kind(const std::string& name, ReadAs as) {
  const BubbleKindInfo* const info = InfoOfName(name, as);
  JsonWriter json;
  info == nullptr ? json.Null() : json.Text(info->Name());
  return json.Take();
}

std::string Library::Fields(const std::string& name, ReadAs as) {
  const BubbleKindInfo* const info = InfoOfName(name, as);
  return info == nullptr ? "null" : info->codec.read_fields(name).value_or("null");
}

std::string Library::Encode(const std::string& kind, const std::string& fields) {
  const BubbleKindInfo* const info = FindKindInfo(kind);
  if (info == nullptr) throw std::invalid_argument("no kind is called " + kind);
  return info->codec.encode_fields(JsonUtil::ReadStrictly(fields));
}

void Library::BeginList(bool are_json) {
  names_.clear();
  const auto lines = are_json ? inspect::LogLines::kJson : inspect::LogLines::kText;
  extractor_ = std::make_unique<inspect::NameExtractor>(lines);
}

std::size_t Library::AddToList(std::string_view lines) {
  std::vector<inspect::LineError> errors;  // a line that is no JSON may hold names all the same
  extractor_->Extract(lines, names_, errors);
  return names_.size();
}

std::string Library::CheckList(std::size_t begin, std::size_t end) {
  JsonWriter json;
  json.BeginArray();
  for (std::size_t i = begin; i < std::min(end, names_.size()); ++i) {
    const std::string& name = names_[i].name;
    const EntryPoint entry_point = EntryOf(name, ReadAs::kItsMarker);
    const Decoded decoded = DecoderOf(entry_point).Decode(name);
    const std::vector<Problem> problems = inspect::ProblemsOf(name, entry_point);
    json.BeginObject();
    json.Text("kind", inspect::KindNameOf(decoded, entry_point));
    json.Key("failed");
    json.Flag(decoded.failed);
    json.Key("problems");
    json.Integer(static_cast<std::int64_t>(problems.size()));
    json.Text("message", WorstMessage(problems));
    json.EndObject();
  }
  json.EndArray();
  return json.Take();
}

}  // namespace kavrix::page
