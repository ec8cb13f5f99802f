#include "rooms/RoomWriter.h"

#include "base/JsonWriter.h"
#include "rooms/StructureDocument.h"

namespace vantorel {
namespace {

/// Writes a room's values; the keys of each object stand in sorted order.
class RoomValues {
 public:
  explicit RoomValues(JsonWriter &json) : json_(json) {}

  void write(const RoomDocument &room, const std::string *coreModel);
  void write(const StructureDocument &structure);

 private:
  void write(float value) { json_.number(value); }
  void write(std::int64_t value) { json_.number(value); }
  void write(const Uuid &uuid) { json_.escapedString(uuid.text()); }
  void write(const Float3 &vector);
  void write(const Float4x4 &matrix) { writeArray(matrix.elements); }
  void write(const std::array<float, 2> &point) { writeArray(point); }
  void write(const EnumCase &value);
  void write(const Curve::Angle &angle);
  void write(const Curve &curve);
  void write(const std::vector<std::pair<std::string, std::string>> &attributes);
  void write(const Surface &surface);
  void write(const RoomObject &object);
  void write(const Section &section);
  void write(const std::shared_ptr<const RoomDocument> &room) { write(*room, room->coreModel.get()); }

  template <typename T>
  void write(const std::vector<T> &values) {
    writeArray(values);
  }
  template <typename T>
  void write(const std::optional<T> &value) {
    value ? write(*value) : json_.null();
  }

  void writePayload(const EnumCase &value);
  template <typename Range>
  void writeArray(const Range &values);
  template <typename T>
  void member(std::string_view key, const T &value);
  /// Nothing where the key is absent.
  template <typename T>
  void optional(std::string_view key, const std::optional<T> &value);

  JsonWriter &json_;
};

template <typename Range>
void RoomValues::writeArray(const Range &values) {
  json_.beginArray();
  for (const auto &value : values) write(value);
  json_.endArray();
}

template <typename T>
void RoomValues::member(std::string_view key, const T &value) {
  json_.key(key);
  write(value);
}

template <typename T>
void RoomValues::optional(std::string_view key, const std::optional<T> &value) {
  if (value) member(key, *value);
}

void RoomValues::write(const Float3 &vector) { writeArray(std::array{vector.x, vector.y, vector.z}); }

void RoomValues::write(const EnumCase &value) {
  json_.beginObject();
  json_.key(value.name);
  writePayload(value);
  json_.endObject();
}

void RoomValues::writePayload(const EnumCase &value) {
  if (!value.payload.empty()) return json_.rawValue(value.payload);
  json_.beginObject();
  if (value.isOpen) {
    json_.key("isOpen");
    json_.boolean(*value.isOpen);
  }
  json_.endObject();
}

void RoomValues::write(const Curve::Angle &angle) {
  json_.beginObject();
  json_.key("unit");
  json_.beginObject();
  json_.key("converter");
  json_.beginObject();
  json_.key("coefficient");
  json_.number(angle.coefficient);
  json_.key("constant");
  json_.number(angle.constant);
  json_.endObject();
  json_.key("symbol");
  json_.string(angle.symbol);
  json_.endObject();
  json_.key("value");
  json_.number(angle.value);
  json_.endObject();
}

void RoomValues::write(const Curve &curve) {
  json_.beginObject();
  optional("center", curve.center);
  member("endAngle", curve.endAngle);
  member("radius", curve.radius);
  member("startAngle", curve.startAngle);
  json_.endObject();
}

void RoomValues::write(const std::vector<std::pair<std::string, std::string>> &attributes) {
  json_.beginObject();
  for (const auto &[type, value] : attributes) {
    json_.key(type);
    json_.string(value);
  }
  json_.endObject();
}

void RoomValues::write(const Surface &surface) {
  json_.beginObject();
  member("category", surface.category);
  optional("completedEdges", surface.completedEdges);
  member("confidence", surface.confidence);
  optional("curve", surface.curve);
  member("dimensions", surface.dimensions);
  member("identifier", surface.identifier);
  optional("parentIdentifier", surface.parentIdentifier);
  optional("polygonCorners", surface.polygonCorners);
  optional("story", surface.story);
  member("transform", surface.transform);
  json_.endObject();
}

void RoomValues::write(const RoomObject &object) {
  json_.beginObject();
  optional("attributes", object.attributes);
  member("category", object.category);
  member("confidence", object.confidence);
  member("dimensions", object.dimensions);
  member("identifier", object.identifier);
  optional("parentIdentifier", object.parentIdentifier);
  optional("story", object.story);
  member("transform", object.transform);
  json_.endObject();
}

void RoomValues::write(const Section &section) {
  json_.beginObject();
  member("center", section.center);
  json_.key("label");
  json_.string(section.label);
  member("story", section.story);
  json_.endObject();
}

void RoomValues::write(const RoomDocument &room, const std::string *coreModel) {
  json_.beginObject();
  if (coreModel) {
    json_.key("coreModel");
    json_.escapedString(*coreModel);
  }
  member("doors", room.doors);
  optional("floors", room.floors);
  optional("identifier", room.identifier);
  member("objects", room.objects);
  member("openings", room.openings);
  optional("referenceOriginTransform", room.referenceOriginTransform);
  optional("sections", room.sections);
  optional("story", room.story);
  member("version", room.version);
  member("walls", room.walls);
  member("windows", room.windows);
  json_.endObject();
}

void RoomValues::write(const StructureDocument &structure) {
  const RoomDocument &elements = structure.elements;
  json_.beginObject();
  member("doors", elements.doors);
  optional("floors", elements.floors);
  member("objects", elements.objects);
  member("openings", elements.openings);
  member("rooms", structure.rooms);
  optional("sections", elements.sections);
  member("version", elements.version);
  member("walls", elements.walls);
  member("windows", elements.windows);
  json_.endObject();
}

/// An estimate of the text's length; a surface of an iPhone takes 1.0 to 1.1 KB.
std::size_t expectedSize(const RoomDocument &room) {
  constexpr std::size_t kItem = 1200, kRest = 4096;
  std::size_t items = room.walls.size() + room.doors.size() + room.windows.size() + room.openings.size() +
                      room.objects.size() + (room.floors ? room.floors->size() : 0);
  return kRest + items * kItem + (room.coreModel ? room.coreModel->size() : 0);
}

}  // namespace

std::string writeRoom(const RoomDocument &room, JsonStyle style) {
  std::string text;
  text.reserve(expectedSize(room));
  JsonWriter json(text, style);
  RoomValues(json).write(room, room.coreModel.get());
  return text;
}

std::string writeStructure(const StructureDocument &structure) {
  std::size_t size = expectedSize(structure.elements);
  for (const auto &room : structure.rooms) size += expectedSize(*room);
  std::string text;
  text.reserve(size);
  JsonWriter json(text);
  RoomValues(json).write(structure);
  return text;
}

std::string writeVisibleValues(const RoomDocument &room) {
  std::string text;
  JsonWriter json(text, JsonStyle::compact);
  RoomValues(json).write(room, nullptr);
  return text;
}

}  // namespace vantorel
