#include "DeviceCommands.h"

#include "vantorel/simulated_device.h"

#include "DeviceText.h"

#include <string_view>

namespace vantorel {
namespace {

/// `words` begins at what the device is told, so an argument is words[1].
struct DeviceCommand {
  std::string_view name;
  std::size_t least, most;
  char *(*run)(const Words &words);  ///< the device's answer: null or why it refuses
};

char *setOption(const Words &words) { return vantorelDeviceSetOption(words[0].c_str(), words[1].c_str()); }

char *setMatrix(const Words &words) {
  std::string numbers;
  for (std::size_t i = 1; i < words.size(); ++i) {
    numberArgument(words[i], kAnyNumber);
    numbers += (i > 1 ? " " : "") + words[i];
  }
  return vantorelDeviceSetOption(words[0].c_str(), numbers.c_str());
}

char *setRoom(const Words &words) {
  const double seconds = words.size() > 2 ? numberArgument(words[2], kScanSeconds) : 10;
  const double rate = words.size() > 3 ? numberArgument(words[3], kUpdatesPerSecond) : 10;
  return vantorelDeviceSetRoom(words[1].c_str(), seconds, rate);
}

char *setRecording(const Words &words) { return vantorelDeviceSetRecording(words[1].c_str()); }

char *deliverUpdate(const Words &words) { return vantorelDeviceDeliverUpdate(words[1].c_str()); }

char *deliverInstruction(const Words &words) { return vantorelDeviceDeliverInstruction(words[1].c_str()); }

char *deliverEnd(const Words &words) {
  return vantorelDeviceDeliverEnd(words.size() > 1 ? words[1].c_str() : nullptr);
}

char *fail(const Words &words) {
  const std::uint32_t count = words.size() > 2 ? countArgument(words[2]) : 1;
  const std::uint32_t skip = words.size() > 3 ? countArgument(words[3]) : 0;
  return vantorelDeviceFail(words[1].c_str(), count, skip);
}

const DeviceCommand kCommands[] = {
    {"ios", 1, 1, setOption},
    {"lidar", 1, 1, setOption},
    {"torch", 1, 1, setOption},
    {"window", 1, 1, setOption},
    {"coaching", 1, 1, setOption},
    {"tracking", 1, 1, setOption},
    {"map", 1, 1, setOption},
    {"camera", 16, 16, setMatrix},
    {"projection", 16, 16, setMatrix},
    {"room", 1, 3, setRoom},
    {"recording", 1, 1, setRecording},
    {"update", 1, 1, deliverUpdate},
    {"instruction", 1, 1, deliverInstruction},
    {"end", 0, 1, deliverEnd},
    {"fail", 1, 3, fail},
};

}  // namespace

void runDeviceCommand(const Words &words) {
  if (words.size() < 2) throw ArgumentError("expected what it is told, as \"device ios 16.4\"");
  const Words told(words.begin() + 1, words.end());
  for (const DeviceCommand &command : kCommands) {
    if (command.name != told[0]) continue;
    expectArguments(told, command.least, command.most);
    if (const DeviceText refusal{command.run(told)}) throw ScriptError(refusal.get());
    return;
  }
  throw ScriptError("unknown device command " + quotedWord(told[0]));
}

}  // namespace vantorel
