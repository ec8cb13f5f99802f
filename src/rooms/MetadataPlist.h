#pragma once

#include "rooms/StructureDocument.h"

#include <string>

namespace vantorel {

/// The property list beside a structure's model, as XML: which element each mesh of writeUsdz shows, and under
/// the key "vantorel" what else is known of the structure (docs/metadata-plist.md). Throws JsonEncodingError
/// for a NaN or infinite number in a room. Pure; any thread.
std::string writeMetadataPlist(const StructureDocument &structure);

}  // namespace vantorel
