#ifndef KAVRIX_INSPECT_NAME_READING_H_
#define KAVRIX_INSPECT_NAME_READING_H_

#include <json/value.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/explanation.h"
#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// How the kind's parser goes through a name, and where in the name each piece stands.
//
// A payload that is not plain JSON is replaced by the plain JSON of the same values, and the name that this
// makes is traced. Of the values, JsonCpp knows where they stand in the payload; of keys it does not.
class NameReading {
 public:
  NameReading(const std::string& name, EntryPoint entry_point);
  NameReading(const NameReading&) = delete;
  NameReading& operator=(const NameReading&) = delete;

  const std::string& name() const { return name_; }
  EntryPoint entry_point() const { return entry_point_; }
  const BubbleKindInfo* info() const { return info_; }  // null: the name has no marker
  const NameTrace& trace() const { return trace_; }
  bool IsPlain() const { return traced_name_ == nullptr; }
  bool IsTooShort() const { return is_too_short_; }  // for the prefix, where the kind drops it by its length
  bool HasFailed() const { return has_failed_; }     // the decode fails

  // The place of a piece of the trace; none when it is not known.
  std::optional<ByteRange> RangeOf(std::string_view piece) const;
  // The name's own bytes there.
  std::string_view SourceOf(const ByteRange& range) const {
    return std::string_view(name_).substr(range.begin, range.end - range.begin);
  }

  // The text of a key of the trace, as the payload has it.
  std::string KeyText(std::string_view key_bytes) const;

  // The payload's object; none when there is none.
  std::optional<ByteRange> Object() const { return object_; }

  // The last marker that is not inside the object; the last of all when there is none outside.
  std::optional<ByteRange> Marker() const { return marker_; }

 private:
  struct Moved {
    ByteRange from;  // in the name that is traced
    ByteRange to;    // in the name itself
  };

  bool Trace(const std::string& name);
  void MakePlain();
  void WritePlain(const Json::Value& value, std::size_t payload_begin, std::string& text);
  void WriteKey(std::string_view key, std::string& text);
  void FindMarker();

  const std::string& name_;
  const EntryPoint entry_point_;
  const BubbleKindInfo* info_ = nullptr;
  NameTrace trace_;
  bool is_too_short_ = false;
  bool has_failed_ = false;
  std::unique_ptr<std::string> traced_name_;  // null: the name itself
  std::vector<Moved> moved_;                  // the values of a payload that was replaced, in order
  ByteRange replaced_;                        // in the name that is traced
  std::map<std::size_t, std::string> keys_;   // those that were replaced too, by their places there
  std::optional<ByteRange> object_;
  std::optional<ByteRange> marker_;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_NAME_READING_H_
