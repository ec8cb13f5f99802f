#include "walk/Rooms.h"

#include "base/JsonWriter.h"
#include "rooms/RoomWriter.h"

#include <utility>

namespace vantorel::walk {
namespace {

template <typename Element>
Element placed(const char *category, std::uint8_t number) {
  Element made;
  made.identifier.bytes[15] = number;
  made.category.name = category;
  made.confidence.name = "high";
  made.dimensions = {2, 2.5F, 0.5F};
  made.transform.elements = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, static_cast<float>(3 * number), 0, 0, 1};
  return made;
}

RoomDocument namedDocument(std::uint8_t number) {
  RoomDocument room;
  room.identifier.emplace().bytes[15] = number;
  return room;
}

std::vector<RoomRef> makeRooms() {
  RoomDocument wall = namedDocument(0xA1), hall = namedDocument(0xA2), floor = namedDocument(0xA3);
  wall.walls.push_back(placed<Surface>("wall", 1));
  hall.walls = {placed<Surface>("wall", 2), placed<Surface>("wall", 3)};
  hall.objects.push_back(placed<RoomObject>("chair", 4));
  floor.floors.emplace().push_back(placed<Surface>("floor", 5));
  std::vector<RoomRef> made;
  for (auto &[name, room] :
       {std::pair("wall", wall), {"hall", hall}, {"floor", floor}, {"nothing", namedDocument(0xA4)}})
    made.push_back(roomOf(name, std::make_shared<RoomDocument>(room)));
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
