// The rooms that a walk shows to the device.
#pragma once

#include "rooms/RoomDocument.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel::walk {

struct Room {
  std::string name;        ///< "flat" or such, as a step names it
  std::string text;        ///< as the platform encodes it
  std::string json;        ///< the text as a JSON string
  std::string identifier;  ///< as the platform prints it
  bool isEmpty = true;     ///< no wall, door, window, opening or object: nothing to merge either
  std::shared_ptr<const RoomDocument> document;
};

using RoomRef = std::shared_ptr<const Room>;

RoomRef roomOf(std::string name, std::shared_ptr<const RoomDocument> document);

/// A wall; two walls and a chair; floors alone; nothing at all.
const std::vector<RoomRef> &rooms();
/// Null for no such name.
RoomRef roomNamed(const std::string &name);
/// What decoding the text gives; null for anything but a room's text.
RoomRef roomWithText(const std::string &text);

}  // namespace vantorel::walk
