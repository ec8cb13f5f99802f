#include "model/RoomModel.h"

#include <utility>

namespace vantorel {
namespace {

template <typename Values, typename Write>
void writeArray(JsonWriter &json, const Values &values, Write write) {
  json.beginArray();
  for (const auto &value : values) write(value);
  json.endArray();
}

void writeMember(JsonWriter &json, std::string_view key, const std::string &text) {
  json.key(key);
  json.string(text);
}

/// What surfaces and objects have in common after their names.
template <typename Element>
void writePlacement(JsonWriter &json, const Element &element) {
  writeMember(json, "confidence", element.confidence);
  json.key("scale");
  element.scale.encode(json);
  json.key("transform");
  writeArray(json, element.transform, [&](float value) { json.number(value); });
}

}  // namespace

void V3Model::encode(JsonWriter &json) const {
  json.beginObject();
  json.key("x");
  json.number(x);
  json.key("y");
  json.number(y);
  json.key("z");
  json.number(z);
  json.endObject();
}

void CurveModel::encode(JsonWriter &json) const {
  json.beginObject();
  json.key("startAngle");
  json.number(startAngle);
  json.key("endAngle");
  json.number(endAngle);
  json.key("radius");
  json.number(radius);
  json.endObject();
}

GenericSurfaceModel::GenericSurfaceModel(std::string category_, std::string id_, std::string confidence_,
                                         V3Model scale_, const TransformModel &transform_,
                                         std::optional<CurveModel> curve_, const EdgesModel &edges_)
    : category(std::move(category_)),
      id(std::move(id_)),
      confidence(std::move(confidence_)),
      scale(scale_),
      transform(transform_),
      curve(curve_),
      edges(edges_) {}

void GenericSurfaceModel::encode(JsonWriter &json) const {
  json.beginObject();
  encodeMembers(json);
  json.endObject();
}

void GenericSurfaceModel::encodeMembers(JsonWriter &json) const {
  writeMember(json, "category", category);
  writeMember(json, "id", id);
  writePlacement(json, *this);
  if (curve) {
    json.key("curve");
    curve->encode(json);
  }
  json.key("edges");
  writeArray(json, edges, [&](bool edge) { json.boolean(edge); });
}

DoorModel::DoorModel(std::string id_, std::string confidence_, V3Model scale_,
                     const TransformModel &transform_, std::optional<CurveModel> curve_,
                     const EdgesModel &edges_, bool isOpen_)
    : GenericSurfaceModel("door", std::move(id_), std::move(confidence_), scale_, transform_, curve_, edges_),
      isOpen(isOpen_) {}

void DoorModel::encodeMembers(JsonWriter &json) const {
  GenericSurfaceModel::encodeMembers(json);
  json.key("isOpen");
  json.boolean(isOpen);
}

GenericObjectModel::GenericObjectModel(std::string id_, std::string category_, std::string confidence_,
                                       V3Model scale_, const TransformModel &transform_)
    : id(std::move(id_)),
      category(std::move(category_)),
      confidence(std::move(confidence_)),
      scale(scale_),
      transform(transform_) {}

void GenericObjectModel::encode(JsonWriter &json) const {
  json.beginObject();
  writeMember(json, "id", id);
  writeMember(json, "category", category);
  writePlacement(json, *this);
  json.endObject();
}

void RoomModel::encode(JsonWriter &json) const {
  json.beginObject();
  json.key("surfaces");
  writeArray(json, surfaces, [&](const auto &surface) { surface->encode(json); });
  json.key("objects");
  writeArray(json, objects, [&](const GenericObjectModel &object) { object.encode(json); });
  json.endObject();
}

}  // namespace vantorel
