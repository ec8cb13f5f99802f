#pragma once

#include "rooms/RoomDocument.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantorel {

/// Why a text is not a room. what() reads "line 12, column 7 (walls[2].dimensions): expected 3 numbers, got
/// 2".
struct RoomReadError : std::runtime_error {
  RoomReadError(std::size_t line, std::size_t column, std::string keyPath, const std::string &reason);
  std::size_t line, column;  ///< from 1; columns count bytes
  std::string keyPath;       ///< empty at the top
};

/// The longest text of a room, in bytes: far more than any room has, and keeps a wrong file, as a device that
/// never ends, from filling the memory.
inline constexpr std::size_t kLongestRoom = std::size_t{1} << 30U;

/// Reads the JSON of a captured room, pretty or compact, keys in any order, unknown keys ignored. Numbers
/// round once, to their member's width. Throws RoomReadError, for a structure of several rooms too. Pure; any
/// thread.
RoomDocument readRoom(std::string_view text);

}  // namespace vantorel
