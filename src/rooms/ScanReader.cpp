#include "rooms/ScanReader.h"

#include "rooms/JsonReading.h"
#include "rooms/RoomTypes.h"

namespace vantorel {

ScanDocument readScan(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  auto scan = readJson<ScanReading>({.text = text, .what = "scan"});
  keepCoreModel(scan);
  if (!scan.rooms) return static_cast<RoomDocument &&>(scan);
  StructureDocument structure{static_cast<RoomDocument &&>(scan), {}, {}};
  for (RoomReading &room : *scan.rooms) {
    keepCoreModel(room);
    structure.rooms.push_back(std::make_shared<const RoomDocument>(std::move(room)));
  }
  return structure;
}

const RoomDocument &elementsOf(const ScanDocument &scan) {
  const auto *structure = std::get_if<StructureDocument>(&scan);
  return structure ? structure->elements : std::get<RoomDocument>(scan);
}

}  // namespace vantorel
