#include "rooms/RoomMesh.h"

#include "rooms/FloorOutline.h"
#include "rooms/WallArc.h"
#include "rooms/WallDepth.h"
#include "rooms/WallOpenings.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace vantorel {
namespace {

constexpr Lattice kWallThickness = nearest(kStepsPerMetre * kWallDepth);
constexpr Lattice kPanelThickness = kWallThickness / 2;  // as RoomPlan's own models have it
constexpr double kChairUnderTable = 0.8;

Lattice halfSize(float size) { return std::max(toLattice(size / 2.0), kLeastSize / 2); }

/// A box of this size about the origin.
LatticeRect rectOf(Float3 dimensions) {
  const Lattice x = halfSize(dimensions.x), y = halfSize(dimensions.y);
  return {{-x, -y}, {x, y}};
}

bool together(const LatticePoint &a, const LatticePoint &b) {
  return std::abs(a.x - b.x) < kLeastSize && std::abs(a.y - b.y) < kLeastSize;
}

/// The corners of the surface in its plane, less those together with the one before, since sides that are all noise
/// would be moved anywhere; the box around them if there are too few or too many.
Ring outlineOf(const Surface &surface) {
  constexpr std::size_t kMostCorners = 2048;
  Ring ring;
  if (!surface.polygonCorners || surface.polygonCorners->empty())
    return ringAround(rectOf(surface.dimensions));
  for (const Float3 &corner : *surface.polygonCorners) {
    const LatticePoint point{toLattice(corner.x), toLattice(corner.y)};
    if (ring.empty() || !together(ring.back(), point)) ring.push_back(point);
  }
  while (ring.size() > 1 && together(ring.front(), ring.back())) ring.pop_back();
  if (ring.size() < 3 || ring.size() > kMostCorners) return ringAround(withSize(boundsOf(ring)));
  return ring;
}

/// Where a post ends: its front joins the next wall's, its back the crossing of both walls' backs.
Column postColumn(Lattice end, const Turn &turn) {
  const double thickness = 10 * double(kWallThickness), x = 10 * double(end);
  const auto place = [](double value) { return static_cast<std::int32_t>(nearest(value)); };
  return {place(x + thickness * turn.sine), place(-thickness * turn.cosine),
          place(x + thickness * turn.sine / (1 + turn.cosine)), place(-thickness)};
}

Mesh straightWall(const Surface &wall, std::span<const Surface *const> openings, std::optional<Turn> turn) {
  Region region{outlineOf(wall), {}, {}};
  const LatticeRect box = boundsOf(region.outline);
  region.holes = wallOpenings(wall, openings, box, nullptr);
  if (!turn && region.holes.empty() && !wall.polygonCorners) return boxSolid(box, 0, -kWallThickness);
  if (turn) region.annex = {{box.high.x, box.low.y}, {box.high.x + kLeastSize, box.high.y}};
  const Strips strips = manifoldStrips(std::move(region));
  std::vector<Column> columns = straightColumns(strips, 0, -kWallThickness);
  if (turn) columns.back() = postColumn(box.high.x, *turn);
  return solidOf(strips, columns);
}

Mesh curvedWall(const Surface &wall, std::span<const Surface *const> openings, const WallArc &arc) {
  const Lattice y = halfSize(wall.dimensions.y);
  const LatticeRect box{{0, -y}, {arc.length(), y}};
  const Strips strips =
      manifoldStrips({ringAround(box), wallOpenings(wall, openings, box, &arc), {}}, arc.joints());
  std::vector<Column> columns;
  for (Lattice along : strips.borders()) columns.push_back(arc.columnAt(along, kWallDepth));
  return solidOf(strips, columns);
}

bool isChairAtTable(const RoomObject &object, const RoomObject *parent) {
  return parent && object.category.name == "chair" && parent->category.name == "table";
}

}  // namespace

Mesh wallMesh(const Surface &wall, std::span<const Surface *const> openings, std::optional<Turn> turn) {
  const std::optional<Curve> curve = wall.curve.value_or(std::nullopt);
  const std::optional<WallArc> arc = curve ? WallArc::of(*curve) : std::nullopt;
  return arc ? curvedWall(wall, openings, *arc) : straightWall(wall, openings, turn);
}

Mesh panelMesh(const Surface &surface) { return boxSolid(rectOf(surface.dimensions), 0, -kPanelThickness); }

Mesh floorMesh(const Surface &floor) {
  const Strips strips = manifoldStrips({offsetOutward(outlineOf(floor), kWallThickness), {}, {}});
  return solidOf(strips, straightColumns(strips, 0, -kWallThickness));
}

Mesh objectMesh(const RoomObject &object, const RoomObject *parent) {
  LatticeRect box = rectOf(object.dimensions);
  const Lattice z = halfSize(object.dimensions.z);
  if (isChairAtTable(object, parent)) {
    const Lattice height = std::max(toLattice(kChairUnderTable * parent->dimensions.y), kLeastSize);
    box.high.y = std::min(box.low.y + height, box.high.y);
  }
  return boxSolid(box, z, -z);
}

}  // namespace vantorel
