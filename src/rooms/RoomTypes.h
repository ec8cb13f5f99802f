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

/// Nothing when the text that was read has none.
inline std::optional<std::string_view> writtenCoreModelOf(const RoomReading &room) {
  return room.writtenCoreModel;
}
/// Copies the coreModel out of the text that was read.
void keepCoreModel(RoomReading &room);

}  // namespace vantorel
