#include "rooms/RoomTypes.h"

#include "rooms/JsonTypes.h"

#include <algorithm>

namespace vantorel::json {

// ---- Enumeration cases ----

/// Compact: without the blanks between tokens.
static std::string withoutBlanks(std::string_view json) {
  std::string compact;
  bool inString = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    char c = json[i];
    if (!inString && (c == ' ' || c == '\t' || c == '\r' || c == '\n')) continue;
    compact += c;
    if (c == '"') inString = !inString;
    if (inString && c == '\\') compact += json[++i];
  }
  return compact;
}

static void keepPayload(JsonFrame &payload, std::string_view written) {
  if (payload.index > 0) at<EnumCase>(payload.slot.target).payload = withoutBlanks(written);
}

constexpr Field kDoorFields[] = {{"isOpen", &typeOf<bool>,
                                  [](void *door) -> void * { return &at<EnumCase>(door).isOpen.emplace(); },
                                  true}};
constexpr JsonType kDoorPayload = objectOf<kDoorFields>("an object");
constexpr JsonType kOtherPayload{.name = "an object", .member = kIgnored.member, .end = keepPayload};

static JsonSlot payloadOf(JsonFrame &object) {
  if (object.index > 0) throw JsonMismatch("expected one case, got several");
  auto &enumCase = at<EnumCase>(object.slot.target);
  enumCase.name = wellFormed(object.key);
  return {enumCase.name == "door" ? &kDoorPayload : &kOtherPayload, &enumCase};
}

static void requireCase(JsonFrame &object, std::string_view) {
  if (object.index == 0) throw JsonMismatch("expected a case such as {\"wall\":{}}, got an empty object");
}

template <>
constexpr JsonType typeOf<EnumCase>{
    .name = "a case such as {\"wall\":{}}", .member = payloadOf, .end = requireCase};

// ---- Attributes: any keys, all strings ----

using Attributes = std::vector<std::pair<std::string, std::string>>;

static JsonSlot attributeOf(JsonFrame &object) {
  auto &added = at<Attributes>(object.slot.target).emplace_back(wellFormed(object.key), "");
  return {&typeOf<std::string>, &added.second};
}

static void sortAttributes(JsonFrame &object, std::string_view) {
  auto &all = at<Attributes>(object.slot.target);
  std::ranges::stable_sort(all, {}, &Attributes::value_type::first);
  auto surplus = std::ranges::unique(all, {}, &Attributes::value_type::first);
  all.erase(surplus.begin(), surplus.end());
}

template <>
constexpr JsonType typeOf<Attributes>{.name = "an object", .member = attributeOf, .end = sortAttributes};

// ---- Curves, with Foundation's form of a measurement:
// {"unit":{"converter":{"coefficient":57.3,"constant":0},"symbol":"rad"},"value":0.5} ----

using Angle = Curve::Angle;

static constexpr void *itself(void *object) { return object; }

constexpr Field kConverterFields[] = {field<Angle, &Angle::coefficient>("coefficient"),
                                      field<Angle, &Angle::constant>("constant")};
constexpr JsonType kConverter = objectOf<kConverterFields>("an object");
constexpr Field kUnitFields[] = {{"converter", &kConverter, itself, true},
                                 field<Angle, &Angle::symbol>("symbol")};
constexpr JsonType kUnit = objectOf<kUnitFields>("an object");
constexpr Field kAngleFields[] = {{"unit", &kUnit, itself, true}, field<Angle, &Angle::value>("value")};
template <>
constexpr JsonType typeOf<Angle> = objectOf<kAngleFields>("an angle");

constexpr Field kCurveFields[] = {
    field<Curve, &Curve::center>("center"), field<Curve, &Curve::endAngle>("endAngle"),
    field<Curve, &Curve::radius>("radius"), field<Curve, &Curve::startAngle>("startAngle")};
template <>
constexpr JsonType typeOf<Curve> = objectOf<kCurveFields>("a curve");

// ---- The room ----

