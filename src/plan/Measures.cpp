#include "plan/Measures.h"

#include <algorithm>

namespace vantorel::plan {
namespace {

constexpr double kSize = 9.5;                      // of the numbers
constexpr double kFirstRow = 30, kSecondRow = 60;  // pixels from the building
constexpr double kTick = 3.5, kOvershoot = 4, kGap = 4;
constexpr std::size_t kMostRooms = 60;

Label numberLabel(double metres, Units units, bool isUpright) {
  return {.lines = {{lengthText(metres, units), kSize}}, .isUpright = isUpright};
}

void drawTick(SvgText &svg, Point at) {
  svg.line("tick", at + Point{-kTick, kTick}, at + Point{kTick, -kTick});
}

/// One side's chains. "Along" runs with the side, "across" away from the building.
class SideChains {
 public:
  SideChains(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board, Side side)
      : sheet_(sheet),
        units_(units),
        svg_(svg),
        board_(board),
        side_(side),
        points_(chainOf(built.storey, built.rooms.floors(), side)) {
    const Box box{sheet(built.bounds.low), sheet(built.bounds.high)};
    edge_ = side == Side::top      ? box.low.y
            : side == Side::bottom ? box.high.y
            : side == Side::left   ? box.low.x
                                   : box.high.x;
  }

  void draw() {
    if (points_.size() < 2) return;
    const bool isDivided = points_.size() > 2, hasTotal = side_ == Side::top || side_ == Side::left;
    if (isDivided) drawRow(points_, kFirstRow);
    if (hasTotal) drawRow({points_.front(), points_.back()}, isDivided ? kSecondRow : kFirstRow);
  }

 private:
  bool isVertical() const { return side_ == Side::left || side_ == Side::right; }
  double outwards() const { return side_ == Side::top || side_ == Side::left ? -1 : 1; }

  /// On the sheet: `along` in metres, `away` in pixels from the building.
  Point at(double along, double away) const {
    const double across = edge_ + outwards() * away;
    const Point ground = sheet_({along, along});
    return isVertical() ? Point{across, ground.y} : Point{ground.x, across};
  }

  Point start(const ChainPoint &point) const {
    const double from = point.from * (side_ == Side::bottom || side_ == Side::right ? -1 : 1);
    return isVertical() ? sheet_({from, point.at}) : sheet_({point.at, from});
  }

  void drawRow(const std::vector<ChainPoint> &points, double away) {
    const Point from = at(points.front().at, away), to = at(points.back().at, away);
    svg_.line("dimension", from, to);
    board_.block(from, to);
    for (const ChainPoint &point : points) {
      const Point step = isVertical() ? Point{outwards(), 0} : Point{0, outwards()};
      svg_.line("extension", start(point) + step * kGap, at(point.at, away) + step * kOvershoot);
      drawTick(svg_, at(point.at, away));
      board_.block(Box::around(at(point.at, away), 3, 3));
    }
    for (std::size_t i = 0; i + 1 < points.size(); ++i) drawNumber(points[i].at, points[i + 1].at, away);
  }

  /// Above its line, as people read it; the text is nearer to the building on the sides below and to the right.
  void drawNumber(double from, double to, double away) {
    Label label = numberLabel(to - from, units_, isVertical());
    const double row = label.lines[0].size * (Label::kAscent + Label::kDescent) + 1;
    const double first = outwards() < 0 ? row / 2 + 1.5 : -row / 2 - 1.5;
    const bool fits = label.width() + 4 <= (to - from) * sheet_.pixelsPerMetre;
    const double farther = outwards() < 0 ? first + row : row / 2 + 4;
    for (const double offset : {first, farther}) {
      if (!fits && offset == first) continue;
      label.centre = at((from + to) / 2, away + offset);
      if (!board_.isFree(label.box())) continue;
      svg_.label("measure", label);
      return board_.block(label.box().grown(1.5));
    }
  }

  const Sheet &sheet_;
  Units units_;
  SvgText &svg_;
  Board &board_;
  Side side_;
  std::vector<ChainPoint> points_;
  double edge_;
};

/// A clear size on the sheet.
struct ClearLine {
  Point from, to;
  Label label;
  std::size_t space;
};

/// Looks for a line across a room that is long and crosses little.
class ClearSizeSearch {
 public:
  ClearSizeSearch(const BuiltStorey &built, const Sheet &sheet, Units units, const Board &board,
                  const std::vector<ClearLine> &others, bool isVertical)
      : built_(built),
        sheet_(sheet),
        units_(units),
        board_(board),
        others_(others),
        isVertical_(isVertical) {}

