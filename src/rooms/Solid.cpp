#include "rooms/Solid.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace vantorel {
namespace {

struct Vector {
  double x, y, z;
};

Vector operator-(const MicroPoint &to, const MicroPoint &from) {
  return {double(to.x) - from.x, double(to.y) - from.y, double(to.z) - from.z};
}

Float3 normalOf(const MicroPoint &corner, const MicroPoint &next, const MicroPoint &last) {
  const Vector a = next - corner, b = last - corner;
  const Vector n{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
  const double length = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
  // Adding zero leaves no negative zero.
  return {float(n.x / length + 0), float(n.y / length + 0), float(n.z / length + 0)};
}

class SolidBuilder {
 public:
  SolidBuilder(const Strips &strips, std::span<const Column> columns) : strips_(strips), columns_(columns) {}

  Mesh build() && {
    constexpr std::size_t kPointsPerStrip = 24, kTrianglesPerStrip = 16;
    mesh_.points.reserve(kPointsPerStrip * strips_.count());
    mesh_.triangles.reserve(kTrianglesPerStrip * strips_.count());
    strips_.stepsAt(0, left_);
    addSides(0, left_);
    for (std::size_t i = 0; i < strips_.count(); ++i) {
      strips_.stepsAt(i + 1, right_);
      addPieces(i);
      addSides(i + 1, right_);
      left_.swap(right_);
    }
    return std::move(mesh_);
  }

 private:
  MicroPoint front(std::size_t border, Lattice y) const {
    return {columns_[border].frontX, micrometres(y), columns_[border].frontZ};
  }
  MicroPoint back(std::size_t border, Lattice y) const {
    return {columns_[border].backX, micrometres(y), columns_[border].backZ};
  }

  void addPieces(std::size_t strip) {
    const std::span<const Piece> pieces = strips_.pieces(strip);
    for (const Piece &piece : pieces) {
      const std::span<const Step> left = steps(left_, piece.leftLow, piece.leftHigh);
      const std::span<const Step> right = steps(right_, piece.rightLow, piece.rightHigh);
      addFace(strip, left, right, &SolidBuilder::front, true);
      addFace(strip, left, right, &SolidBuilder::back, false);
      const std::size_t next = strip + 1;
      addQuad({front(strip, piece.leftHigh), front(next, piece.rightHigh), back(next, piece.rightHigh),
               back(strip, piece.leftHigh)});
      addQuad({front(next, piece.rightLow), front(strip, piece.leftLow), back(strip, piece.leftLow),
               back(next, piece.rightLow)});
    }
  }

  /// The steps on a border that a piece reaches: all of them become corners, so that its neighbours meet none
  /// of its edges half way.
  static std::span<const Step> steps(const std::vector<Step> &all, Lattice low, Lattice high) {
    const auto first = std::ranges::lower_bound(all, low, {}, &Step::y);
    const auto last = std::ranges::lower_bound(first, all.end(), high, {}, &Step::y);
    return {first, last + 1};
  }

  using Place = MicroPoint (SolidBuilder::*)(std::size_t, Lattice) const;

  /// The face between two borders, one triangle for every stretch of either.
  void addFace(std::size_t strip, std::span<const Step> left, std::span<const Step> right, Place place,
               bool inFront) {
    const std::size_t first = mesh_.points.size();
    for (const Step &step : left) mesh_.points.push_back((this->*place)(strip, step.y));
    for (const Step &step : right) mesh_.points.push_back((this->*place)(strip + 1, step.y));
    const std::size_t l = first, r = first + left.size(), firstTriangle = mesh_.triangles.size();
    for (std::size_t i = 0, j = 0; i + 1 < left.size() || j + 1 < right.size();) {
      const bool up = j + 1 == right.size() || (i + 1 < left.size() && left[i + 1].y <= right[j + 1].y);
      addTriangle(l + i, r + j, up ? l + i + 1 : r + j + 1, inFront);
      ++(up ? i : j);
    }
    const auto &[a, b, c] = mesh_.triangles[firstTriangle];
    addPatch({normalOf(at(a), at(b), at(c)), left.size() + right.size()});
  }

  /// Up the border: where one side alone is filled.
  void addSides(std::size_t border, const std::vector<Step> &steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
      if (steps[i].left == steps[i].right) continue;
      const Lattice low = steps[i].y, high = steps[i + 1].y;
      std::array<MicroPoint, 4> side{front(border, low), back(border, low), back(border, high),
                                     front(border, high)};
      if (steps[i].right) std::reverse(side.begin(), side.end());
      addQuad(side);
    }
  }

  void addQuad(const std::array<MicroPoint, 4> &corners) {
    const std::size_t first = mesh_.points.size();
    mesh_.points.insert(mesh_.points.end(), corners.begin(), corners.end());
    addTriangle(first, first + 1, first + 2, true);
    addTriangle(first, first + 2, first + 3, true);
    addPatch({normalOf(corners[0], corners[1], corners[3]), corners.size()});
  }

  void addTriangle(std::size_t a, std::size_t b, std::size_t c, bool asGiven) {
    if (!asGiven) std::swap(b, c);
    mesh_.triangles.push_back({static_cast<int>(a), static_cast<int>(b), static_cast<int>(c)});
  }

  void addPatch(const Mesh::Patch &patch) { mesh_.patches.push_back(patch); }
  const MicroPoint &at(int index) const { return mesh_.points[static_cast<std::size_t>(index)]; }

  const Strips &strips_;
  std::span<const Column> columns_;
  std::vector<Step> left_, right_;
  Mesh mesh_;
};

struct BoxFace {
  std::array<int, 4> corners;  // with the high x, y and z where the bits 0, 1 and 2 are set
  Float3 normal;
};

constexpr BoxFace kBoxFaces[] = {
    {{4, 5, 7, 6}, {0, 0, 1}},  {{1, 0, 2, 3}, {0, 0, -1}}, {{6, 7, 3, 2}, {0, 1, 0}},
    {{5, 4, 0, 1}, {0, -1, 0}}, {{0, 4, 6, 2}, {-1, 0, 0}}, {{5, 1, 3, 7}, {1, 0, 0}},
};

}  // namespace

