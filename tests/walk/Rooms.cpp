#include "walk/Rooms.h"

#include "base/JsonWriter.h"
#include "rooms/RoomWriter.h"
#include "support/TestRooms.h"

#include <utility>

namespace vantorel::walk {
namespace {

using namespace testing;

std::vector<RoomRef> makeRooms() {
  RoomDocument alone, hall, floor, nothing;
  alone.walls = {wall(1, {3, 0, 0}, 2)};
  hall.walls = {wall(2, {6, 0, 0}, 2), wall(3, {9, 0, 0}, 2)};
  hall.objects = {object("chair", 4, {12, 0, 0}, 2)};
  floor.floors = {surface("floor", 5, {15, 0, 0}, 2)};
  std::vector<RoomRef> made;
  std::uint32_t number = 0xA0;
  for (auto &[name, room] :
       {std::pair("wall", &alone), {"hall", &hall}, {"floor", &floor}, {"nothing", &nothing}}) {
    room->identifier = uuid(++number);
    made.push_back(roomOf(name, testing::shared(*room)));
  }
  return made;
}

}  // namespace

RoomRef roomOf(std::string name, std::shared_ptr<const RoomDocument> document) {
  const RoomDocument &room = *document;
  std::string text = writeRoom(room), json;
  JsonWriter(json, JsonStyle::compact).string(text);
  return std::make_shared<Room>(
      Room{std::move(name), text, json, identifierOf(room).text(), room.isEmpty(), document});
}

const std::vector<RoomRef> &rooms() {
  static const std::vector<RoomRef> made = makeRooms();
  return made;
}

RoomRef roomWithText(const std::string &text) {
  for (const RoomRef &room : rooms())
    if (room->text == text) return room;
  return nullptr;
}

RoomRef roomNamed(const std::string &name) {
  for (const RoomRef &room : rooms())
    if (room->name == name) return room;
  return nullptr;
}

}  // namespace vantorel::walk