  void lookIn(std::size_t area) {
    area_ = area;
    constexpr int kSteps = 40;
    constexpr double kStep = 12;  // pixels
    for (int i = -kSteps; i <= kSteps; ++i) {
      const double offset = i * kStep / sheet_.pixelsPerMetre;
      const Point anchor = built_.rooms.areas()[area].centre;
      const Point point = anchor + (isVertical_ ? Point{offset, 0} : Point{0, offset});
      if (built_.rooms.isIn(area, point)) tryLine(point);
    }
  }

  std::optional<ClearLine> best;

 private:
  std::size_t space() const { return built_.rooms.areas()[area_].space; }

  /// Whether the same space has a line with the same two ends already.
  bool isRepeated(const ClearSize &size) const {
    const auto place = [this](Point p) { return isVertical_ ? p.y : p.x; };
    return std::ranges::any_of(others_, [&](const ClearLine &other) {
      return other.space == space() && other.label.isUpright == isVertical_ &&
             std::abs(place(other.from) - place(sheet_(size.from))) < 10 &&
             std::abs(place(other.to) - place(sheet_(size.to))) < 10;
    });
  }

  bool crossesLine(const Box &box) const {
    return std::ranges::any_of(others_, [&](const ClearLine &other) {
      return edgeMeets({other.from, other.to}, box);
    });
  }

  /// How much the line has below it.
  double crossed(Point from, Point to) const {
    constexpr int kSteps = 24;
    double sum = 0;
    for (int i = 1; i < kSteps; ++i)
      sum += board_.cost(Box::around(from + (to - from) * (static_cast<double>(i) / kSteps), 8, 8));
    return 8 * sum / kSteps;
  }

  void tryLine(Point point) {
    const auto size = clearSize(built_.barriers, point, isVertical_);
    const auto across = clearSize(built_.barriers, point, !isVertical_);
    if (!size || !across || !size->isSquare || isRepeated(*size)) return;
    if (!built_.rooms.isInSpace(area_, size->from, size->to)) return;
    const Point from = sheet_(size->from), to = sheet_(size->to), inset = unit(to - from) * 2;
    Box line;
    line.add(from + inset);
    line.add(to - inset);
    if (!board_.isFree(line.grown(0.6))) return;
    const double toWall =
        std::min(length(point - across->from), length(point - across->to)) * sheet_.pixelsPerMetre;
    if (toWall < 12) return;
    const double cost = crossed(from, to) + 0.01 * std::abs(toWall - 26) - 0.02 * length(to - from);
    tryNumbers(from, to, length(size->to - size->from), cost);
  }

  void tryNumbers(Point from, Point to, double metres, double lineCost) {
    Label label = numberLabel(metres, units_, isVertical_);
    if (label.width() + 12 > length(to - from)) return;
    for (const double part : {0.5, 0.35, 0.65, 0.2, 0.8}) {
      label.centre = from + (to - from) * part + (isVertical_ ? Point{-6.5, 0} : Point{0, -6.5});
      const double cost = lineCost + std::abs(part - 0.5) + 3 * board_.cost(label.box());
      if (cost >= least_ || !board_.isFree(label.box()) || crossesLine(label.box())) continue;
      best = ClearLine{from, to, label, space()};
      least_ = cost;
    }
  }

  const BuiltStorey &built_;
  const Sheet &sheet_;
  Units units_;
  const Board &board_;
  const std::vector<ClearLine> &others_;
  bool isVertical_;
  std::size_t area_ = 0;
  double least_ = std::numeric_limits<double>::infinity();
};

}  // namespace

void drawChains(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board) {
  for (const Side side : {Side::top, Side::left, Side::bottom, Side::right})
    SideChains(built, sheet, units, svg, board, side).draw();
}

void drawClearSizes(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board) {
  std::vector<ClearLine> lines;
  const std::size_t count = std::min(built.rooms.areas().size(), kMostRooms);
  for (std::size_t area = 0; area < count; ++area)
    for (const bool isVertical : {false, true}) {
      ClearSizeSearch search(built, sheet, units, board, lines, isVertical);
      search.lookIn(area);
      if (!search.best) continue;
      lines.push_back(*search.best);
      board.block(lines.back().label.box().grown(1.5));
    }
  for (const auto &[from, to, label, space] : lines) {
    svg.line("dimension", from, to);
    drawTick(svg, from);
    drawTick(svg, to);
    svg.label("measure", label);
    board.block(from, to);
  }
}

}  // namespace vantorel::plan
