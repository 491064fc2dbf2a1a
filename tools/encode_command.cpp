#include "tools/encode_command.h"

#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>

#include "map_resource/map_resource_manager.h"
#include "tools/kind_names.h"
#include "tools/streams.h"
#include "tools/text_output.h"
#include "util/json_util.h"

namespace kavrix::tools {
namespace {

struct EncodeOptions {
  std::vector<std::string> fields;
  std::optional<std::string> kind;
  std::optional<std::string> prefix;
  bool null_delimited = false;
  bool unbuffered = false;
};

Json::Value ParseJson(const std::string& text) {
  Json::Value value;
  std::string error;
  if (!JsonUtil::ParseStrictly(text, value, error)) throw std::runtime_error("not valid JSON: " + error);
  return value;
}

std::string EncodeKind(const std::string& kind_name, const Json::Value& fields) {
  const BubbleKindInfo* const info = FindKind(kind_name);
  if (info == nullptr) {
    throw std::runtime_error("no kind is called \"" + kind_name + "\"; kavrix-resource kinds lists them");
  }
  return info->codec.encode_fields(fields);
}

// {"kind": "etaBubble", "fields": {...}}
std::string EncodeLine(const std::string& line) {
  const Json::Value bubble = ParseJson(line);
  const Json::Value* const kind = JsonUtil::Find(bubble, "kind");
  const Json::Value* const fields = JsonUtil::Find(bubble, "fields");
  const auto kind_name = kind != nullptr ? JsonUtil::AsText(*kind) : std::nullopt;
  if (!kind_name || fields == nullptr || bubble.size() != 2) {
    throw std::runtime_error("expected {\"kind\": text, \"fields\": object} and nothing else, found " +
                             JsonUtil::ToText(bubble));
  }
  return EncodeKind(std::string(*kind_name), *fields);
}

class Encoder {
 public:
  explicit Encoder(const EncodeOptions& options)
      : output_(options.unbuffered), delimiter_(options.null_delimited ? '\0' : '\n') {}

  // Writes the name that `encode` makes, or says on standard error why there is none.
  template <class Encode>
  void Write(const char* place, Encode encode) {
    ++count_;
    try {
      const std::string name = encode();
      if (name.find(delimiter_) != std::string::npos) {
        throw std::runtime_error(
            "the name holds a newline, which would end it here; --null ends names in NUL");
      }
      output_.Write(name + delimiter_);
    } catch (const StreamError&) {
      throw;
    } catch (const std::exception& error) {
      status_ = 1;
      std::cerr << "kavrix-resource: " << place << ' ' << count_ << ": " << Printable(error.what()) << '\n';
    }
  }

  int Finish() {
    output_.Flush();
    return status_;
  }

 private:
  Output output_;
  char delimiter_;
  int status_ = 0;
  std::size_t count_ = 0;
};

int Run(const EncodeOptions& options) {
  if (options.prefix) MapResourceManager::kavrix_resource_prefix = options.prefix->c_str();
  if (!options.fields.empty() && !options.kind) {
    throw CLI::ValidationError("FIELDS on the command line need --kind");
  }
  Encoder encoder(options);
  for (const std::string& fields : options.fields) {
    encoder.Write("fields", [&] { return EncodeKind(*options.kind, ParseJson(fields)); });
  }
  if (options.fields.empty()) {
    NameInput input('\n');
    for (std::string line; input.Next(line);) {
      encoder.Write("line", [&] {
        return options.kind ? EncodeKind(*options.kind, ParseJson(line)) : EncodeLine(line);
      });
    }
  }
  return encoder.Finish();
}

}  // namespace

void AddEncodeCommand(CLI::App& app, int& status) {
  const auto options = std::make_shared<EncodeOptions>();
  CLI::App* const command = app.add_subcommand("encode", "Build resource names from what they shall carry");
  command->add_option(
      "FIELDS", options->fields,
      "JSON objects of fields, with --kind; without any, one {\"kind\": ..., \"fields\": ...} a line "
      "from standard input");
  command->add_option("--kind", options->kind,
                      "The kind of all bubbles; lines of input are then fields alone");
  command->add_option("--prefix", options->prefix, "Prefix of the names instead of kavrix://resource/");
  command->add_flag("--null", options->null_delimited, "End names in NUL, not newline");
  command->add_flag("--unbuffered", options->unbuffered, "Write each name as soon as it is there");
  command->footer(
      "\"kavrix-resource kinds\" shows the fields of each kind. What a name could not carry unchanged is "
      "refused with\n"
      "the line, the field and the character; the other lines go on.\n"
      "Exit status: 0 every bubble encoded, 1 some could not be, 2 usage or input/output trouble.");
  command->callback([options, &status] { status = Run(*options); });
}

}  // namespace kavrix::tools