Mesh boxSolid(const LatticeRect &box, Lattice front, Lattice back) {
  const auto [low, high] = box;
  Mesh mesh;
  mesh.points.reserve(4 * std::size(kBoxFaces));
  mesh.patches.reserve(std::size(kBoxFaces));
  mesh.triangles.reserve(2 * std::size(kBoxFaces));
  for (const BoxFace &face : kBoxFaces) {
    const int first = static_cast<int>(mesh.points.size());
    for (int corner : face.corners)
      mesh.points.push_back({micrometres(corner & 1 ? high.x : low.x),
                             micrometres(corner & 2 ? high.y : low.y),
                             micrometres(corner & 4 ? front : back)});
    mesh.patches.push_back({face.normal, face.corners.size()});
    mesh.triangles.insert(mesh.triangles.end(),
                          {{first, first + 1, first + 2}, {first, first + 2, first + 3}});
  }
  return mesh;
}

Mesh solidOf(const Strips &strips, std::span<const Column> columns) {
  return SolidBuilder(strips, columns).build();
}

std::vector<Column> straightColumns(const Strips &strips, Lattice front, Lattice back) {
  std::vector<Column> columns;
  columns.reserve(strips.borders().size());
  for (Lattice x : strips.borders())
    columns.push_back({micrometres(x), micrometres(front), micrometres(x), micrometres(back)});
  return columns;
}

MeshBounds boundsOf(std::span<const MicroPoint> points) {
  MeshBounds box{points.front(), points.front()};
  for (const MicroPoint &point : points) {
    box.low = {std::min(box.low.x, point.x), std::min(box.low.y, point.y), std::min(box.low.z, point.z)};
    box.high = {std::max(box.high.x, point.x), std::max(box.high.y, point.y), std::max(box.high.z, point.z)};
  }
  return box;
}

}  // namespace vantorel
