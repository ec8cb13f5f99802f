#include "platform/simulated/TopView.h"

#include "rooms/WallDepth.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantorel {
namespace {

constexpr Colour kPaper{250, 249, 246}, kFloor{236, 229, 216}, kInk{52, 58, 66}, kFurniture{214, 219, 224},
    kFurnitureEdge{128, 138, 148}, kDoor{168, 96, 44}, kWindow{86, 156, 214}, kCamera{226, 74, 51},
    kSight{226, 74, 51, 0.3};

constexpr double kLeastExtent = 4;  // metres that are shown at least
constexpr double kMargin = 60, kBarHeight = 60, kSightLength = 110, kCameraRadius = 11;  // pixels
constexpr double kHalfSight = 25 * std::numbers::pi / 180;

using Polygon = std::vector<Point>;

struct Segment {
  Point from, to;
};

/// Everything in metres: the world's x and z.
struct Plan {
  std::vector<Polygon> floors{}, objects{};
  std::vector<Segment> walls, openings, windows, doors;
};

Point placed(const Float4x4 &transform, double x, double y, double z) {
  const auto row = [&](int i) {
    return transform.at(0, i) * x + transform.at(1, i) * y + transform.at(2, i) * z + transform.at(3, i);
  };
  return {row(0), row(2)};
}

Polygon outlineOf(const Surface &floor) {
  Polygon corners;
  if (floor.polygonCorners)
    for (const auto &[x, y, z] : *floor.polygonCorners) corners.push_back(placed(floor.transform, x, y, z));
  if (!corners.empty()) return corners;
  const double x = floor.dimensions.x / 2.0, y = floor.dimensions.y / 2.0;
  return {placed(floor.transform, -x, -y, 0), placed(floor.transform, x, -y, 0),
          placed(floor.transform, x, y, 0), placed(floor.transform, -x, y, 0)};
}

Polygon outlineOf(const RoomObject &object) {
  const double x = object.dimensions.x / 2.0, z = object.dimensions.z / 2.0;
  return {placed(object.transform, -x, 0, -z), placed(object.transform, x, 0, -z),
          placed(object.transform, x, 0, z), placed(object.transform, -x, 0, z)};
}

std::vector<Segment> segmentsOf(const std::vector<Surface> &surfaces) {
  std::vector<Segment> segments;
  for (const Surface &surface : surfaces) {
    const double x = surface.dimensions.x / 2.0;
    segments.push_back({placed(surface.transform, -x, 0, 0), placed(surface.transform, x, 0, 0)});
  }
  return segments;
}

Plan planOf(const RoomDocument &room) {
  Plan plan{.walls = segmentsOf(room.walls),
            .openings = segmentsOf(room.openings),
            .windows = segmentsOf(room.windows),
            .doors = segmentsOf(room.doors)};
  if (room.floors)
    for (const Surface &floor : *room.floors) plan.floors.push_back(outlineOf(floor));
  for (const RoomObject &object : room.objects) plan.objects.push_back(outlineOf(object));
  return plan;
}

Polygon pointsOf(const Plan &plan) {
  Polygon points;
  for (const auto *polygons : {&plan.floors, &plan.objects})
    for (const Polygon &polygon : *polygons) points.insert(points.end(), polygon.begin(), polygon.end());
  for (const auto *segments : {&plan.walls, &plan.openings, &plan.windows, &plan.doors})
    for (const auto &[from, to] : *segments) points.insert(points.end(), {from, to});
  return points;
}

/// Draws what is measured in metres; all `points` have a place in the picture.
class Drawing {
 public:
  Drawing(Polygon points, int width, int height) : canvas_(width, height, kPaper) {
    std::erase_if(points, [](Point p) { return !std::isfinite(p.x) || !std::isfinite(p.y); });
    if (points.empty()) points.push_back({});
    const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &Point::y);
    const double roomX = width - 2 * kMargin, roomY = height - 2 * kMargin - kBarHeight;
    scale_ = std::min(roomX / std::max(right.x - left.x, kLeastExtent),
                      roomY / std::max(bottom.y - top.y, kLeastExtent));
    middle_ = {(left.x + right.x) / 2, (top.y + bottom.y) / 2};
    centre_ = {kMargin + roomX / 2, kMargin + roomY / 2};
  }

