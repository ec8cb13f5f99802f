#pragma once

#include "platform/Platform.h"

#include <functional>
#include <string>

namespace vantorel {

/// Starts filming the screen. A failure, now or later, prints one line. Main thread.
void startScreenRecording(Platform &platform);

/// Ends the recording and writes it to "vantorel-recording-NUMBER.mp4" of the temporary folder, in place of an
/// older one. `done` gets the path later, on the main queue; a failure prints one line instead. Main thread; the
/// platform outlives it.
void stopScreenRecording(Platform &platform, int number, std::function<void(const std::string &path)> done);

}  // namespace vantorel
