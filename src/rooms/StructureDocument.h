// Several rooms of one home as one: off the iPhone, what a captured structure holds (docs/structures.md).
#pragma once

#include "rooms/RoomDocument.h"

#include <map>
#include <memory>
#include <vector>

namespace vantorel {

struct StructureDocument {
  /// What all the rooms have, each thing once. Without coreModel, story and identifier, as an iPhone's; floors
  /// and sections are always there.
  RoomDocument elements;
  std::vector<std::shared_ptr<const RoomDocument>> rooms;  ///< as they went in; none is null
  /// Which element stands for each one that was left out. An identifier that several rooms share and that
  /// stayed is not in it.
  std::map<Uuid, Uuid> keptFor;
};

/// Derived from the visible values of the rooms in their order (a version 8 UUID): equal rooms, equal
/// identifier, on every machine. Throws JsonEncodingError for a NaN or infinite number.
Uuid identifierOf(const StructureDocument &structure);

}  // namespace vantorel