constexpr Field kSurfaceFields[] = {
    field<Surface, &Surface::category>("category"),
    field<Surface, &Surface::completedEdges>("completedEdges"),
    field<Surface, &Surface::confidence>("confidence"),
    field<Surface, &Surface::curve>("curve"),
    field<Surface, &Surface::dimensions>("dimensions"),
    field<Surface, &Surface::identifier>("identifier"),
    field<Surface, &Surface::parentIdentifier>("parentIdentifier"),
    field<Surface, &Surface::polygonCorners>("polygonCorners"),
    field<Surface, &Surface::story>("story"),
    field<Surface, &Surface::transform>("transform"),
};
template <>
constexpr JsonType typeOf<Surface> = objectOf<kSurfaceFields>("a surface");

constexpr Field kObjectFields[] = {
    field<RoomObject, &RoomObject::attributes>("attributes"),
    field<RoomObject, &RoomObject::category>("category"),
    field<RoomObject, &RoomObject::confidence>("confidence"),
    field<RoomObject, &RoomObject::dimensions>("dimensions"),
    field<RoomObject, &RoomObject::identifier>("identifier"),
    field<RoomObject, &RoomObject::parentIdentifier>("parentIdentifier"),
    field<RoomObject, &RoomObject::story>("story"),
    field<RoomObject, &RoomObject::transform>("transform"),
};
template <>
constexpr JsonType typeOf<RoomObject> = objectOf<kObjectFields>("an object");

constexpr Field kSectionFields[] = {
    field<Section, &Section::center>("center"),
    field<Section, &Section::label>("label"),
    field<Section, &Section::story>("story"),
};
template <>
constexpr JsonType typeOf<Section> = objectOf<kSectionFields>("a section");

[[noreturn]] static void refuseStructure() {
  throw JsonMismatch("this is a structure of several rooms; its rooms can be read one by one");
}

/// The key that only a structure has.
constexpr JsonType kRooms{.name = "no rooms",
                          .inside = [](void *) -> JsonSlot { refuseStructure(); },
                          .null = [](void *) { refuseStructure(); }};

constexpr Field kElementFields[] = {
    field<RoomReading, &RoomReading::writtenCoreModel>("coreModel"),
    field<RoomReading, &RoomReading::doors>("doors"),
    field<RoomReading, &RoomReading::floors>("floors"),
    field<RoomReading, &RoomReading::identifier>("identifier"),
    field<RoomReading, &RoomReading::objects>("objects"),
    field<RoomReading, &RoomReading::openings>("openings"),
    field<RoomReading, &RoomReading::referenceOriginTransform>("referenceOriginTransform"),
    field<RoomReading, &RoomReading::sections>("sections"),
    field<RoomReading, &RoomReading::story>("story"),
    field<RoomReading, &RoomReading::version>("version"),
    field<RoomReading, &RoomReading::walls>("walls"),
    field<RoomReading, &RoomReading::windows>("windows"),
};

/// The elements' keys, and what the key of a structure's rooms means.
constexpr auto withRooms(Field rooms) {
  std::array<Field, std::size(kElementFields) + 1> fields{};
  std::copy(std::begin(kElementFields), std::end(kElementFields), fields.begin());
  fields.back() = rooms;
  return fields;
}

constexpr auto kRoomFields = withRooms({"rooms", &kRooms, itself, false});
constexpr JsonType kRoom = objectOf<kRoomFields>("a room, which is an object");
template <>
constexpr JsonType typeOf<RoomReading> = kRoom;

constexpr auto kScanFields = withRooms(
    {"rooms", &typeOf<std::optional<std::vector<RoomReading>>>,
     [](void *scan) -> void * { return &static_cast<ScanReading &>(at<RoomReading>(scan)).rooms; }, false});
constexpr JsonType kScan = objectOf<kScanFields>("a scan, which is an object");

}  // namespace vantorel::json

namespace vantorel {

JsonSlot slotOf(RoomReading &room) { return {&json::kRoom, &room}; }
JsonSlot slotOf(ScanReading &scan) { return {&json::kScan, static_cast<RoomReading *>(&scan)}; }

}  // namespace vantorel
