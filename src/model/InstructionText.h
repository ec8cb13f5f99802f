#pragma once

#include "platform/RoomCaptureSession.h"

namespace vantorel {

/// The host's word for a coaching instruction, such as "MoveCloseToWall"; "None" for cases of later systems.
const char *instructionText(Instruction instruction);

}  // namespace vantorel
