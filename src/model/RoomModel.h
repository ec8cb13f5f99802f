// The library's own small model of a scanned room: records whose one job is to be written as JSON. Immutable;
// keys are the field names, written in declaration order; nothing reads this format back.
#pragma once

#include "base/JsonWriter.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

struct V3Model {
  const float x, y, z;

  void encode(JsonWriter &json) const;
};

/// The arc of a curved surface. The angles are doubles and the radius a float, as the platform hands them
/// over.
struct CurveModel {
  const double startAngle, endAngle;  ///< the platform measurement's number, in its own unit
  const float radius;                 ///< metres

  void encode(JsonWriter &json) const;
};

/// A 4x4 placement matrix, column by column.
using TransformModel = std::array<float, 16>;
/// Completed edges, clockwise: top, right, bottom, left.
using EdgesModel = std::array<bool, 4>;

/// One wall, opening or window, and the base of a door.
class GenericSurfaceModel {
 public:
  GenericSurfaceModel(std::string category, std::string id, std::string confidence, V3Model scale,
                      const TransformModel &transform, std::optional<CurveModel> curve,
                      const EdgesModel &edges);
  virtual ~GenericSurfaceModel() = default;

  /// Writes the members into an object that is open: category first, and no "curve" for a straight surface.
  virtual void encodeMembers(JsonWriter &json) const;
  void encode(JsonWriter &json) const;

  const std::string category;    ///< "wall", "opening", "window", "door" or "unknown"
  const std::string id;          ///< upper-case hyphenated UUID
  const std::string confidence;  ///< "low", "medium", "high" or "unknown"
  const V3Model scale;           ///< width, height, depth in metres
  const TransformModel transform;
  const std::optional<CurveModel> curve;
  const EdgesModel edges;
};

/// A door: the surface's members and "isOpen", in one flat object.
class DoorModel : public GenericSurfaceModel {
 public:
  DoorModel(std::string id, std::string confidence, V3Model scale, const TransformModel &transform,
            std::optional<CurveModel> curve, const EdgesModel &edges, bool isOpen);

  void encodeMembers(JsonWriter &json) const override;

  const bool isOpen;
};

/// One piece of furniture. Here the id comes before the category.
class GenericObjectModel {
 public:
  GenericObjectModel(std::string id, std::string category, std::string confidence, V3Model scale,
                     const TransformModel &transform);

  void encode(JsonWriter &json) const;

  const std::string id, category, confidence;
  const V3Model scale;
  const TransformModel transform;
};

struct RoomModel {
  const std::vector<std::unique_ptr<const GenericSurfaceModel>>
      surfaces;  ///< walls, doors, openings, windows
  const std::vector<GenericObjectModel> objects;

  void encode(JsonWriter &json) const;
};

}  // namespace vantorel
