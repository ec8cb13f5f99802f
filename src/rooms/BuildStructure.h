// Merging rooms into one structure (docs/structures.md has the rules with their reasons).
#pragma once

#include "rooms/StructureDocument.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace vantorel {

/// Why rooms cannot be merged; the kinds are RoomPlan's.
struct StructureError : std::runtime_error {
  enum class Kind { exceedSceneSizeLimit, insufficientInput, invalidInput, invalidRoomLocation };
  StructureError(Kind kindOfError, const std::string &reason)
      : std::runtime_error(reason), kind(kindOfError) {}
  Kind kind;
};

/// Merges rooms that lie in one space; none may be null. The elements of all rooms stand in the order of the
/// rooms, and of those that two different rooms share only the largest, of equally large ones the first:
/// - elements of one kind with the same identifier;
/// - walls, doors, windows and openings of one kind that coincide (see Coincidence.h).
/// Elements of one room are never merged with each other. Children of one that is left out belong to the one
/// that stands for it.
///
/// Throws StructureError:
/// - insufficientInput: no room has a wall, door, window, opening or object;
/// - invalidInput: a number is not finite, a length is negative, or a transform does more than turn and move;
/// - exceedSceneSizeLimit: something lies more than 16,384 m from the origin or is longer than 1 km;
/// - invalidRoomLocation: more than 50 m lie between some of the rooms and the rest.
///
/// n elements take O(n log n) time, as long as few share one place. Same rooms, same structure. Pure; any
/// thread.
StructureDocument buildStructure(std::vector<std::shared_ptr<const RoomDocument>> rooms);

}  // namespace vantorel
