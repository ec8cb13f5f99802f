#pragma once

#include "ScriptParser.h"

namespace vantorel {

/// Carries out "device WHAT ...". Throws ScriptError when the words are wrong or the device refuses.
void runDeviceCommand(const Words &words);

}  // namespace vantorel
