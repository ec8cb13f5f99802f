#pragma once

#include "base/Geometry.h"
#include "base/Uuid.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// A room's values as the platform's API gives them. `unknown` stands for every case of a later system.
struct CapturedRoomContent {
  enum class Confidence { unknown, low, medium, high };
  enum class SurfaceCategory { unknown, wall, opening, window, door };
  /// In the order of the platform's declaration.
  enum class ObjectCategory {
    unknown,
    storage,
    refrigerator,
    stove,
    bed,
    sink,
    washerDryer,
    toilet,
    bathtub,
    oven,
    dishwasher,
    table,
    sofa,
    chair,
    fireplace,
    television,
    stairs,
  };

  struct Curve {
    double startAngle = 0, endAngle = 0;  ///< the measurement's number, in its own unit
    float radius = 0;                     ///< metres
  };
  struct Edges {
    bool top = false, right = false, bottom = false, left = false;
  };
  struct Surface {
    Uuid identifier;
    SurfaceCategory category = SurfaceCategory::unknown;
    bool isOpen = false;  ///< doors only
    Confidence confidence = Confidence::unknown;
    Float3 dimensions;  ///< width, height, depth in metres
    Float4x4 transform;
    std::optional<Curve> curve;
    Edges completedEdges;
  };
  struct Object {
    Uuid identifier;
    ObjectCategory category = ObjectCategory::unknown;
    Confidence confidence = Confidence::unknown;
    Float3 dimensions;
    Float4x4 transform;
  };

  std::vector<Surface> walls, doors, openings, windows;
  std::vector<Object> objects;
};

/// One captured room, immutable. The core never writes the platform's JSON or USDZ: it asks the room. Any
/// thread.
class CapturedRoom {
 public:
  virtual ~CapturedRoom() = default;
  /// No object, door, opening, wall or window. Floors do not count.
  virtual bool isEmpty() const = 0;
  virtual Uuid identifier() const = 0;
  /// The platform's own encoding, UTF-8, pretty-printed with sorted keys. Throws PlatformError.
  virtual std::string jsonText() const = 0;
  virtual CapturedRoomContent content() const = 0;
  /// Exports the mesh model to a file ending in ".usdz". Throws PlatformError.
  virtual void writeUsdz(const std::string &path) const = 0;
};

}  // namespace vantorel
