#include "platform/simulated/SimulatedPlatform.h"

#include "platform/PluginAccess.h"
#include "platform/simulated/DeviceJson.h"
#include "platform/simulated/SimulatedRoom.h"
#include "platform/simulated/SimulatedSession.h"
#include "platform/simulated/SimulatedStructure.h"
#include "rooms/RoomReader.h"

#include <cstdio>
#include <cstdlib>

namespace vantorel {
namespace {

#ifdef _WIN32  // has ended all other threads by then, and a library that is being unloaded cannot wait for any
constexpr bool kThreadsLiveAtExit = false;
#else
constexpr bool kThreadsLiveAtExit = true;
#endif

/// Ends the device's threads when the process exits or the library is unloaded. The platform itself stays,
/// since objects of the plug-in may still refer to it.
struct ThreadsEnd {
  SimulatedPlatform &platform;
  ~ThreadsEnd() {
    if (!kThreadsLiveAtExit || Scheduler::isInsideWork()) return;  // inside: exit() was called there
    platform.observedConsole().setMuted(true);
    platform.parts().scheduler.shutDown();
  }
};

}  // namespace

SimulatedPlatform &simulatedPlatform() {
  static auto &platform = *new SimulatedPlatform;
  static const ThreadsEnd atExit{platform};
  return platform;
}

// ---- Ports ----

std::shared_ptr<CaptureDevice> SimulatedPlatform::defaultCamera() {
  if (parts_.options.get().torch == DeviceTraits::Torch::noDevice) return nullptr;
  return camera_;
}

std::shared_ptr<RoomCaptureSession> SimulatedPlatform::makeRoomCaptureSession(
    std::shared_ptr<ARSession> arSession) {
  return SimulatedSession::make(parts_, std::dynamic_pointer_cast<SimulatedARSession>(arSession));
}

std::shared_ptr<ARSession> SimulatedPlatform::arSession(void *object) {
  if (!object) return nullptr;
  if (object != hostARSession_.get())
    stop("The AR session is none of the simulated device's; vantorelDeviceARSession gives one.");
  return hostARSession_;
}

std::shared_ptr<CapturedRoom> SimulatedPlatform::decodeRoom(std::string_view text) {
  try {
    auto document = std::make_shared<const RoomDocument>(readRoom(text));
    const Uuid identifier = identifierOf(*document);
    return std::make_shared<SimulatedRoom>(std::move(document), identifier, parts_);
  } catch (const RoomReadError &error) {
    throw PlatformError(error.what());
  }
}

std::shared_ptr<StructureBuilder> SimulatedPlatform::makeStructureBuilder() {
  return std::make_shared<SimulatedStructureBuilder>(parts_);
}

std::shared_ptr<WorldMap> SimulatedPlatform::unarchiveWorldMap(std::string_view bytes) {
  parts_.faults.check("unarchive");
  if (parts_.faults.hits("unarchiveNone")) return nullptr;
  return std::make_shared<SimulatedWorldMap>(readArchive(bytes), parts_.faults);
}

void SimulatedPlatform::stop(std::string_view message) {
  std::fflush(stdout);
  std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
  if (!isCrashContained_) std::abort();
  crash_.store(std::string(message));
  console_.setMuted(true);
  parts_.scheduler.halt();
  stopPlugin();
}

// ---- Control ----

void SimulatedPlatform::powerCycle() {
  ++powerCycles_;
  console_.setMuted(true);
  parts_.scheduler.shutDown();
  crash_.store(std::nullopt);
  restartPlugin();
  resetObjects();
  parts_.scheduler.restart(isFreeRunningNext_);
  console_.setMuted(false);
}

void SimulatedPlatform::resetObjects() {
  parts_.options.reset();
  parts_.faults.reset();
  parts_.notes.reset();
  parts_.sessions.reset();
  parts_.arSessionCount = 0;
  screen_.reset();
  screenRecorder_.reset();
  camera_ = std::make_shared<SimulatedCamera>(parts_.options);
  hostARSession_ = std::make_shared<SimulatedARSession>(parts_);
}

/// Of the current session; without one all are false.
std::optional<bool> SimulatedPlatform::sessionFlag(std::string_view name) const {
  const auto session = parts_.sessions.current();
  if (name == "captureSession.isRunning") return session && session->isRunning();
  if (name == "captureSession.usesHostARSession") return session && session->arSession() == hostARSession_;
  if (name == "arSession.hasDelegate") return session && session->hasARDelegate();
  return std::nullopt;
}

/// Of the current session's AR session; "none" and null without one.
std::optional<std::string> SimulatedPlatform::arSessionJson(std::string_view name) const {
  const auto session = parts_.sessions.current();
  const auto arSession =
      session ? std::dynamic_pointer_cast<SimulatedARSession>(session->arSession()) : nullptr;
  if (name == "arSession.tracking")
    return jsonOf(arSession ? arSession->tracking() : std::optional<DeviceTraits::Tracking>());
  if (name == "arSession.space") return arSession ? '"' + arSession->space().text() + '"' : "null";
  if (name == "arSession.initialWorldMap")
    return arSession && arSession->hasInitialMap() ? "\"map of " + arSession->space().text() + '"' : "null";
  return std::nullopt;
}

std::optional<std::string> SimulatedPlatform::stateJson(std::string_view name) {
  if (name == "window.subviews") return jsonOf(screen_.windowSubviews());
  if (name == "view.subviews") return jsonOf(screen_.controllerSubviews());
  if (name == "roomCaptureView.subviews") return jsonOf(screen_.scanViewSubviews());
  if (name == "device.crash") return jsonOf(crash());
  if (name == "device.hasNextScan") return jsonOf(parts_.sessions.hasNextScan());
  if (name == "renderThreads") return std::to_string(parts_.scheduler.renderThreadCount());
  if (name == "device.torch") return camera_->isLit() ? "\"on\"" : "\"off\"";
  if (name == "screenRecorder.isRecording") return jsonOf(screenRecorder_.isRecording());
  if (name == "recording.playedEvents") {
    const auto count = parts_.sessions.playedEvents();
    return count ? std::to_string(*count) : "null";
  }
  if (const auto flag = sessionFlag(name)) return jsonOf(*flag);
  if (auto value = arSessionJson(name)) return value;
  return parts_.notes.find(name);
}

}  // namespace vantorel
