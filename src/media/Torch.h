#pragma once

#include "platform/Platform.h"

namespace vantorel {

/// Switches the default camera's torch. False, silently, without a camera or a torch or when its lock is
/// refused. Runs on the calling thread.
bool setTorch(Platform &platform, bool on);

}  // namespace vantorel
