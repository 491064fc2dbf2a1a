// What library.js calls. Names and texts come as pointer and length, because they may hold any bytes. A
// function returns false when it failed; page_result is then a JSON object {"message": ..., "field": ...},
// where the field is the one that the encoder refused, or empty.
#include <emscripten.h>

#include <exception>
#include <string>

#include "inspect/json_writer.h"
#include "map_resource/encode_error.h"
#include "page/library.h"

namespace {

using kavrix::page::Library;
using kavrix::page::Mode;
using kavrix::page::ReadAs;

std::string& Result() {
  static std::string result;
  return result;
}

Library& TheLibrary() {
  static Library library;
  return library;
}

void Fail(const char* message, const std::string& field) {
  kavrix::inspect::JsonWriter json;
  json.BeginObject();
  json.Text("message", message);
  json.Text("field", field);
  json.EndObject();
  Result() = json.Take();
}

template <class Work>
bool ResultOf(Work work) {
  try {
    Result() = work(TheLibrary());
    return true;
  } catch (const kavrix::EncodeError& error) {
    Fail(error.what(), error.field());
  } catch (const std::exception& error) {
    Fail(error.what(), "");
  }
  return false;
}

}  // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE const char* page_result() { return Result().data(); }
EMSCRIPTEN_KEEPALIVE std::size_t page_result_size() { return Result().size(); }

EMSCRIPTEN_KEEPALIVE bool page_kinds() {
  return ResultOf([](Library&) { return Library::Kinds(); });
}

EMSCRIPTEN_KEEPALIVE bool page_set_config(const char* text, std::size_t size) {
  return ResultOf([&](Library& library) {
    library.SetConfig({text, size});
    return "";
  });
}

EMSCRIPTEN_KEEPALIVE bool page_decode(const char* name, std::size_t size, ReadAs as) {
  return ResultOf([&](Library& library) { return library.Decode({name, size}, as); });
}

EMSCRIPTEN_KEEPALIVE bool page_has_failed(const char* name, std::size_t size, ReadAs as) {
  return ResultOf([&](Library& library) { return library.HasFailed({name, size}, as) ? "true" : "false"; });
}

EMSCRIPTEN_KEEPALIVE bool page_explain(const char* name, std::size_t size, ReadAs as) {
  return ResultOf([&](Library& library) { return library.Explain({name, size}, as); });
}

EMSCRIPTEN_KEEPALIVE bool page_draw(const char* name, std::size_t size, ReadAs as, Mode mode) {
  return ResultOf([&](Library& library) { return library.Draw({name, size}, as, mode); });
}

EMSCRIPTEN_KEEPALIVE bool page_kind(const char* name, std::size_t size, ReadAs as) {
  return ResultOf([&](Library&) { return Library::Kind({name, size}, as); });
}

EMSCRIPTEN_KEEPALIVE bool page_fields(const char* name, std::size_t size, ReadAs as) {
  return ResultOf([&](Library&) { return Library::Fields({name, size}, as); });
}

EMSCRIPTEN_KEEPALIVE bool page_encode(const char* kind, std::size_t kind_size, const char* fields,
                                      std::size_t size) {
  return ResultOf([&](Library&) { return Library::Encode({kind, kind_size}, {fields, size}); });
}

EMSCRIPTEN_KEEPALIVE bool page_begin_list(bool are_json) {
  return ResultOf([&](Library& library) {
    library.BeginList(are_json);
    return "";
  });
}

EMSCRIPTEN_KEEPALIVE bool page_add_to_list(const char* lines, std::size_t size) {
  return ResultOf([&](Library& library) { return std::to_string(library.AddToList({lines, size})); });
}

EMSCRIPTEN_KEEPALIVE bool page_check_list(std::size_t begin, std::size_t end) {
  return ResultOf([&](Library& library) { return library.CheckList(begin, end); });
}

EMSCRIPTEN_KEEPALIVE bool page_name_in_list(std::size_t number) {
  return ResultOf([&](Library& library) { return library.NameInList(number); });
}

}  // extern "C"
