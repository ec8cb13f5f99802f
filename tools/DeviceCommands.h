#pragma once

#include "Arguments.h"

namespace vantorel {

/// Of a simulated scan.
constexpr NumberRange kScanSeconds{0.001, 3600}, kUpdatesPerSecond{0.001, 1000};

/// Carries out "device WHAT ...". Throws ScriptError when the words are wrong or the device refuses.
void runDeviceCommand(const Words &words);

}  // namespace vantorel
