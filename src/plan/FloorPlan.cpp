#include "plan/FloorPlan.h"

#include "plan/Measures.h"
#include "plan/Names.h"

#include <algorithm>
#include <list>

namespace vantorel::plan {
namespace {

// Pixels.
constexpr double kMostWide = 1000, kMostHigh = 780, kLeastWide = 340, kBetween = 24, kEdge = 24;
constexpr double kCaptionSize = 14, kCaptionHeight = 34, kLegendSize = 9.5, kLegendRow = 15,
                 kFooterHeight = 56;
constexpr double kBarHeight = 5, kLongestBar = 330;

void requirePossible(const RoomDocument &room) {
  const std::size_t elements = room.walls.size() + room.doors.size() + room.windows.size() +
                               room.openings.size() + room.objects.size() +
                               (room.floors ? room.floors->size() : 0);
  const auto require = [](std::size_t count, std::size_t most, const std::string &what) {
    if (count > most)
      throw PlanError("there are " + std::to_string(count) + ' ' + what + ", more than a plan can show (" +
                      std::to_string(most) + ')');
  };
  require(elements, kMostElements, "elements");
  require(room.sections ? room.sections->size() : 0, kMostSections, "sections");
  std::size_t corners = 0;
  if (room.floors)
    for (const Surface &floor : *room.floors)
      corners += floor.polygonCorners ? floor.polygonCorners->size() : 0;
  require(corners, kMostCorners, "corners of floors");
}

Label textAt(double left, double centreY, TextLine line) {
  return {.lines = {line}, .centre = {left + line.width() / 2, centreY}};
}

/// The storeys side by side on one sheet, and below them the scale.
class FloorPlan {
 public:
  FloorPlan(const RoomDocument &document, Units units) : storeys_(storeysOf(document)), units_(units) {
    for (Storey &storey : storeys_.storeys) built_.emplace_back(storey);
    double wide = 1, high = 1;
    for (const BuiltStorey &built : built_) {
      wide = std::max(wide, built.bounds.width());
      high = std::max(high, built.bounds.height());
    }
    scale_ = scaleFor(wide, high, kMostWide, kMostHigh, units);
    storeyHeight_ = high * scale_.pixelsPerMetre + kNearMargin + kFarMargin;
  }

  std::string write(std::string_view title) {
    double width = 2 * kEdge - kBetween;
    for (const BuiltStorey &built : built_) width += widthOf(built) + kBetween;
    // The legends' height is known once all labels have their place.
    SvgText content;
    double left = kEdge, lowest = 0;
    for (const BuiltStorey &built : built_) {
      lowest = std::max(lowest, drawStorey(built, left, content));
      left += widthOf(built) + kBetween;
    }
    width = std::max(width, drawFooter(lowest, content) + kEdge);
    return std::move(content).finished(width, lowest + kFooterHeight, title);
  }

 private:
  double widthOf(const BuiltStorey &built) const {
    return std::max(built.bounds.width() * scale_.pixelsPerMetre + kNearMargin + kFarMargin, kLeastWide);
  }

  /// The lower edge of the storey and its legend.
  double drawStorey(const BuiltStorey &built, double left, SvgText &svg) {
    const double pixels = scale_.pixelsPerMetre, width = widthOf(built);
    const double spareX = width - kNearMargin - kFarMargin - built.bounds.width() * pixels;
    const double spareY = storeyHeight_ - kNearMargin - kFarMargin - built.bounds.height() * pixels;
    const Point low = built.bounds.isEmpty() ? Point{} : built.bounds.low;
    const Sheet sheet{pixels,
                      Point{left + kNearMargin + spareX / 2, kNearMargin + spareY / 2} - low * pixels};
    Board board({{left, 0}, {left + width, storeyHeight_}});
    Legend legend;
    svg.beginGroup(built.storey.name);
    drawBuilding(built, sheet, svg, board);
    drawRoomNames(built, sheet, units_, svg, board, legend);
    drawClearSizes(built, sheet, units_, svg, board);
    drawChains(built, sheet, units_, svg, board);
    drawFurnitureNames(built, sheet, svg, board, legend);
    const double lowest = drawLegend(legend, left, width, drawCaption(built, left + width / 2, svg), svg);
    svg.endGroup();
    return lowest;
  }

