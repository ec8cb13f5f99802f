#include "platform/simulated/DeviceJson.h"

#include "base/JsonWriter.h"

#include <cstdint>

namespace vantorel {
namespace {

/// The text of an object whose members `write` writes.
template <typename Write>
std::string objectJson(Write write) {
  std::string text;
  JsonWriter json(text, JsonStyle::compact);
  json.beginObject();
  write(json);
  json.endObject();
  return text;
}

void member(JsonWriter &json, const char *name, bool value) {
  json.key(name);
  json.boolean(value);
}

void member(JsonWriter &json, const char *name, float value) {
  json.key(name);
  json.number(value);
}

void member(JsonWriter &json, const char *name, int value) {
  json.key(name);
  json.number(std::int64_t{value});
}

void frame(JsonWriter &json, const Rect &rect) {
  json.key("frame");
  json.beginArray();
  for (const double side : {rect.x, rect.y, rect.width, rect.height}) json.number(side);
  json.endArray();
}

}  // namespace

std::string jsonOf(bool value) { return value ? "true" : "false"; }

std::string jsonOf(const std::optional<std::string> &text) {
  if (!text) return "null";
  std::string json;
  JsonWriter(json, JsonStyle::compact).string(*text);
  return json;
}

std::string jsonOf(const std::optional<DeviceTraits::Tracking> &tracking) {
  using Tracking = DeviceTraits::Tracking;
  switch (tracking.value_or(Tracking::automatic)) {
    case Tracking::normal:
      return "\"normal\"";
    case Tracking::limited:
      return "\"limited\"";
    case Tracking::unavailable:
      return "\"unavailable\"";
    case Tracking::automatic:
      break;
  }
  return "\"none\"";
}

std::string jsonOf(const std::vector<std::string> &texts) {
  std::string text;
  JsonWriter json(text, JsonStyle::compact);
  json.beginArray();
  for (const auto &element : texts) json.string(element);
  json.endArray();
  return text;
}

std::string jsonOf(const std::optional<RoomCaptureViewSettings> &settings) {
  if (!settings) return "null";
  return objectJson([&](JsonWriter &json) {
    frame(json, settings->frame);
    member(json, "isModelEnabled", settings->isModelEnabled);
    member(json, "hasDelegate", !settings->delegate.expired());
  });
}

std::string jsonOf(const std::optional<ARSCNViewSettings> &settings) {
  if (!settings) return "null";
  return objectJson([&](JsonWriter &json) {
    frame(json, settings->frame);
    member(json, "hasSession", settings->session != nullptr);
    member(json, "hasDelegate", !settings->delegate.expired());
    member(json, "antialiasingMode", settings->antialiasingMode);
    member(json, "automaticallyUpdatesLighting", settings->automaticallyUpdatesLighting);
    member(json, "rendersCameraGrain", settings->rendersCameraGrain);
    member(json, "rendersMotionBlur", settings->rendersMotionBlur);
    member(json, "preferredFramesPerSecond", settings->preferredFramesPerSecond);
  });
}

std::string jsonOf(RunLoopMode mode, const FrameRateRange &range, float rate) {
  return objectJson([&](JsonWriter &json) {
    json.key("mode");
    json.string(mode == RunLoopMode::commonModes ? "common" : "default");
    member(json, "minimum", range.minimum);
    member(json, "maximum", range.maximum);
    member(json, "preferred", range.preferred);
    member(json, "framesPerSecond", rate);
  });
}

}  // namespace vantorel
