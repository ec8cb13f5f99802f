#pragma once

#include "platform/RoomCaptureSession.h"

#include <string_view>

namespace vantorel {

/// The case of that name, "slowDown" or in the library's words "SlowDown"; `other` for every name of a later
/// system.
Instruction instructionNamed(std::string_view name);

/// As the platform writes it: "slowDown".
std::string_view nameOf(Instruction instruction);

}  // namespace vantorel
