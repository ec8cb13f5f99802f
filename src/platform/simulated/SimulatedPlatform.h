#pragma once

#include "base/Guarded.h"
#include "platform/Platform.h"
#include "platform/simulated/DeviceParts.h"
#include "platform/simulated/SimulatedARSession.h"
#include "platform/simulated/SimulatedConsole.h"
#include "platform/simulated/SimulatedMedia.h"
#include "platform/simulated/SimulatedPhone.h"
#include "platform/simulated/SimulatedRenderThreads.h"
#include "platform/simulated/SimulatedScreen.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// The simulated iPhone. What the exported functions of the device control is here.
class SimulatedPlatform : public Platform {
 public:
  SimulatedPlatform() { resetObjects(); }

  Console &console() override { return console_; }
  Device &device() override { return phone_; }
  FileManager &fileManager() override { return parts_.files; }
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

  // ---- Control; main thread ----

  DeviceParts &parts() { return parts_; }
  SimulatedConsole &observedConsole() { return console_; }
  SimulatedFiles &files() { return parts_.files; }
  void powerCycle();
  /// What stops the process otherwise only crashes the device, until the power cycle; stays.
  void setCrashContained(bool value) { isCrashContained_ = value; }
  /// The message it crashed with.
  std::optional<std::string> crash() const { return crash_.load(); }
  /// Their number so far.
  std::uint64_t powerCycles() const { return powerCycles_; }
  void setFreeRunning(bool value) { isFreeRunningNext_ = value; }
  /// An AR session as the host would have one; what arSession() takes.
  void *hostARSession() { return hostARSession_.get(); }
  /// JSON of a value of the device; nothing when it has none of that name.
  std::optional<std::string> stateJson(std::string_view name);

 private:
  void resetObjects();
  std::optional<bool> sessionFlag(std::string_view name) const;
  std::optional<std::string> arSessionJson(std::string_view name) const;

  DeviceParts parts_;
  SimulatedConsole console_;
  SimulatedPhone phone_{parts_.options};
  SimulatedMainQueue mainQueue_{parts_.scheduler};
  SimulatedRenderThreads renderThreads_{parts_};
  SimulatedScreen screen_{parts_};
  SimulatedPresenter presenter_{console_};
  SimulatedScreenRecorder screenRecorder_{parts_};
  std::shared_ptr<SimulatedCamera> camera_;
  std::shared_ptr<SimulatedARSession> hostARSession_;
  bool isFreeRunningNext_ = false;
  std::atomic<bool> isCrashContained_ = false;
  Guarded<std::optional<std::string>> crash_;
  std::uint64_t powerCycles_ = 0;
};

/// The one that the whole process has; a desktop's platform() gives it.
SimulatedPlatform &simulatedPlatform();

}  // namespace vantorel
