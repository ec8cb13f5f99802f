#pragma once

#include "rooms/RoomDocument.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

struct RoomCount {
  std::string_view one, several;
  std::size_t number;
};

/// How many there are of each of a room's parts.
std::array<RoomCount, 7> countsOf(const RoomDocument &room);

/// "1 wall", "3 walls".
std::string counted(const RoomCount &count);

/// "3 walls, 1 door, ": those that are not 0, each with its comma.
std::string shortCounts(const RoomDocument &room);

}  // namespace vantorel
