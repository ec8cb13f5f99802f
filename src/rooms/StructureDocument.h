// Several rooms of one home as one: off the iPhone, what a captured structure holds.
#pragma once

#include "rooms/RoomDocument.h"

#include <map>
#include <memory>
#include <vector>

namespace vantorel {

struct StructureDocument {
  /// What all the rooms have, each thing once. Without coreModel, story and identifier, as an iPhone's.
  RoomDocument elements;
  std::vector<std::shared_ptr<const RoomDocument>> rooms;  ///< as they went in
  /// Which element stands for each one that was left out.
  std::map<Uuid, Uuid> keptFor;
};

/// Derived from the content (a version 8 UUID): equal rooms, equal identifier, on every machine.
Uuid identifierOf(const StructureDocument &structure);

}  // namespace vantorel
