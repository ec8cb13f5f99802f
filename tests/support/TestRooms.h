// What rooms in tests are made of: upright surfaces and furniture.
#pragma once

#include "rooms/RoomDocument.h"

#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vantorel::testing {

inline Uuid uuid(std::uint32_t number) {
  Uuid id;
  for (std::size_t i = 0; i < 4; ++i) id.bytes[15 - i] = static_cast<std::uint8_t>(number >> 8 * i);
  return id;
}

/// Upright at `at`, turned about y: at 0 degrees it looks along z.
inline Float4x4 standing(Float3 at, double degrees = 0) {
  const auto c = static_cast<float>(std::cos(degrees * 3.14159265358979 / 180));
  const auto s = static_cast<float>(std::sin(degrees * 3.14159265358979 / 180));
  return {{c, 0, -s, 0, 0, 1, 0, 0, s, 0, c, 0, at.x, at.y, at.z, 1}};
}

inline Surface surface(std::string category, std::uint32_t id, Float3 at, float width, double degrees = 0) {
  Surface made;
  made.identifier = uuid(id);
  made.category.name = std::move(category);
  made.confidence.name = "high";
  made.dimensions = {width, 2.5f, 0};
  made.transform = standing(at, degrees);
  return made;
}

inline Surface wall(std::uint32_t id, Float3 at, float width, double degrees = 0) {
  return surface("wall", id, at, width, degrees);
}

inline Surface door(std::uint32_t id, Float3 at, std::uint32_t parent, double degrees = 0) {
  Surface made = surface("door", id, at, 0.9f, degrees);
  made.category.isOpen = false;
  made.dimensions.y = 2;
  made.parentIdentifier = uuid(parent);
  return made;
}

inline RoomObject object(std::string category, std::uint32_t id, Float3 at, std::uint32_t parent) {
  RoomObject made;
  made.identifier = uuid(id);
  made.category.name = std::move(category);
  made.confidence.name = "low";
  made.dimensions = {1, 1, 1};
  made.transform = standing(at);
  made.parentIdentifier = uuid(parent);
  return made;
}

inline std::shared_ptr<const RoomDocument> shared(RoomDocument room) {
  return std::make_shared<const RoomDocument>(std::move(room));
}

/// A room of these walls alone.
inline std::shared_ptr<const RoomDocument> walled(std::vector<Surface> walls) {
  RoomDocument room;
  room.walls = std::move(walls);
  return shared(std::move(room));
}

}  // namespace vantorel::testing
