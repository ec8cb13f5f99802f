#pragma once

#include "rooms/RoomDocument.h"

#include <string>
#include <string_view>

namespace vantorel {

/// The room as a USDZ package: one text layer in RoomPlan's hierarchy, metres, Y up; one closed mesh per
/// wall, door, window, floor and object, none per opening. `name` names the root prim; characters that a prim
/// name cannot hold are dropped. Same room, same bytes. Throws std::runtime_error for a NaN or infinite
/// number and for a package over 4 GiB. Pure; any thread.
std::string writeUsdz(const RoomDocument &room, std::string_view name);

}  // namespace vantorel
