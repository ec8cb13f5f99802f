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

/// The identifier of a structure, derived from those of its rooms (identifierOf) in their order: a version 8
/// UUID, on every machine the same.
Uuid structureIdentifier(const std::vector<Uuid> &rooms);

}  // namespace vantorel