  /// The storey's name where there are several, and its area where that is not one room's.
  double drawCaption(const BuiltStorey &built, double centre, SvgText &svg) const {
    double area = 0;
    std::size_t parts = 0;
    for (const RoomArea &room : built.rooms.areas())
      if (room.squareMetres) area += *room.squareMetres, ++parts;
    std::string text = built_.size() > 1 ? built.storey.name : "";
    if (built.bounds.isEmpty())
      text = text.empty() ? "Nothing was found here" : text + ": nothing was found here";
    else if (parts > 1)
      text += (text.empty() ? "Floor area " : ", floor area ") + areaText(area, units_);
    if (text.empty()) return storeyHeight_;
    svg.label("caption", {.lines = {{text, kCaptionSize, Weight::bold}},
                          .centre = {centre, storeyHeight_ + kCaptionSize}});
    return storeyHeight_ + kCaptionHeight;
  }

  /// In as many columns as there is room for.
  static double drawLegend(const Legend &legend, double left, double width, double top, SvgText &svg) {
    const std::vector<std::string> entries = legend.entries();
    if (entries.empty()) return top;
    double widest = 0;
    for (const std::string &entry : entries) widest = std::max(widest, TextLine{entry, kLegendSize}.width());
    const double room = width - kNearMargin - kEdge, size = kLegendSize * std::min(1.0, room / widest);
    const double column = std::min(widest, room) + 18;
    const auto columns = static_cast<std::size_t>(std::max(std::floor(room / column), 1.0));
    const std::size_t rows = (entries.size() + columns - 1) / columns;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const std::size_t atColumn = i / rows, atRow = i % rows;
      svg.label("legend", textAt(left + kNearMargin + static_cast<double>(atColumn) * column,
                                 top + (static_cast<double>(atRow) + 0.5) * kLegendRow, {entries[i], size}));
    }
    return top + static_cast<double>(rows) * kLegendRow;
  }

  /// Its right edge.
  double drawFooter(double top, SvgText &svg) const {
    const std::vector<ScaleMark> marks = scaleMarks(scale_.pixelsPerMetre, kLongestBar, units_);
    const double left = kEdge + kNearMargin, y = top + 26;
    const auto place = [&](std::size_t i) { return left + marks[i].metres * scale_.pixelsPerMetre; };
    for (std::size_t i = 0; i + 1 < marks.size(); ++i)
      svg.rectangle(i % 2 == 0 ? "ink" : "edge", {{place(i), y}, {place(i + 1), y + kBarHeight}});
    for (std::size_t i = 0; i < marks.size(); ++i)
      svg.label("measure", {.lines = {{marks[i].text, kLegendSize}}, .centre = {place(i), y - 8}});
    std::string text =
        scale_.name + (units_ == Units::feet ? ", lengths in feet and inches" : ", lengths in metres");
    if (storeys_.leftOut > 0)
      text += "; without " + std::to_string(storeys_.leftOut) +
              (storeys_.leftOut == 1 ? " element" : " elements") + " of no sensible size or place";
    const Label label = textAt(place(marks.size() - 1) + 30, y + kBarHeight / 2, {text, kLegendSize});
    svg.label("measure", label);
    return label.box().high.x;
  }

  Storeys storeys_;
  Units units_;
  std::list<BuiltStorey> built_;
  Scale scale_;
  double storeyHeight_;
};

}  // namespace

std::string writeFloorPlan(const RoomDocument &document, Units units, std::string_view title) {
  requirePossible(document);
  return FloorPlan(document, units).write(title);
}

}  // namespace vantorel::plan
