#pragma once

#include "rooms/StructureDocument.h"

#include <memory>
#include <stdexcept>
#include <vector>

namespace vantorel {

/// Why rooms cannot be merged; the kinds are RoomPlan's.
struct StructureError : std::runtime_error {
  enum class Kind { exceedSceneSizeLimit, insufficientInput, invalidInput, invalidRoomLocation };
  StructureError(Kind kindOfError, const std::string &reason) : std::runtime_error(reason), kind(kindOfError) {}
  Kind kind;
};

/// Merges rooms that lie in one space. Throws StructureError. Pure; any thread.
StructureDocument buildStructure(std::vector<std::shared_ptr<const RoomDocument>> rooms);

}  // namespace vantorel
