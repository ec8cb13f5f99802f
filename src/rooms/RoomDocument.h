// A captured room's values as its JSON text holds them: three generations of one format
// (docs/room-documents.md).
#pragma once

#include "base/Geometry.h"
#include "base/Uuid.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantorel {

/// An enumeration case as Swift codes it: {"door":{"isOpen":true}}. Cases of later systems keep their name
/// and payload.
struct EnumCase {
  std::string name;
  std::optional<bool> isOpen;  ///< the payload of "door"
  std::string payload;         ///< any other non-empty payload: the JSON of its object, compact
  bool operator==(const EnumCase &) const = default;
};

/// A key that may be absent or null. Outer: the key is there. Inner: its value is not null.
template <typename T>
using Nullable = std::optional<std::optional<T>>;

/// The arc of a curved surface. Angles keep their number and unit text; no real file with a curve is known,
/// so the form is Foundation's for a measurement.
struct Curve {
  struct Angle {
    double value = 0;
    std::string symbol = "rad";
    double coefficient = 57.29577951308232;  ///< degrees in one unit
    double constant = 0;
    bool operator==(const Angle &) const = default;
  };
  Angle startAngle, endAngle;
  float radius = 0;                              ///< metres
  std::optional<std::array<float, 2>> center{};  ///< local x and z, metres
  bool operator==(const Curve &) const = default;
};

/// An item of walls, doors, windows, openings or floors. Lengths in metres.
struct Surface {
  Uuid identifier;
  EnumCase category, confidence;
  Float3 dimensions;
  Float4x4 transform;
  std::optional<std::vector<EnumCase>> completedEdges;
  Nullable<Curve> curve;
  Nullable<Uuid> parentIdentifier;
  std::optional<std::vector<Float3>> polygonCorners;
  std::optional<std::int64_t> story;
  bool operator==(const Surface &) const = default;
};

/// An item of objects.
struct RoomObject {
  Uuid identifier;
  EnumCase category, confidence;
  Float3 dimensions;
  Float4x4 transform;
  std::optional<std::vector<std::pair<std::string, std::string>>> attributes;  ///< sorted by key
  Nullable<Uuid> parentIdentifier;
  std::optional<std::int64_t> story;
  bool operator==(const RoomObject &) const = default;
};

struct Section {
  Float3 center;
  std::string label;
  std::int64_t story = 0;
  bool operator==(const Section &) const = default;
};

struct RoomDocument {
  std::int64_t version = 2;
  std::optional<Uuid> identifier;  ///< iPhones write none; see identifierOf
  std::vector<Surface> walls, doors, windows, openings;
  std::vector<RoomObject> objects;
  std::optional<std::vector<Surface>> floors;
  std::optional<std::vector<Section>> sections;
  std::optional<std::int64_t> story;
  std::optional<Float4x4> referenceOriginTransform;
  /// The platform's opaque scan data: Base64 with the escapes it was written with. Shared, never copied.
  /// Null: no key.
  std::shared_ptr<const std::string> coreModel;

  /// No wall, door, window, opening or object; floors alone do not count.
  bool isEmpty() const;
};

/// The document's own identifier, else one derived from its visible values (a version 8 UUID): equal content,
/// equal identifier, on every machine. coreModel does not take part. Throws JsonEncodingError for a NaN or
/// infinite number.
Uuid identifierOf(const RoomDocument &room);

}  // namespace vantorel
