#include "inspect/style_origins.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "inspect/members.h"
#include "map_resource/map_resource_transform.h"
#include "util/muted_logs.h"

namespace kavrix::inspect {
namespace {

// Two configurations, so that a value which a name happens to carry is not taken for one of them. The values
// are ordinary numbers both as words and as floats.
struct Tags {
  std::uint32_t value;
  const char* name;
  std::int16_t context;
};
constexpr Tags kTags[] = {{0x4B000000, "\x01record:", 0x2B01}, {0x4C000000, "\x02record:", 0x2C02}};

template <class Record>
void Tag(Record& record, const char* member, std::uint32_t place, const Tags& tags) {
  record.name = std::string(tags.name) + member;
  for (std::size_t number = 1; number <= record.values.size(); ++number) {
    record.SetWord(number, tags.value | place << 8 | static_cast<std::uint32_t>(number));
  }
}

struct TaggedSetup {
  explicit TaggedSetup(const Tags& given) : tags(given) {
    BubbleLayerConfigContainer config;
    const auto tag = [&](const char* member, auto& record) {
      Tag(record, member, static_cast<std::uint32_t>(records.size()), tags);
      records.emplace_back(member);
    };
    ForEachStyleRecord(config, tag);
    tag("marker_bubble", setup.marker_bubble);
    setup.context = std::make_shared<KavrixContext>("");
    setup.context->SetBubbleLayerConfig(std::move(config));
    setup.context->multi_light_type = tags.context;
  }

  const Tags& tags;
  std::vector<std::string> records;
  TransformSetup setup;
};

// Which value of the configuration a member holds; none when it is not one.
class CellReader {
 public:
  explicit CellReader(const TaggedSetup& tagged) : tagged_(tagged) {}

  std::optional<StyleCell> operator()(std::int64_t number) const {
    if (number != tagged_.tags.context) return std::nullopt;
    return StyleCell{};
  }
  std::optional<StyleCell> operator()(std::uint32_t word) const {
    const std::uint32_t place = (word ^ tagged_.tags.value) >> 8;
    if (place >= tagged_.records.size()) return std::nullopt;
    return StyleCell{tagged_.records[place], word & 0xFF};
  }
  std::optional<StyleCell> operator()(float real) const {
    std::uint32_t word = 0;
    std::memcpy(&word, &real, sizeof word);
    return (*this)(word);
  }
  std::optional<StyleCell> operator()(const std::string& text) const {
    const std::string tag = tagged_.tags.name;
    if (text.compare(0, tag.size(), tag) != 0) return std::nullopt;
    return StyleCell{text.substr(tag.size()), 0};
  }
  std::optional<StyleCell> operator()(MarkerType) const { return std::nullopt; }
  std::optional<StyleCell> operator()(bool) const { return std::nullopt; }

 private:
  const TaggedSetup& tagged_;
};

// Lists, for each member, the place of the style record that gave it; -1 for other members.
class RecordLister : public MemberVisitor {
 public:
  explicit RecordLister(const TaggedSetup& tagged) : tagged_(tagged) {}

  void Word(const char* /*name*/, std::uint32_t value) override {
    const std::uint32_t place = (value ^ tagged_.tags.value) >> 8;
    places.push_back(place < tagged_.records.size() ? static_cast<int>(place) : -1);
  }
  void Real(const char* name, float value) override {
    std::uint32_t word = 0;
    std::memcpy(&word, &value, sizeof word);
    Word(name, word);
  }
  void Text(const char* /*name*/, const std::string& value) override {
    const std::optional<StyleCell> cell = CellReader(tagged_)(value);
    const auto found = cell ? std::find(tagged_.records.begin(), tagged_.records.end(), cell->record)
                            : tagged_.records.end();
    places.push_back(found == tagged_.records.end() ? -1 : static_cast<int>(found - tagged_.records.begin()));
  }
  void Integer(const char* /*name*/, std::int64_t /*value*/) override { places.push_back(-1); }
  void Flag(const char* /*name*/, bool /*value*/) override { places.push_back(-1); }
  void BeginList(const char* /*name*/) override {}
  void EndList() override {}
  void BeginObject() override {}
  void EndObject() override {}

  std::vector<int> places;

 private:
  const TaggedSetup& tagged_;
};

const TaggedSetup& FirstSetup() {
  static const TaggedSetup kSetup(kTags[0]);
  return kSetup;
}
const TaggedSetup& SecondSetup() {
  static const TaggedSetup kSetup(kTags[1]);
  return kSetup;
}

std::vector<int> RecordPlaces(const TaggedSetup& tagged, EntryPoint entry_point, const std::string& name) {
  const auto descriptor = DecodeQuietly(tagged.setup, entry_point, name);
  RecordLister lister(tagged);
  if (descriptor == nullptr) return {};
  descriptor->VisitBaseMembers(lister);
  descriptor->VisitOwnMembers(lister);
  return std::move(lister.places);
}

}  // namespace

std::shared_ptr<BubbleDrawDescriptor> DecodeQuietly(const TransformSetup& setup, EntryPoint entry_point,
                                                    const std::string& name) {
  const logging::MutedLogs muted;
  MapResourceTransform transform(setup.context);
  transform.SetMarkerBubbleConfig(setup.marker_bubble);
  std::shared_ptr<BubbleDrawDescriptor> descriptor;
  try {
    if (entry_point == EntryPoint::kMarker) {
      transform.GetMarkerDrawDescriptor(name, descriptor);
    } else {
      transform.GetBubbleDrawDescriptor(name, descriptor);
    }
  } catch (const std::out_of_range&) {  // NOLINT(bugprone-empty-catch): a name shorter than the prefix
  }
  return descriptor;
}

std::set<std::string> FindStyleRecords(const std::string& name, EntryPoint entry_point) {
  const std::vector<int> first = RecordPlaces(FirstSetup(), entry_point, name);
  const std::vector<int> second = RecordPlaces(SecondSetup(), entry_point, name);
  std::set<std::string> records;
  for (std::size_t i = 0; i < first.size(); ++i) {
    const bool is_styled = first[i] >= 0 && first[i] == second[i];
    if (is_styled) records.insert(FirstSetup().records[static_cast<std::size_t>(first[i])]);
  }
  return records;
}

StyleOrigins FindStyleOrigins(const std::string& name, EntryPoint entry_point) {
  const auto first = DecodeQuietly(FirstSetup().setup, entry_point, name);
  const auto second = DecodeQuietly(SecondSetup().setup, entry_point, name);
  StyleOrigins origins;
  if (first == nullptr || second == nullptr) return origins;
  const std::vector<FlatMember> first_members = Members(*first);
  const std::vector<FlatMember> second_members = Members(*second);
  for (std::size_t i = 0; i < first_members.size(); ++i) {
    const std::optional<StyleCell> cell = std::visit(CellReader(FirstSetup()), first_members[i].value);
    if (cell && std::visit(CellReader(SecondSetup()), second_members[i].value) == cell) {
      origins.emplace(first_members[i].path, *cell);
    }
  }
  return origins;
}

}  // namespace kavrix::inspect
