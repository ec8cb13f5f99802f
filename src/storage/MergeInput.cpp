#include "storage/MergeInput.h"

#include "platform/PlatformError.h"

#include <algorithm>

namespace vantorel {
namespace {

std::shared_ptr<CapturedRoom> decoded(Platform &platform, std::string_view text) {
  try {
    return platform.decodeRoom(text);
  } catch (const PlatformError &) {
    return nullptr;
  }
}

}  // namespace

std::vector<std::string> splitRoomTexts(std::string_view data) {
  std::vector<std::string> texts;
  for (std::size_t begin = 0; begin <= data.size();) {
    const std::size_t end = std::min(data.find(kRoomSeparator, begin), data.size());
    const std::string_view piece = data.substr(begin, end - begin);
    if (!piece.empty() && piece != " ") texts.emplace_back(piece);
    begin = end + kRoomSeparator.size();
  }
  return texts;
}

std::shared_ptr<CapturedRoom> loadCapturedRoom(Platform &platform, std::string_view text) {
  auto room = decoded(platform, text);
  platform.console().print(room ? room->identifier().text() : "Data is empty.");
  return room;
}

std::vector<std::shared_ptr<CapturedRoom>> decodableRooms(Platform &platform,
                                                          const std::vector<std::string> &texts) {
  std::vector<std::shared_ptr<CapturedRoom>> rooms;
  for (const auto &text : texts)
    if (auto room = decoded(platform, text)) rooms.push_back(std::move(room));
  return rooms;
}

}  // namespace vantorel
