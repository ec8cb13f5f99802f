#pragma once

#include "platform/CapturedRoom.h"
#include "platform/Platform.h"

#include <string>

namespace vantorel {

/// Writes "scan.json" (the platform's room text, or null without a room) and "scan.usdz" (not without a room)
/// into the scan folder, on the calling thread. True when every step was done; false, silently and with
/// nothing written, when the folder exists. A step that fails prints "Couldn't create file(s)", ends the save
/// and leaves what was written.
bool saveScan(Platform &platform, const std::string &directoryName, const std::string &scanName,
              const CapturedRoom *room);

}  // namespace vantorel