  void draw(const Plan &plan) {
    for (const Polygon &floor : plan.floors) canvas_.fill(onCanvas(floor), kFloor);
    for (const Polygon &object : plan.objects) {
      canvas_.fill(onCanvas(object), kFurniture);
      canvas_.outline(onCanvas(object), 2, kFurnitureEdge);
    }
    const double thickness = std::max(kWallDepth * scale_, 2.0);
    for (const Segment &wall : plan.walls) drawWall(wall, thickness);
    for (const auto *gaps : {&plan.openings, &plan.windows, &plan.doors})
      for (const Segment &gap : *gaps) draw(gap, thickness + 2, kFloor);
    for (const Segment &window : plan.windows) draw(window, thickness / 2, kWindow);
    for (const Segment &door : plan.doors) draw(door, thickness / 2, kDoor);
  }

  void drawCamera(const Float4x4 &pose) {
    const Point at = onCanvas(placed(pose, 0, 0, 0));
    const double x = -pose.at(2, 0), y = -pose.at(2, 2);  // it looks along -z
    if (std::hypot(x, y) > 0) {
      const double yaw = std::atan2(y, x);
      const auto end = [&](double angle) {
        return Point{at.x + kSightLength * std::cos(angle), at.y + kSightLength * std::sin(angle)};
      };
      canvas_.fill(Polygon{at, end(yaw - kHalfSight), end(yaw + kHalfSight)}, kSight);
    }
    canvas_.disc(at, kCameraRadius, kCamera);
  }

  void drawScale() {
    const double longest = 0.4 * (canvas_.picture().width - 2 * kMargin) / scale_;
    const double unit = std::pow(10, std::floor(std::log10(longest)));
    const int parts = longest >= 5 * unit ? 5 : longest >= 2 * unit ? 2 : 1;
    const double y = canvas_.picture().height - kMargin, part = unit * scale_;
    const auto bar = [&](int from, int to, double width, Colour colour) {
      canvas_.line({kMargin + from * part, y}, {kMargin + to * part, y}, width, colour, width > 8 ? 2 : 0);
    };
    bar(0, parts, 12, kInk);
    for (int i = 1; i < parts; i += 2) bar(i, i + 1, 8, kPaper);
  }

  Picture picture() const { return canvas_.picture(); }

 private:
  Point onCanvas(Point metres) const {
    return {centre_.x + (metres.x - middle_.x) * scale_, centre_.y + (metres.y - middle_.y) * scale_};
  }

  Polygon onCanvas(Polygon polygon) const {
    for (Point &corner : polygon) corner = onCanvas(corner);
    return polygon;
  }

  void draw(const Segment &segment, double width, Colour colour) {
    canvas_.line(onCanvas(segment.from), onCanvas(segment.to), width, colour);
  }

  /// With round ends, so that walls close a corner of any angle.
  void drawWall(const Segment &wall, double thickness) {
    draw(wall, thickness, kInk);
    for (const Point end : {wall.from, wall.to}) canvas_.disc(onCanvas(end), thickness / 2, kInk);
  }

  Canvas canvas_;
  double scale_;           // pixels in a metre
  Point middle_, centre_;  // the same point in metres and in pixels
};

}  // namespace

Picture topView(const RoomDocument *room, const std::optional<Float4x4> &camera, int width, int height) {
  const Plan plan = room ? planOf(*room) : Plan{};
  Polygon points = pointsOf(plan);
  if (camera) points.push_back(placed(*camera, 0, 0, 0));
  Drawing drawing(std::move(points), width, height);
  drawing.draw(plan);
  if (camera) drawing.drawCamera(*camera);
  drawing.drawScale();
  return drawing.picture();
}

}  // namespace vantorel
