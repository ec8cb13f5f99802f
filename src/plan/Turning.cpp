#include "plan/Turning.h"

namespace vantorel::plan {
namespace {

/// As complex numbers.
Point product(Point a, Point b) { return {a.x * b.x - a.y * b.y, a.x * b.y + a.y * b.x}; }

/// Of length 1, with half the angle, which is at most a right one.
Point halved(Point a) {
  const double y = std::sqrt(std::fmax((1 - a.x) / 2, 0));
  return {std::sqrt(std::fmax((1 + a.x) / 2, 0)), a.y < 0 ? -y : y};
}

bool isSane(double value) { return std::abs(value) < 1e9; }

template <typename Element>
Point eastOf(const Element &element) {
  return {element.transform.at(0, 0), element.transform.at(0, 2)};
}

/// The sum of all directions, times four so that opposite and right-angled ones agree, by length.
template <typename Elements>
Point sumOfDirections(const Elements &elements) {
  Point sum;
  for (const auto &element : elements) {
    const Point east = unit(eastOf(element)), twice = product(east, east);
    const double weight = std::abs(element.dimensions.x);
    if (isSane(weight) && isSane(east.x) && isSane(east.y)) sum = sum + product(twice, twice) * weight;
  }
  return sum;
}

template <typename Elements>
void addPlaces(Box &box, const Elements &elements, const Turning &turning) {
  for (const auto &element : elements) {
    const Point place{element.transform.at(3, 0), element.transform.at(3, 2)};
    const Point half = eastOf(element) * (element.dimensions.x / 2.0);
    if (!isSane(length(place)) || !isSane(length(half))) continue;
    box.add(turning(place + half));
    box.add(turning(place - half));
  }
}

}  // namespace

Turning turningOf(const RoomDocument &document) {
  Point sum = sumOfDirections(document.walls);
  if (length(sum) < 1e-6) sum = sumOfDirections(document.objects);
  Turning turning;
  if (length(sum) >= 1e-6) {
    const Point skew = halved(halved(unit(sum)));
    turning.east = {skew.x, -skew.y};
  }
  Box box;
  addPlaces(box, document.walls, turning);
  addPlaces(box, document.objects, turning);
  if (box.height() > box.width() * 1.02)  // the quarter turn that keeps the plan nearer to the world
    turning.east = turned(turning.east) * (turning.east.y > 0 ? -1 : 1);
  return turning;
}

}  // namespace vantorel::plan
