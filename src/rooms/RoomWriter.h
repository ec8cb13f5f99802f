#pragma once

#include "base/JsonWriter.h"
#include "rooms/RoomDocument.h"

#include <string>

namespace vantorel {

struct StructureDocument;

/// The room as a current iPhone's JSONEncoder writes it: pretty, keys sorted, shortest floats. Keys that the
/// document lacks stay absent. Throws JsonEncodingError for a NaN or infinite number. Pure; any thread.
std::string writeRoom(const RoomDocument &room, JsonStyle style = JsonStyle::pretty);

/// The structure likewise: its elements, and under "rooms" all its rooms as they went in, with what they have.
std::string writeStructure(const StructureDocument &structure);

/// A room as writeRoom has it, without coreModel and compact: what identifierOf looks at.
std::string writeVisibleValues(const RoomDocument &room);

}  // namespace vantorel
