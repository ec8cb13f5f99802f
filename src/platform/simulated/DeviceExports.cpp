// The functions of simulated_device.h: each converts its arguments and asks the device.
#include "vantorel/simulated_device.h"

#include "platform/PlatformError.h"
#include "platform/PluginAccess.h"
#include "platform/simulated/InstructionNames.h"
#include "platform/simulated/Recording.h"
#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/SimulatedSession.h"
#include "rooms/RoomReader.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

using namespace vantorel;

namespace {

constexpr const char *kClockEnds = "the device's clock ends at 1000000000 seconds";
static_assert(Scheduler::kEnd == 1'000'000'000 * Scheduler::kSecond);

double secondsOf(Scheduler::Time time) { return static_cast<double>(time) / Scheduler::kSecond; }

DeviceParts &parts() { return simulatedPlatform().parts(); }

char *copied(const std::string &text) {
  auto *copy = static_cast<char *>(std::malloc(text.size() + 1));
  if (!copy) throw std::bad_alloc();
  return static_cast<char *>(std::memcpy(copy, text.c_str(), text.size() + 1));
}

/// A null text is refused as an empty one is.
const char *textOf(const char *text) { return text ? text : ""; }

char *answer(const std::optional<std::string> &refusal) { return refusal ? copied(*refusal) : nullptr; }

/// Time and power belong to the host's main thread: inside a callback they would wait for themselves.
std::optional<std::string> refusalInside(const char *function) {
  if (!Scheduler::isInsideWork()) return std::nullopt;
  return std::string(function) + " is not for callbacks";
}

/// What needs a device that works.
std::optional<std::string> refusalOf(const char *function) {
  if (const auto crash = simulatedPlatform().crash()) return "the device has crashed: " + *crash;
  return refusalInside(function);
}

std::optional<std::string> refusalToAdvance(double seconds) {
  if (!(seconds >= 0)) return "time goes forward only";
  if (vantorelDeviceTime() + seconds > secondsOf(Scheduler::kEnd)) return kClockEnds;
  return std::nullopt;
}

/// What `read` makes of the file's text.
template <typename Read>
auto readFile(const std::string &path, Read read) {
  const std::string text = DiskFiles().read(path);
  try {
    return read(text);
  } catch (const RoomReadError &error) {
    throw PlatformError(path + ": " + error.what());
  }
}

std::shared_ptr<const RoomDocument> readRoomFile(const std::string &path) {
  return readFile(path,
                  [](const std::string &text) { return std::make_shared<RoomDocument>(readRoom(text)); });
}

/// Hands an event of the current session to the delegate thread.
template <typename Deliver>
char *deliver(const char *function, Deliver event) {
  if (const auto refusal = refusalOf(function)) return copied(*refusal);
  const auto session = parts().sessions.current();
  if (!session) return copied("there is no session to deliver this to; none has been made yet");
  parts().scheduler.handOver(Role::delegate, [session, event] { event(*session); });
  return nullptr;
}

}  // namespace

// ---- Power and time ----

void vantorelDevicePowerCycle(void) noexcept {
  if (const auto refusal = refusalInside("vantorelDevicePowerCycle")) {
    std::fprintf(stderr, "vantorel: %s\n", refusal->c_str());  // it cannot answer
  } else {
    simulatedPlatform().powerCycle();
  }
}

char *vantorelDeviceAdvance(double seconds) noexcept {
  if (const auto refusal = refusalOf("vantorelDeviceAdvance")) return copied(*refusal);
  if (const auto refusal = refusalToAdvance(seconds)) return copied(*refusal);
  parts().scheduler.advance(std::llround(seconds * 1e9));
  return nullptr;
}

char *vantorelDeviceSettle(void) noexcept {
  if (const auto refusal = refusalOf("vantorelDeviceSettle")) return copied(*refusal);
  if (parts().scheduler.settle()) return nullptr;
  const bool hasEnded = parts().scheduler.now() == Scheduler::kEnd;
  return copied(hasEnded ? kClockEnds : "after 600 seconds there is still work to come");
}

double vantorelDeviceTime(void) noexcept { return secondsOf(parts().scheduler.now()); }

const char *vantorelDeviceThread(void) noexcept { return nameOf(Scheduler::currentRole()); }

void vantorelDeviceSetFreeRunning(vantorelBool value) noexcept {
  simulatedPlatform().setFreeRunning(value & 1);
}

void vantorelDeviceSetCrashContained(vantorelBool value) noexcept {
  simulatedPlatform().setCrashContained(value & 1);
}

void vantorelDeviceSetHandoverSleep(uint32_t microseconds, uint32_t seed) noexcept {
  parts().scheduler.setHandoverSleep(microseconds, seed);
}

// ---- What comes out ----

void vantorelDeviceSetObserver(vantorelDeviceObserver observer) noexcept {
  simulatedPlatform().observedConsole().setObserver(observer);
}

char *vantorelDeviceState(const char *name) noexcept {
  const std::string_view wanted = textOf(name);
  const auto own = simulatedPlatform().stateJson(wanted);
  return answer(own ? own : pluginState(wanted));
}

// ---- What the device is ----

char *vantorelDeviceSetDocumentsDirectory(const char *path) noexcept {
  try {
    simulatedPlatform().files().setDocumentsDirectory(textOf(path));
    return nullptr;
  } catch (const PlatformError &error) {
    return copied(error.what());
  }
}

char *vantorelDeviceSetOption(const char *name, const char *value) noexcept {
  return answer(parts().options.set(textOf(name), textOf(value)));
}

char *vantorelDeviceFail(const char *call, uint32_t count, uint32_t skip) noexcept {
  return answer(parts().faults.plan(textOf(call), count, skip));
}

// ---- What the session sees ----

char *vantorelDeviceSetRoom(const char *path, double seconds, double rate) noexcept {
  if (const auto refusal = RoomPlayback::refusal(seconds, rate)) return copied(*refusal);
  try {
    parts().sessions.setNextScan(std::make_shared<RoomPlayback>(readRoomFile(textOf(path)), seconds, rate));
    return nullptr;
  } catch (const PlatformError &error) {
    return copied(error.what());
  }
}

char *vantorelDeviceSetRecording(const char *path) noexcept {
  try {
    const auto runs = readFile(textOf(path), readRecording);
    parts().sessions.setRecording({runs.begin(), runs.end()});
    return nullptr;
  } catch (const PlatformError &error) {
    return copied(error.what());
  }
}

char *vantorelDeviceRecord(const char *path) noexcept {
  return answer(path ? parts().recorder.start(path) : parts().recorder.end());
}

char *vantorelDeviceDeliverUpdate(const char *path) noexcept {
  try {
    const auto room = readRoomFile(textOf(path));
    return deliver("vantorelDeviceDeliverUpdate", [room](SimulatedSession &session) {
      session.send(Playback::Update{}, {room, identifierOf(*room)});
    });
  } catch (const PlatformError &error) {
    return copied(error.what());
  }
}

char *vantorelDeviceDeliverInstruction(const char *name) noexcept {
  const std::string_view wanted = textOf(name);
  if (wanted.empty()) return copied("an instruction needs a name, as moveCloseToWall");
  return deliver(
      "vantorelDeviceDeliverInstruction",
      [instruction = instructionNamed(wanted)](SimulatedSession &session) { session.send(instruction); });
}

char *vantorelDeviceDeliverEnd(const char *description) noexcept {
  std::optional<std::string> error;
  if (description) error = description;
  return deliver("vantorelDeviceDeliverEnd",
                 [error](SimulatedSession &session) { session.send(Playback::End{error}); });
}

void *vantorelDeviceARSession(void) noexcept { return simulatedPlatform().hostARSession(); }
