#pragma once

#include "plan/Plane.h"

namespace vantorel::plan {

/// The line along which a wall runs, straight or an arc: its face to the room. Depth goes from there into the
/// wall. Places along it go from 0 to length(); straight lines go on beyond.
class Track {
 public:
  /// From `from` to `to`; `back` is a direction into the wall.
  static Track straight(Point from, Point to, Point back);
  /// Around `centre` from `from`, by so many radians, clockwise on paper when positive.
  static Track arc(Point centre, Point from, double radians, Point back);

  double length() const { return length_; }
  bool isStraight() const { return turn_ == 0; }
  Point at(double along, double depth = 0) const;
  /// Of length 1.
  Point direction(double along) const;
  Point back(double along) const { return turned(direction(along)) * side_; }
  /// Where the point's foot is.
  double along(Point point) const;
  double depth(Point point) const;

  // For an arc:
  double radius(double depth) const { return radius_ + outward_ * depth; }
  double radians(double from, double to) const { return turn_ * (to - from) / length_; }

  /// At this depth from one place to the other, an arc as a chain of chords.
  Polygon line(double from, double to, double depth) const;

 private:
  Point start_, direction_;  // an arc's start as seen from its centre
  Point centre_;
  double length_ = 0, radius_ = 0, turn_ = 0;
  double side_ = 1;     // whether the wall lies clockwise of its direction
  double outward_ = 1;  // whether an arc's wall lies away from its centre
};

/// A piece of a wall: its inner face from one place to another, its outer face at `depth`, which may be
/// longer or shorter for a mitred corner.
struct Band {
  const Track *track;
  double from, to, depth;
  double outerFrom = from, outerTo = to;
  Polygon polygon() const;
};

}  // namespace vantorel::plan
