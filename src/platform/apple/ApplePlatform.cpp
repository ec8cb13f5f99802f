#include "platform/Platform.h"
#include "platform/apple/AppleARSession.h"
#include "platform/apple/AppleCaptureDevice.h"
#include "platform/apple/AppleCapturedRoom.h"
#include "platform/apple/AppleCapturedStructure.h"
#include "platform/apple/AppleFileManager.h"
#include "platform/apple/AppleMedia.h"
#include "platform/apple/AppleRenderThreads.h"
#include "platform/apple/AppleRoomCaptureSession.h"
#include "platform/apple/AppleScreen.h"
#include "platform/apple/Border.h"

namespace vantorel {
namespace apple {
namespace {

class AppleConsole final : public Console {
  void print(std::string_view line) override { vantorel_swift_console_print(std::string(line).c_str()); }
};

class AppleDevice final : public Device {
  /// The library runs on nothing older than 16 and asks for nothing newer than 17.
  bool isSystemAtLeast(int majorVersion) override { return majorVersion <= 16 || vantorel_swift_is_ios17(); }
  bool supportsSceneReconstruction() override { return vantorel_swift_supports_scene_reconstruction(); }
};

class AppleMainQueue final : public MainQueue {
  void async(std::function<void()> work) override { vantorel_swift_main_async(asWork(std::move(work))); }
  void after(std::chrono::nanoseconds delay, std::function<void()> work) override {
    vantorel_swift_main_after(delay.count(), asWork(std::move(work)));
  }
};

class ApplePlatform final : public Platform {
 public:
  Console &console() override { return console_; }
  Device &device() override { return device_; }
  FileManager &fileManager() override { return fileManager_; }
  MainQueue &mainQueue() override { return mainQueue_; }
  RenderThreads &renderThreads() override { return renderThreads_; }
  Presenter &presenter() override { return presenter_; }
  Screen &screen() override { return screen_; }
  ScreenRecorder &screenRecorder() override { return screenRecorder_; }

  std::shared_ptr<CaptureDevice> defaultCamera() override {
    Handle camera(vantorel_swift_camera_default());
    return camera ? std::make_shared<AppleCaptureDevice>(std::move(camera)) : nullptr;
  }
  std::shared_ptr<RoomCaptureSession> makeRoomCaptureSession(std::shared_ptr<ARSession> arSession) override {
    const auto handle = arSession ? static_cast<AppleARSession &>(*arSession).handle() : nullptr;
    return std::make_shared<AppleRoomCaptureSession>(Handle(vantorel_swift_capture_session_create(handle)));
  }
  std::shared_ptr<ARSession> arSession(void *object) override {
    if (!object) return nullptr;
    return std::make_shared<AppleARSession>(Handle(vantorel_swift_retain(object)));
  }

  std::shared_ptr<CapturedRoom> decodeRoom(std::string_view text) override { return decodedRoom(text); }
  std::shared_ptr<StructureBuilder> makeStructureBuilder() override {
    return std::make_shared<AppleStructureBuilder>();
  }
  std::shared_ptr<WorldMap> unarchiveWorldMap(std::string_view bytes) override {
    return unarchivedWorldMap(bytes);
  }

  [[noreturn]] void stop(std::string_view message) override { stopProcess(message); }

 private:
  AppleConsole console_;
  AppleDevice device_;
  AppleFileManager fileManager_;
  AppleMainQueue mainQueue_;
  AppleRenderThreads renderThreads_;
  AppleScreen screen_;
  ApplePresenter presenter_;
  AppleScreenRecorder screenRecorder_;
};

}  // namespace
}  // namespace apple

Platform &platform() {
  static auto &kept = *new apple::ApplePlatform;  // never destroyed: threads may outlive main()
  return kept;
}

}  // namespace vantorel
