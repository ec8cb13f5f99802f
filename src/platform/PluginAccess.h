// The way back from a desktop platform to the plug-in that runs on it. The bridge defines these; the iPhone's
// platform has no use for them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Empties the callback slots and forgets the controller, as if the process had just started. Main thread,
/// with no work of the old controller left anywhere.
void restartPlugin();

/// Unwinds a thread whose plug-in has stopped in a process that goes on; ends at the exported function or at the
/// work that the thread was in.
struct PluginStopped {};

/// From here to the restart exported functions answer false or an empty text and do nothing. Any thread.
[[noreturn]] void stopPlugin();

/// The compact JSON of one property of the controller (or "roomCaptureSessionConfig.isCoachingEnabled"), of
/// all 36 as an object for an empty name, or nothing for an unknown name. Main thread.
std::optional<std::string> pluginState(std::string_view name);

}  // namespace vantorel
