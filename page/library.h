#ifndef KAVRIX_PAGE_LIBRARY_H_
#define KAVRIX_PAGE_LIBRARY_H_

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/decoder.h"
#include "inspect/explanation.h"
#include "inspect/name_extractor.h"
#include "inspect/transform_setup.h"
#include "map_resource/bubble_kinds.h"

namespace kavrix::page {

// The entry point that the page asks for.
enum class ReadAs { kItsMarker, kBubbleName, kMarkerName };

enum class Mode { kOfName, kDay, kNight };

// What the page shows, as JSON or SVG. Keeps one configuration and one list of names between calls.
class Library {
 public:
  // All kinds as a JSON array.
  static std::string Kinds();

  // Replaces the configuration; throws ConfigError, and keeps the old one then. To be called first.
  void SetConfig(const std::string& json_text);

  // As `decode --format json` and `explain --format json` print them.
  std::string Decode(const std::string& name, ReadAs as);
  std::string Explain(const std::string& name, ReadAs as) const;

  // Whether the decode fails, as `survey` and the list count it.
  bool HasFailed(const std::string& name, ReadAs as);

  // The picture, as `draw` prints it.
  std::string Draw(const std::string& name, ReadAs as, Mode mode);

  // The kind as a JSON string: "marker" for a marker name, null where the name has none.
  static std::string Kind(const std::string& name, ReadAs as);

  // The JSON object that Encode builds the name from; null where the payload does not parse. Throws
  // EncodeError.
  static std::string Fields(const std::string& name, ReadAs as);

  // Returns the name. Throws EncodeError, or JsonError where the fields are no JSON.
  static std::string Encode(const std::string& kind, const std::string& fields);

  // Empties the list of names. `are_json`: lines are JSON.
  void BeginList(bool are_json);
  // Adds the names in whole lines of text, and returns how many the list has.
  std::size_t AddToList(std::string_view lines);
  // [{"kind", "failed", "problems": how many, "message": of the worst}] for names of the list, from 0.
  std::string CheckList(std::size_t begin, std::size_t end);
  const std::string& NameInList(std::size_t number) const { return names_.at(number).name; }

 private:
  inspect::Decoder& DecoderOf(EntryPoint entry_point);

  inspect::TransformSetup setup_;
  std::unique_ptr<inspect::Decoder> bubbles_;
  std::unique_ptr<inspect::Decoder> markers_;
  std::unique_ptr<inspect::NameExtractor> extractor_;
  std::vector<inspect::ExtractedName> names_;
};

}  // namespace kavrix::page

#endif  // KAVRIX_PAGE_LIBRARY_H_
