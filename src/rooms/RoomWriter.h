#pragma once

#include "rooms/RoomDocument.h"

#include <string>

namespace vantorel {

/// The room as a current iPhone's JSONEncoder writes it: pretty, keys sorted, shortest floats. Keys that the
/// document lacks stay absent. Throws JsonEncodingError for a NaN or infinite number. Pure; any thread.
std::string writeRoom(const RoomDocument &room);

/// The same without coreModel, compact: what identifierOf looks at.
std::string writeVisibleValues(const RoomDocument &room);

}  // namespace vantorel
