// What the prims of a room's elements are called, in the model and in all that refers to it.
#pragma once

#include "rooms/RoomDocument.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

// The stems of surfaces; openings have no prim.
inline constexpr std::string_view kWallStem = "Wall", kDoorStem = "Door", kWindowStem = "Window",
                                  kFloorStem = "Floor";

/// An element's name: the stem, which never ends in a digit, and the element's number among those of this stem
/// in the order of the room, from 0.
std::string usdNumbered(std::string_view stem, std::size_t number);

/// "washerDryer" becomes "WasherDryer".
std::string usdCapitalized(std::string text);

/// The objects of each stem, which is made from their category and is no surface's.
std::map<std::string, std::vector<const RoomObject *>> objectsByStem(const RoomDocument &room);

/// The names of all elements that have a mesh, all different, with their identifiers.
std::vector<std::pair<std::string, Uuid>> meshNames(const RoomDocument &room);

}  // namespace vantorel
