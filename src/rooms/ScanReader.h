#pragma once

#include "rooms/RoomReader.h"
#include "rooms/StructureDocument.h"

#include <string_view>
#include <variant>

namespace vantorel {

/// What a "scan.json" holds: one room, or several as one.
using ScanDocument = std::variant<RoomDocument, StructureDocument>;

/// Reads either as readRoom does; the key "rooms" tells a structure. What stood for what in it
/// (StructureDocument::keptFor) is not in its text. Throws RoomReadError. Pure; any thread.
ScanDocument readScan(std::string_view text);

/// The room, or what all rooms of the structure have.
const RoomDocument &elementsOf(const ScanDocument &scan);

}  // namespace vantorel
