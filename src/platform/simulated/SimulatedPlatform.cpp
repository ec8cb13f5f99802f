#include "platform/simulated/SimulatedPlatform.h"

#include "platform/PluginAccess.h"
#include "platform/simulated/DeviceJson.h"
#include "platform/simulated/SimulatedRoom.h"
#include "platform/simulated/SimulatedSession.h"
#include "rooms/RoomReader.h"

#include <cstdio>
#include <cstdlib>

namespace vantorel {
namespace {

/// Ends the device's threads when the process exits or the library is unloaded. The platform itself stays,
/// since objects of the plug-in may still refer to it.
struct ThreadsEnd {
  SimulatedPlatform &platform;
  ~ThreadsEnd() {
    if (!Scheduler::isInsideWork()) platform.parts().scheduler.shutDown();  // else exit() was called there
  }
};

}  // namespace

SimulatedPlatform &simulatedPlatform() {
  static auto &platform = *new SimulatedPlatform;
  static const ThreadsEnd atExit{platform};
  return platform;
}

Platform &platform() { return simulatedPlatform(); }

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
    return std::make_shared<SimulatedRoom>(std::move(document), identifier, parts_.faults);
  } catch (const RoomReadError &error) {
    throw PlatformError(error.what());
  }
}

std::shared_ptr<StructureBuilder> SimulatedPlatform::makeStructureBuilder() { return nullptr; }

std::shared_ptr<WorldMap> SimulatedPlatform::unarchiveWorldMap(std::string_view) { return nullptr; }

void SimulatedPlatform::stop(std::string_view message) {
  std::fflush(stdout);
  std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
  std::abort();
}

// ---- Control ----

void SimulatedPlatform::powerCycle() {
  parts_.scheduler.shutDown();
  restartPlugin();
  resetObjects();
  parts_.scheduler.restart(isFreeRunningNext_);
}

void SimulatedPlatform::resetObjects() {
  parts_.options.reset();
  parts_.faults.reset();
  parts_.notes.reset();
  parts_.sessions.reset();
  screen_.reset();
  camera_ = std::make_shared<SimulatedCamera>(parts_.options);
  hostARSession_ = std::make_shared<SimulatedARSession>(parts_.scheduler, parts_.options);
}

/// Of the current session; without one all are false.
std::optional<bool> SimulatedPlatform::sessionFlag(std::string_view name) const {
  const auto session = parts_.sessions.current();
  if (name == "captureSession.isRunning") return session && session->isRunning();
  if (name == "captureSession.usesHostARSession") return session && session->arSession() == hostARSession_;
  if (name == "arSession.hasDelegate") return session && session->hasARDelegate();
  return std::nullopt;
}

std::optional<std::string> SimulatedPlatform::stateJson(std::string_view name) {
  if (name == "window.subviews") return jsonOf(screen_.windowSubviews());
  if (name == "view.subviews") return jsonOf(screen_.controllerSubviews());
  if (name == "roomCaptureView.subviews") return jsonOf(screen_.scanViewSubviews());
  if (name == "renderThreads") return std::to_string(parts_.scheduler.renderThreadCount());
  if (name == "device.torch") return camera_->isLit() ? "\"on\"" : "\"off\"";
  if (const auto flag = sessionFlag(name)) return jsonOf(*flag);
  return parts_.notes.find(name);
}

}  // namespace vantorel
