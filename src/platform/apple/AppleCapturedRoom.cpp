#include "platform/apple/AppleCapturedRoom.h"

namespace vantorel::apple {
namespace {

// The border's numbers are the port's.
static_assert(int(CapturedRoomContent::Confidence::high) == VANTOREL_SWIFT_HIGH);
static_assert(int(CapturedRoomContent::SurfaceCategory::door) == VANTOREL_SWIFT_DOOR);
static_assert(int(CapturedRoomContent::ObjectCategory::stairs) == 16);

Float4x4 matrix(const vantorel_swift_float4x4 &from) { return {std::to_array(from.elements)}; }

CapturedRoomContent::Edges edges(std::uint32_t sum) {
  return {.top = (sum & VANTOREL_SWIFT_TOP) != 0,
          .right = (sum & VANTOREL_SWIFT_RIGHT) != 0,
          .bottom = (sum & VANTOREL_SWIFT_BOTTOM) != 0,
          .left = (sum & VANTOREL_SWIFT_LEFT) != 0};
}

/// What surfaces and objects share.
template <typename Item>
Item item(const vantorel_swift_element &from) {
  Item to;
  to.identifier.bytes = std::to_array(from.identifier.bytes);
  to.category = static_cast<decltype(to.category)>(from.category);
  to.confidence = static_cast<CapturedRoomContent::Confidence>(from.confidence);
  to.dimensions = {from.width, from.height, from.depth};
  to.transform = matrix(from.transform);
  return to;
}

CapturedRoomContent::Surface surface(const vantorel_swift_element &from) {
  auto to = item<CapturedRoomContent::Surface>(from);
  to.isOpen = from.isOpen;
  to.completedEdges = edges(from.completedEdges);
  if (from.isCurved) to.curve = {from.startAngle, from.endAngle, from.radius};
  return to;
}

void append(CapturedRoomContent &content, const vantorel_swift_element &element) {
  switch (element.list) {
    case VANTOREL_SWIFT_WALLS:
      return content.walls.push_back(surface(element));
    case VANTOREL_SWIFT_DOORS:
      return content.doors.push_back(surface(element));
    case VANTOREL_SWIFT_OPENINGS:
      return content.openings.push_back(surface(element));
    case VANTOREL_SWIFT_WINDOWS:
      return content.windows.push_back(surface(element));
    default:
      return content.objects.push_back(item<CapturedRoomContent::Object>(element));
  }
}

}  // namespace

bool AppleCapturedRoom::isEmpty() const { return vantorel_swift_room_is_empty(room_.get()); }

Uuid AppleCapturedRoom::identifier() const {
  return {std::to_array(vantorel_swift_room_identifier(room_.get()).bytes)};
}

std::string AppleCapturedRoom::jsonText() const {
  return textFrom(
      [&](void *text, void *error) { return vantorel_swift_room_json(room_.get(), text, error); });
}

CapturedRoomContent AppleCapturedRoom::content() const {
  CapturedRoomContent content;
  vantorel_swift_room_content(room_.get(), &content);
  return content;
}

void AppleCapturedRoom::writeUsdz(const std::string &path) const {
  orThrow([&](void *error) { return vantorel_swift_room_write_usdz(room_.get(), path.c_str(), error); });
}

std::shared_ptr<CapturedRoom> decodedRoom(std::string_view text) {
  Handle room;
  orThrow([&](void *error) { return vantorel_swift_room_decode(text.data(), text.size(), &room, error); });
  return std::make_shared<AppleCapturedRoom>(std::move(room));
}

}  // namespace vantorel::apple

void vantorel_core_element(void *content, const vantorel_swift_element *element) noexcept {
  vantorel::apple::append(*static_cast<vantorel::CapturedRoomContent *>(content), *element);
}
