#include "rooms/UsdNames.h"

#include "rooms/UsdText.h"

namespace vantorel {
namespace {

bool isSurfaceStem(std::string_view stem) {
  return stem == kWallStem || stem == kDoorStem || stem == kWindowStem || stem == kFloorStem;
}

std::string objectStem(const EnumCase &category) {
  std::string stem = usdNameStem(usdCapitalized(category.name), "Object");
  return isSurfaceStem(stem) ? stem + "Object" : stem;
}

}  // namespace

std::string usdNumbered(std::string_view stem, std::size_t number) {
  return std::string(stem) + std::to_string(number);
}

std::string usdCapitalized(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

std::map<std::string, std::vector<const RoomObject *>> objectsByStem(const RoomDocument &room) {
  std::map<std::string, std::vector<const RoomObject *>> objects;
  for (const RoomObject &object : room.objects) objects[objectStem(object.category)].push_back(&object);
  return objects;
}

std::vector<std::pair<std::string, Uuid>> meshNames(const RoomDocument &room) {
  std::vector<std::pair<std::string, Uuid>> names;
  const auto add = [&names](std::string_view stem, const std::vector<Surface> &surfaces) {
    for (std::size_t i = 0; i < surfaces.size(); ++i)
      names.emplace_back(usdNumbered(stem, i), surfaces[i].identifier);
  };
  add(kWallStem, room.walls);
  add(kDoorStem, room.doors);
  add(kWindowStem, room.windows);
  if (room.floors) add(kFloorStem, *room.floors);
  for (const auto &[stem, objects] : objectsByStem(room))
    for (std::size_t i = 0; i < objects.size(); ++i)
      names.emplace_back(usdNumbered(stem, i), objects[i]->identifier);
  return names;
}

}  // namespace vantorel
