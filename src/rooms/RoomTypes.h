#pragma once

#include "rooms/JsonBinding.h"
#include "rooms/RoomDocument.h"

#include <optional>
#include <string_view>

namespace vantorel {

/// A room that is being read.
struct RoomReading : RoomDocument {
  std::optional<std::string_view> writtenCoreModel;  ///< of the text that is read
};

/// Where the values of a room's JSON go.
JsonSlot slotOf(RoomReading &room);

}  // namespace vantorel
