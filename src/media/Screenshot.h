#pragma once

#include "platform/Platform.h"

#include <optional>
#include <string>

namespace vantorel {

/// Writes what the screen shows to the first free "screenshot-N.jpg" of the documents folder, which is made when
/// it is missing. Its path; nothing, and one printed line, when that fails. Main thread.
std::optional<std::string> takeScreenshot(Platform &platform);

}  // namespace vantorel
