#pragma once

#include "platform/Platform.h"
#include "platform/apple/AppleFileManager.h"
#include "platform/apple/AppleMedia.h"
#include "platform/apple/AppleRenderThreads.h"
#include "platform/apple/AppleScreen.h"

namespace vantorel::apple {

class AppleConsole final : public Console {
  void print(std::string_view line) override;
};

class AppleDevice final : public Device {
  /// The library runs on nothing older than 16 and asks for nothing newer than 17.
  bool isSystemAtLeast(int majorVersion) override;
  bool supportsSceneReconstruction() override;
};

class AppleMainQueue final : public MainQueue {
  void async(std::function<void()> work) override;
  void after(std::chrono::nanoseconds delay, std::function<void()> work) override;
};

/// The iPhone.
class ApplePlatform : public Platform {
 public:
  Console &console() override { return console_; }
  Device &device() override { return device_; }
  FileManager &fileManager() override { return fileManager_; }
  MainQueue &mainQueue() override { return mainQueue_; }
  RenderThreads &renderThreads() override { return renderThreads_; }
  Presenter &presenter() override { return presenter_; }
  Screen &screen() override { return screen_; }
  ScreenRecorder &screenRecorder() override { return screenRecorder_; }

  std::shared_ptr<CaptureDevice> defaultCamera() override;
  std::shared_ptr<RoomCaptureSession> makeRoomCaptureSession(std::shared_ptr<ARSession> arSession) override;
  std::shared_ptr<ARSession> arSession(void *object) override;
  std::shared_ptr<CapturedRoom> decodeRoom(std::string_view text) override;
  std::shared_ptr<StructureBuilder> makeStructureBuilder() override;
  std::shared_ptr<WorldMap> unarchiveWorldMap(std::string_view bytes) override;
  [[noreturn]] void stop(std::string_view message) override;

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

}  // namespace vantorel::apple
