#pragma once

#include "plan/Storey.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel::plan {

/// A part of a storey that has a name or a size.
struct RoomArea {
  Point centre;
  std::string name;                      ///< empty: nobody named it
  std::optional<double> squareMetres{};  ///< nothing where there is no floor
  std::size_t space = 0;                 ///< areas of one space have the same number
  bool isShare = false;                  ///< of an open space with several names, divided by the nearest name
};

/// The areas of a storey whose walls were raised. A floor with one section has its polygon's area; otherwise
/// walls, with their doors, windows and openings closed, divide the floors, counted in cells of at least 2 cm. A
/// storey without a floor has one where its walls form a loop.
class RoomAreas {
 public:
  explicit RoomAreas(const Storey &storey);

  const std::vector<RoomArea> &areas() const { return areas_; }
  const std::vector<Polygon> &floors() const { return floors_; }
  /// Whether the point lies in that area; true everywhere when it has no floor.
  bool isIn(std::size_t area, Point point) const;
  /// Whether all of the line lies in the space of that area, looked at in steps; its ends do not count.
  bool isInSpace(std::size_t area, Point from, Point to) const;

 private:
  static constexpr int kOutside = -2, kUnclaimed = -1;

  using Component = std::vector<std::size_t>;  // numbers of cells

  void layOut(const Storey &storey);
  void fill(const Polygon &polygon, int value);
  std::optional<std::size_t> cellAt(Point point) const;
  std::optional<std::size_t> freeCellNear(Point point) const;
  Point placeOf(std::size_t cell) const;
  Component componentOf(std::size_t cell, std::vector<bool> &seen) const;
  double areaOf(const Component &component) const;
  Point middleOf(const Component &component) const;
  void claim(std::size_t space, const Component &component, const std::vector<std::size_t> &claimants);
  void nameComponents();
  void takeWholeFloors();

  std::vector<Polygon> floors_;
  std::vector<RoomArea> areas_;
  Point origin_;
  double cell_ = 1;
  std::size_t columns_ = 0, rows_ = 0;
  std::vector<int> owners_;  // of cells: an area, or one of the constants above
};

}  // namespace vantorel::plan
