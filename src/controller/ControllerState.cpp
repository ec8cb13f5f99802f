#include "controller/ControllerState.h"

#include "base/JsonWriter.h"

namespace vantorel {
namespace {

void write(JsonWriter &json, bool value) { json.boolean(value); }

void write(JsonWriter &json, const std::string &text) { json.string(text); }

void write(JsonWriter &json, const std::vector<std::string> &texts) {
  json.beginArray();
  for (const auto &text : texts) json.string(text);
  json.endArray();
}

void write(JsonWriter &json, const Float4x4 &matrix) {
  json.beginArray();
  for (float element : matrix.elements) json.number(element);
  json.endArray();
}

/// An object of the platform's: its kind, or null.
template <typename Pointer>
void write(JsonWriter &json, const Pointer &object, std::string_view kind) {
  if (object) {
    json.string(kind);
  } else {
    json.null();
  }
}

std::string shortText(const std::shared_ptr<CapturedRoom> &room) {
  return room ? "CapturedRoom " + room->identifier().text() : "";
}

/// Calls visit(name, writeValue) for each property in order.
template <typename Visit>
void visitProperties(const ControllerState &s, Visit visit) {
  const auto plain = [&](std::string_view name, const auto &value) {
    visit(name, [&value](JsonWriter &json) { write(json, value); });
  };
  const auto flag = [&](std::string_view name, const std::atomic<bool> &value) { plain(name, value.load()); };
  const auto object = [&](std::string_view name, const auto &value, std::string_view kind) {
    visit(name, [&](JsonWriter &json) { write(json, value, kind); });
  };

  flag("isScanning", s.isScanning);
  plain("isPresent", s.isPresent);
  plain("isCoachingEnabled", s.isCoachingEnabled);
  flag("isDefaultScanEnabled", s.isDefaultScanEnabled);
  plain("isDefaultMiniatureModelEnabled", s.isDefaultMiniatureModelEnabled);
  plain("isDefaultScanDataTransferEnabled", s.isDefaultScanDataTransferEnabled);
  flag("isInstructionEnabled", s.isInstructionEnabled);
  plain("isTorchEnabled", s.isTorchEnabled);
  flag("isCustomXREnabled", s.isCustomXREnabled);
  plain("isMultiRoomEnabled", s.isMultiRoomEnabled);
  plain("capturedRoomsData", s.capturedRoomsData);
  plain("isARWorldMapEnabled", s.isARWorldMapEnabled);
  flag("isRoomPlanSessionScanningPaused", s.isRoomPlanSessionScanningPaused);
  plain("arCameraMatrix", s.arCameraMatrix);
  plain("arCameraProjectionMatrix", s.arCameraProjectionMatrix);
  plain("directoryName", s.directoryName);
  plain("scanName", s.scanName);
  object("finalResults", s.finalResults, shortText(s.finalResults));
  object("delegate", s.delegate.lock(), "RoomCaptureViewDelegate");
  object("captureSession", s.captureSession.load(), "RoomCaptureSession");
  object("roomCaptureView", s.roomCaptureView.load(), "RoomCaptureView");
  object("rootViewController", s.rootViewController, "UIViewController");
  visit("roomCaptureSessionConfig",
        [](JsonWriter &json) { json.string("RoomCaptureSession.Configuration"); });
  object("sceneView", s.sceneView.load(), "ARSCNView");
  object("customARSession", s.customARSession, "ARSession");
  plain("nativeScreenshot", s.nativeScreenshot);
  plain("nativeScreenshotPreview", s.nativeScreenshotPreview);
  plain("nativeScreenshotOutputURL", s.nativeScreenshotOutputURL);
  plain("nativeScreenshotActivityItems", s.nativeScreenshotActivityItems);
  plain("nativeScreenRecorder", s.nativeScreenRecorder);
  plain("nativeScreenRecorderPreview", s.nativeScreenRecorderPreview);
  plain("nativeScreenRecorderOutputURL", s.nativeScreenRecorderOutputURL);
  plain("roomFinalStringResults", s.roomFinalStringResults);
  plain("roomInstructionStringResults", s.roomInstructionStringResults.load());
  object("displayLink", s.displayLink, "CADisplayLink");
  object("QLModelViewerURL", s.QLModelViewerURL, s.QLModelViewerURL.value_or(""));
}

std::string allProperties(const ControllerState &state) {
  std::string text;
  JsonWriter json(text, JsonStyle::compact);
  json.beginObject();
  visitProperties(state, [&](std::string_view name, const auto &writeValue) {
    json.key(name);
    writeValue(json);
  });
  json.endObject();
  return text;
}

}  // namespace

std::optional<std::string> stateJson(const ControllerState &state, std::string_view name) {
  if (name.empty()) return allProperties(state);
  if (name == "roomCaptureSessionConfig.isCoachingEnabled")
    return state.roomCaptureSessionConfig.load().isCoachingEnabled ? "true" : "false";
  std::optional<std::string> found;
  visitProperties(state, [&](std::string_view property, const auto &writeValue) {
    if (property != name) return;
    JsonWriter json(found.emplace(), JsonStyle::compact);
    writeValue(json);
  });
  return found;
}

}  // namespace vantorel
