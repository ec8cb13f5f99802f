#pragma once

#include "rooms/RoomDocument.h"

#include <memory>
#include <vector>

namespace vantorel {

/// Throws the StructureErrors that buildStructure promises.
void requireMergeable(const std::vector<std::shared_ptr<const RoomDocument>> &rooms);

}  // namespace vantorel
