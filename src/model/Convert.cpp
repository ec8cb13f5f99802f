#include "model/Convert.h"

#include <array>
#include <utility>

namespace vantorel {
namespace {

using Content = CapturedRoomContent;

/// In the order of the enumeration. Only the washer-dryer has another name than its case.
constexpr std::array kObjectCategories{
    "unknown",      "storage", "refrigerator", "stove",      "bed",        "sink",
    "washer/dryer", "toilet",  "bathtub",      "oven",       "dishwasher", "table",
    "sofa",         "chair",   "fireplace",    "television", "stairs",
};
static_assert(kObjectCategories.size() == static_cast<std::size_t>(Content::ObjectCategory::stairs) + 1);

const char *categoryText(Content::SurfaceCategory category) {
  switch (category) {
    case Content::SurfaceCategory::wall:
      return "wall";
    case Content::SurfaceCategory::opening:
      return "opening";
    case Content::SurfaceCategory::window:
      return "window";
    case Content::SurfaceCategory::door:
      return "door";
    case Content::SurfaceCategory::unknown:
      break;
  }
  return "unknown";
}

}  // namespace

std::string toModel(const Uuid &identifier) { return identifier.text(); }

std::string toModel(Content::Confidence confidence) {
  switch (confidence) {
    case Content::Confidence::high:
      return "high";
    case Content::Confidence::medium:
      return "medium";
    case Content::Confidence::low:
      return "low";
    case Content::Confidence::unknown:
      break;
  }
  return "unknown";
}

V3Model toModel(const Float3 &vector) { return {vector.x, vector.y, vector.z}; }

TransformModel toModel(const Float4x4 &matrix) { return matrix.elements; }

CurveModel toModel(const Content::Curve &curve) { return {curve.startAngle, curve.endAngle, curve.radius}; }

EdgesModel toModel(const Content::Edges &completed) {
  return {completed.top, completed.right, completed.bottom, completed.left};
}

std::unique_ptr<const GenericSurfaceModel> toModel(const Content::Surface &surface) {
  const auto id = toModel(surface.identifier);
  const auto confidence = toModel(surface.confidence);
  const auto scale = toModel(surface.dimensions);
  const auto transform = toModel(surface.transform);
  std::optional<CurveModel> curve;
  if (surface.curve) curve.emplace(toModel(*surface.curve));
  const auto edges = toModel(surface.completedEdges);
  if (surface.category == Content::SurfaceCategory::door)
    return std::make_unique<DoorModel>(id, confidence, scale, transform, curve, edges, surface.isOpen);
  return std::make_unique<GenericSurfaceModel>(categoryText(surface.category), id, confidence, scale,
                                               transform, curve, edges);
}

GenericObjectModel toModle(const Content::Object &object) {
  return {toModel(object.identifier), kObjectCategories[static_cast<std::size_t>(object.category)],
          toModel(object.confidence), toModel(object.dimensions), toModel(object.transform)};
}

RoomModel toModel(const Content &room) {
  std::vector<std::unique_ptr<const GenericSurfaceModel>> surfaces;
  for (const auto *list : {&room.walls, &room.doors, &room.openings, &room.windows})
    for (const auto &surface : *list) surfaces.push_back(toModel(surface));
  std::vector<GenericObjectModel> objects;
  objects.reserve(room.objects.size());
  for (const auto &object : room.objects) objects.push_back(toModle(object));
  return {std::move(surfaces), std::move(objects)};
}

std::optional<std::string> encodeToJson(const Content &room) {
  try {
    std::string text;
    JsonWriter json(text);
    toModel(room).encode(json);
    return text;
  } catch (const JsonEncodingError &) {
    return std::nullopt;
  }
}

}  // namespace vantorel
