#include "StateEvents.h"

#include "vantorel/simulated_device.h"

#include "DeviceText.h"
#include "Listening.h"
#include "ScriptParser.h"

namespace vantorel {
namespace {

/// The index after the string that begins at `at`.
std::size_t endOfString(std::string_view json, std::size_t at) {
  for (++at; json[at] != '"'; ++at)
    if (json[at] == '\\') ++at;
  return at + 1;
}

/// The index of the comma or bracket after the value that begins at `at`.
std::size_t endOfValue(std::string_view json, std::size_t at) {
  for (int depth = 0;;) {
    const char c = json[at];
    if (depth == 0 && (c == ',' || c == '}')) return at;
    if (c == '[' || c == '{') ++depth;
    if (c == ']' || c == '}') --depth;
    at = c == '"' ? endOfString(json, at) : at + 1;
  }
}

void hearValue(std::string_view name, std::string_view json) {
  Listening::hear("state", name, EventValue::json(json));
}

}  // namespace

void hearProperty(const std::string &name) {
  const DeviceText json(vantorelDeviceState(name.c_str()));
  if (!json) throw ScriptError("unknown property " + quotedWord(name));
  hearValue(name, json.get());
}

void hearProperties() {
  const DeviceText text(vantorelDeviceState(nullptr));
  const std::string_view object = text.get();  // compact: the library wrote it, so it is well-formed
  for (std::size_t at = 1; at < object.size();) {
    const std::size_t colon = endOfString(object, at);
    const std::size_t end = endOfValue(object, colon + 1);
    hearValue(object.substr(at + 1, colon - at - 2), object.substr(colon + 1, end - colon - 1));
    at = end + 1;
  }
}

}  // namespace vantorel
