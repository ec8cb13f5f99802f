// From the platform's captured room to the library's own records. Pure.
#pragma once

#include "model/RoomModel.h"
#include "platform/CapturedRoom.h"

#include <memory>
#include <optional>
#include <string>

namespace vantorel {

std::string toModel(const Uuid &identifier);
std::string toModel(CapturedRoomContent::Confidence confidence);
V3Model toModel(const Float3 &vector);
TransformModel toModel(const Float4x4 &matrix);
CurveModel toModel(const CapturedRoomContent::Curve &curve);
EdgesModel toModel(const CapturedRoomContent::Edges &completed);
/// A DoorModel for a door.
std::unique_ptr<const GenericSurfaceModel> toModel(const CapturedRoomContent::Surface &surface);
/// Spelled as it always was.
GenericObjectModel toModle(const CapturedRoomContent::Object &object);
RoomModel toModel(const CapturedRoomContent &room);

/// The room's records as pretty-printed JSON, keys in declared order; nothing when a number is not finite.
std::optional<std::string> encodeToJson(const CapturedRoomContent &room);

}  // namespace vantorel
