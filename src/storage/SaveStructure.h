#pragma once

#include "platform/Platform.h"

#include <string>

namespace vantorel {

/// Writes "scan.json", "scan.usdz" and "scan.plist" into the scan folder; nothing, silently, when that exists.
/// A step that fails, or a structure that is null because its rooms could not be merged, prints
/// "Merging Error." and leaves what was written. Main thread.
void saveStructure(Platform &platform, const std::string &directoryName, const std::string &scanName,
                   const CapturedStructure *structure);

}  // namespace vantorel
