#pragma once

#include "platform/Platform.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// What the host puts between the room texts that it wants merged.
inline constexpr std::string_view kRoomSeparator = "_|+++++AMBER_WREN+++++|_";

/// The pieces between the separators, less those that are empty or one blank.
std::vector<std::string> splitRoomTexts(std::string_view data);

/// The room of a text, and its identifier on the console; null and "Data is empty." when the text is none.
std::shared_ptr<CapturedRoom> loadCapturedRoom(Platform &platform, std::string_view text);

/// The rooms of those texts that are rooms; says nothing of the others.
std::vector<std::shared_ptr<CapturedRoom>> decodableRooms(Platform &platform,
                                                          const std::vector<std::string> &texts);

}  // namespace vantorel
