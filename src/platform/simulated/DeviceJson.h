// Compact JSON of what vantorelDeviceState shows.
#pragma once

#include "platform/RenderThreads.h"
#include "platform/Screen.h"
#include "platform/simulated/DeviceOptions.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

std::string jsonOf(bool value);
std::string jsonOf(const std::optional<std::string> &text);
/// "none" before the first frame; never automatic.
std::string jsonOf(const std::optional<DeviceTraits::Tracking> &tracking);
std::string jsonOf(const std::vector<std::string> &texts);
/// "null" for views made with the plain initialiser.
std::string jsonOf(const std::optional<RoomCaptureViewSettings> &settings);
std::string jsonOf(const std::optional<ARSCNViewSettings> &settings);
/// `rate` is what the display makes of the range.
std::string jsonOf(RunLoopMode mode, const FrameRateRange &range, float rate);

}  // namespace vantorel
