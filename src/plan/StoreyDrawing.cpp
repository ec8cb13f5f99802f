#include "plan/StoreyDrawing.h"

#include "plan/Symbols.h"
#include "plan/WallSolids.h"

#include <algorithm>

namespace vantorel::plan {
namespace {

constexpr double kLeafThickness = 0.04;  // metres
constexpr double kSmall = 0.5;           // square metres of a piece that names should leave alone

const Storey &raised(Storey &storey) {
  raiseWalls(storey);
  return storey;
}

class Building {
 public:
  Building(const BuiltStorey &built, const Sheet &sheet, SvgText &svg, Board &board)
      : built_(built), storey_(built.storey), sheet_(sheet), svg_(svg), board_(board) {}

  void draw() {
    for (const Polygon &floor : built_.rooms.floors()) svg_.path("floor", path().polygon(floor));
    drawBays();
    drawFurniture();
    drawWalls();
    for (std::size_t i = 0; i < storey_.holes.size(); ++i) draw(storey_.holes[i], built_.doors[i]);
  }

 private:
  Path path() const { return Path(sheet_); }

  /// Floors end at the chord of a wall that curves outwards.
  void drawBays() {
    for (const Wall &wall : storey_.walls)
      if (!wall.track.isStraight())
        svg_.path("floor", path().along(wall.track, 0, wall.track.length(), 0).close());
  }

  void drawFurniture() {
    for (const Furniture &thing : storey_.furniture) {
      svg_.path("furniture", thing.isRound ? path().ellipse(thing.centre, thing.right, thing.front)
                                           : path().polygon(thing.outline()));
      svg_.path("detail", symbolOf(thing, sheet_));
      board_.mark(sheet_(thing.outline()), areaOf(thing.outline()) < kSmall ? 2 : 1);
    }
  }

  void drawWalls() {
    Path walls(sheet_);
    for (const Wall &wall : storey_.walls)
      for (const Band &band : wall.solid) walls.band(band);
    for (const Wall &wall : storey_.walls)
      for (const Band &band : wall.whole) board_.block(sheet_(band.polygon()));
    svg_.path("walls", walls);
  }

  void draw(const Hole &hole, const std::vector<DoorLeaf> &leaves) {
    const Polygon outline = hole.band().polygon();
    board_.block(sheet_(outline));
    svg_.path(hole.kind == Hole::Kind::window ? "frame" : "gap", path().band(hole.band()));
    switch (hole.kind) {
      case Hole::Kind::window:
        svg_.path("glass", lines(hole, {0.4, 0.6}));
        break;
      case Hole::Kind::opening:
        svg_.path("opening", lines(hole, {0, 1}));
        break;
      case Hole::Kind::door:
        leaves.empty() ? drawSliding(hole) : drawLeaves(leaves);
        break;
    }
  }

  /// Along the hole, at parts of its depth.
  Path lines(const Hole &hole, std::initializer_list<double> parts) const {
    Path path(sheet_);
    for (const double part : parts) path.along(hole.track, hole.from, hole.to, part * hole.depth);
    return path;
  }

  void drawLeaves(const std::vector<DoorLeaf> &leaves) {
    for (const DoorLeaf &leaf : leaves) {
      const Point thick = unit(leaf.latch - leaf.hinge) * std::min(kLeafThickness, leaf.width() / 4);
      svg_.path("swing", path().move(leaf.tip).arc(leaf.width(), leaf.isClockwise(), leaf.latch));
      svg_.path("leaf", path().polygon({leaf.hinge, leaf.tip, leaf.tip + thick, leaf.hinge + thick}));
      board_.mark(sheet_(leaf.swing()), 1.5);
    }
  }

  /// Two panels that overlap in the middle.
  void drawSliding(const Hole &door) {
    const double centre = (door.from + door.to) / 2, overlap = 0.04 * (door.to - door.from);
    for (const bool isFirst : {true, false}) {
      const double depth = door.depth * (isFirst ? 0.3 : 0.5);
      const double from = isFirst ? door.from : centre - overlap, to = isFirst ? centre + overlap : door.to;
      Polygon panel = door.track.line(from, to, depth);
      const Polygon back = door.track.line(to, from, depth + 0.2 * door.depth);
      panel.insert(panel.end(), back.begin(), back.end());
      svg_.path("leaf", path().polygon(panel));
    }
  }

  const BuiltStorey &built_;
  const Storey &storey_;
  const Sheet &sheet_;
  SvgText &svg_;
  Board &board_;
};

}  // namespace

BuiltStorey::BuiltStorey(Storey &from)
    : storey(raised(from)), doors(openDoors(from)), rooms(from), barriers(barriersOf(from)) {
  for (const Polygon &polygon : barriers) bounds.add(polygon);
  for (const Polygon &floor : rooms.floors()) bounds.add(floor);
  for (const Furniture &thing : storey.furniture) bounds.add(thing.outline());
  for (const LabelledPlace &section : storey.sections) bounds.add(section.centre);
  for (const auto &leaves : doors)
    for (const DoorLeaf &leaf : leaves) bounds.add(leaf.swing());
}

void drawBuilding(const BuiltStorey &built, const Sheet &sheet, SvgText &svg, Board &board) {
  Building(built, sheet, svg, board).draw();
}

}  // namespace vantorel::plan
