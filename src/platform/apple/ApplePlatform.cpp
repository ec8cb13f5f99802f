#include "platform/apple/ApplePlatform.h"

#include "platform/apple/AppleARSession.h"
#include "platform/apple/AppleCaptureDevice.h"
#include "platform/apple/AppleCapturedRoom.h"
#include "platform/apple/AppleCapturedStructure.h"
#include "platform/apple/AppleRoomCaptureSession.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

// ---- The small ports ----

void AppleConsole::print(std::string_view line) { vantorel_swift_console_print(std::string(line).c_str()); }

bool AppleDevice::isSystemAtLeast(int majorVersion) {
  return majorVersion <= 16 || vantorel_swift_is_ios17();
}
bool AppleDevice::supportsSceneReconstruction() { return vantorel_swift_supports_scene_reconstruction(); }

void AppleMainQueue::async(std::function<void()> work) { vantorel_swift_main_async(asWork(std::move(work))); }
void AppleMainQueue::after(std::chrono::nanoseconds delay, std::function<void()> work) {
  vantorel_swift_main_after(delay.count(), asWork(std::move(work)));
}

// ---- What the platform makes ----

std::shared_ptr<CaptureDevice> ApplePlatform::defaultCamera() {
  Handle camera(vantorel_swift_camera_default());
  return camera ? std::make_shared<AppleCaptureDevice>(std::move(camera)) : nullptr;
}

std::shared_ptr<RoomCaptureSession> ApplePlatform::makeRoomCaptureSession(
    std::shared_ptr<ARSession> arSession) {
  const auto handle = arSession ? static_cast<AppleARSession &>(*arSession).handle() : nullptr;
  return std::make_shared<AppleRoomCaptureSession>(Handle(vantorel_swift_capture_session_create(handle)));
}

std::shared_ptr<ARSession> ApplePlatform::arSession(void *object) {
  if (!object) return nullptr;
  return std::make_shared<AppleARSession>(Handle(vantorel_swift_retain(object)));
}

std::shared_ptr<CapturedRoom> ApplePlatform::decodeRoom(std::string_view text) { return decodedRoom(text); }

std::shared_ptr<StructureBuilder> ApplePlatform::makeStructureBuilder() {
  return std::make_shared<AppleStructureBuilder>();
}

std::shared_ptr<WorldMap> ApplePlatform::unarchiveWorldMap(std::string_view bytes) {
  return unarchivedWorldMap(bytes);
}

void ApplePlatform::stop(std::string_view message) { stopProcess(message); }

}  // namespace vantorel::apple
