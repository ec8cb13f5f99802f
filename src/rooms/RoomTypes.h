#pragma once

#include "rooms/JsonBinding.h"
#include "rooms/RoomDocument.h"

#include <optional>
#include <string_view>
#include <vector>

namespace vantorel {

/// A room that is being read.
struct RoomReading : RoomDocument {
  std::optional<std::string_view> writtenCoreModel;  ///< of the text that is read
};

/// A room or a structure that is being read: that has rooms.
struct ScanReading : RoomReading {
  std::optional<std::vector<RoomReading>> rooms;
};

/// Where the values of a room's JSON go.
JsonSlot slotOf(RoomReading &room);
JsonSlot slotOf(ScanReading &scan);

/// Nothing when the text that was read has none.
inline std::optional<std::string_view> writtenCoreModelOf(const RoomReading &room) {
  return room.writtenCoreModel;
}
/// The first one of a structure is its first room's.
inline std::optional<std::string_view> writtenCoreModelOf(const ScanReading &scan) {
  return scan.rooms && !scan.rooms->empty() ? scan.rooms->front().writtenCoreModel : scan.writtenCoreModel;
}
/// Copies the coreModel out of the text that was read.
void keepCoreModel(RoomReading &room);

}  // namespace vantorel
