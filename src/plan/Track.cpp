#include "plan/Track.h"

#include <algorithm>
#include <numbers>

namespace vantorel::plan {
namespace {

Point rotated(Point a, double radians) {
  const double c = std::cos(radians), s = std::sin(radians);
  return {a.x * c - a.y * s, a.x * s + a.y * c};
}

}  // namespace

Track Track::straight(Point from, Point to, Point back) {
  Track track;
  track.start_ = from;
  track.length_ = plan::length(to - from);
  track.direction_ = unit(to - from);
  track.side_ = dot(turned(track.direction_), back) < 0 ? -1 : 1;
  return track;
}

Track Track::arc(Point centre, Point from, double radians, Point back) {
  Track track;
  track.centre_ = centre;
  track.start_ = from - centre;
  track.radius_ = plan::length(track.start_);
  track.turn_ = radians;
  track.length_ = track.radius_ * std::abs(radians);
  track.outward_ = dot(rotated(track.start_, radians / 2), back) < 0 ? -1 : 1;
  track.side_ = radians > 0 ? -track.outward_ : track.outward_;
  return track;
}

Point Track::at(double along, double depth) const {
  if (isStraight()) return start_ + direction_ * along + turned(direction_) * (side_ * depth);
  return centre_ + rotated(start_, radians(0, along)) * (radius(depth) / radius_);
}

Point Track::direction(double along) const {
  if (isStraight()) return direction_;
  return turned(rotated(unit(start_), radians(0, along))) * (turn_ > 0 ? 1 : -1);
}

double Track::along(Point point) const {
  if (isStraight()) return dot(point - start_, direction_);
  const Point ray = rotated(point - centre_, -turn_ / 2);  // the middle of the arc lies on start_
  const double fromMiddle = std::atan2(cross(start_, ray), dot(start_, ray));
  return length_ * (0.5 + fromMiddle / turn_);
}

double Track::depth(Point point) const {
  if (isStraight()) return dot(point - start_, turned(direction_)) * side_;
  return (plan::length(point - centre_) - radius_) * outward_;
}

Polygon Track::line(double from, double to, double depth) const {
  constexpr double kStep = 4 * std::numbers::pi / 180;
  const double steps =
      isStraight() ? 1 : std::clamp(std::ceil(std::abs(radians(from, to)) / kStep), 1.0, 360.0);
  Polygon points;
  for (double i = 0; i <= steps; ++i) points.push_back(at(from + (to - from) * i / steps, depth));
  return points;
}

Polygon Band::polygon() const {
  Polygon outline = track->line(from, to, 0);
  const Polygon outer = track->line(outerTo, outerFrom, depth);
  outline.insert(outline.end(), outer.begin(), outer.end());
  return outline;
}

}  // namespace vantorel::plan
