// What the model says that vantorelDeviceState must give.
#include "base/JsonWriter.h"
#include "support/PlainFloatText.h"
#include "walk/Model.h"

#include <algorithm>

namespace vantorel::walk {
namespace {

constexpr const char *kDisplayLinkSettings =
    R"({"mode":"common","minimum":10,"maximum":59,"preferred":0,"framesPerSecond":59})";

std::string json(bool value) { return value ? "true" : "false"; }
std::string json(const std::string &text) {
  std::string out;
  JsonWriter(out, JsonStyle::compact).string(text);
  return out;
}
std::string json(const char *text) { return json(std::string(text)); }
std::string json(const RoomRef &roomText) { return roomText ? roomText->json : "\"\""; }
std::string nameOrNull(bool isThere, const std::string &name) { return isThere ? json(name) : "null"; }

template <typename List, typename Text>
std::string array(const List &list, Text text) {
  std::string out;
  for (const auto &element : list) out += (out.empty() ? "[" : ",") + text(element);
  return out.empty() ? "[]" : out + "]";
}

std::string json(const Float4x4 &matrix) {
  return array(matrix.elements, [](float number) { return testing::plainFloatJson(number); });
}

}  // namespace

std::string Model::stateJson() const {
  std::string out;
  const auto add = [&out](const char *name, const std::string &value) {
    out.append(out.empty() ? "{\"" : ",\"").append(name).append("\":").append(value);
  };
  add("isScanning", json(isScanning));
  add("isPresent", json(isPresent));
  add("isCoachingEnabled", json(isCoachingEnabled));
  add("isDefaultScanEnabled", json(isDefaultScanEnabled));
  add("isDefaultMiniatureModelEnabled", json(isDefaultMiniatureModelEnabled));
  add("isDefaultScanDataTransferEnabled", json(isDefaultScanDataTransferEnabled));
  add("isInstructionEnabled", json(isInstructionEnabled));
  add("isTorchEnabled", json(isTorchEnabled));
  add("isCustomXREnabled", json(isCustomXREnabled));
  add("isMultiRoomEnabled", json(isMultiRoomEnabled));
  add("capturedRoomsData", array(capturedRoomsData, [](const RoomRef &room) { return json(room); }));
  add("isARWorldMapEnabled", json(isARWorldMapEnabled));
  add("isRoomPlanSessionScanningPaused", json(isRoomPlanSessionScanningPaused));
  add("arCameraMatrix", json(arCameraMatrix));
  add("arCameraProjectionMatrix", json(arCameraProjectionMatrix));
  add("directoryName", json(directoryName));
  add("scanName", json(scanName));
  add("finalResults",
      nameOrNull(finalResults != nullptr, "CapturedRoom " + (finalResults ? finalResults->identifier : "")));
  add("delegate", "null");
  add("captureSession", nameOrNull(captureSession != 0, "RoomCaptureSession"));
  add("roomCaptureView", nameOrNull(roomCaptureView != 0, "RoomCaptureView"));
  add("rootViewController", nameOrNull(hasRootViewController, "UIViewController"));
  add("roomCaptureSessionConfig", json("RoomCaptureSession.Configuration"));
  add("sceneView", nameOrNull(sceneView != 0, "ARSCNView"));
  add("customARSession", nameOrNull(customARSession != 0, "ARSession"));
  add("nativeScreenshot", json(nativeScreenshot));
  add("nativeScreenshotPreview", json(nativeScreenshotPreview));
  add("nativeScreenshotOutputURL", json(nativeScreenshotOutputURL));
  add("nativeScreenshotActivityItems",
      nativeScreenshotOutputURL.empty() ? "[]" : "[" + json(nativeScreenshotOutputURL) + "]");
  add("nativeScreenRecorder", json(nativeScreenRecorder));
  add("nativeScreenRecorderPreview", json(nativeScreenRecorderPreview));
  add("nativeScreenRecorderOutputURL", json(nativeScreenRecorderOutputURL));
  add("roomFinalStringResults", json(roomFinalStringResults));
  add("roomInstructionStringResults", json(roomInstructionStringResults));
  add("displayLink", nameOrNull(displayLink != 0, "CADisplayLink"));
  add("QLModelViewerURL", nameOrNull(!previewedPath.empty(), previewedPath));
  return out + "}";
}

std::vector<std::pair<const char *, std::string>> Model::looks() {
  const auto texts = [](const std::string &text) { return json(text); };
  const Id current = currentSession();
  const auto &session = phone.sessions[current];
  if (phone.window != "none") phone.arrangeWindow();
  std::vector<std::string> parts;
  const Id newest = phone.newestScanView;
  const auto &shown = phone.controllerSubviews;
  const bool isHeld =
      newest == roomCaptureView || std::find(shown.begin(), shown.end(), newest) != shown.end();
  const ModelView &scanView = phone.views[isHeld ? newest : 0];
  for (int i = 0; i < scanView.subviews; ++i)
    parts.push_back("subview " + std::to_string(i) + (i == 1 && scanView.hidesSecond ? " (hidden)" : ""));
  return {
      {"window.subviews", phone.window == "none" ? "[]" : array(phone.windowSubviews, texts)},
      {"view.subviews",
       array(phone.controllerSubviews, [&](Id view) { return json(phone.views[view].name); })},
      {"roomCaptureView.subviews", array(parts, texts)},
      {"captureSession.isRunning", json(session.isRunning)},
      {"captureSession.usesHostARSession", json(session.arSession == kHostARSession)},
      {"arSession.hasDelegate", json(phone.arSessions[session.arSession].hasDelegate)},
      {"arSession.tracking", json(phone.trackingOf(phone.arSessions[session.arSession]))},
      {"roomCaptureSessionConfig.isCoachingEnabled", json(configIsCoachingEnabled)},
      {"renderThreads", std::to_string(std::count(displayLinkRuns.begin(), displayLinkRuns.end(), true))},
      {"device.torch", phone.isLit ? "\"on\"" : "\"off\""},
      {"screenRecorder.isRecording", json(phone.isRecording)},
      {"window.isClear", json(isWindowClear_)},
      {"rootView.isTransparent", json(isRootViewTransparent_)},
      {"view.ignoresTouches", json(ignoresTouches_)},
      {"navigationController.dismissals", std::to_string(dismissals_)},
      {"roomCaptureView.settings", scanViewSettings_},
      {"sceneView.settings", sceneViewSettings_},
      {"displayLink.settings", displayLink == 0 ? "null" : kDisplayLinkSettings},
  };
}

}  // namespace vantorel::walk
