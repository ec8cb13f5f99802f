#include "plan/Names.h"

#include <algorithm>
#include <numeric>

namespace vantorel::plan {
namespace {

constexpr double kRoomSize = 14, kAreaSize = 11.5, kThingSize = 9.5, kNumberSize = 9;
constexpr std::size_t kMostWithoutPlace = 100;  // pieces, after which no more numbers are tried
constexpr double kMostThingCost = 3.2;          // of a name before a number is better

std::string areaOf(const RoomArea &room, Units units) {
  return room.squareMetres ? (room.isShare ? "~" : "") + areaText(*room.squareMetres, units) : "";
}

Label roomLabel(const RoomArea &room, Units units, double scale, bool isUpright) {
  Label label{.lines = {}, .isUpright = isUpright};
  if (!room.name.empty()) label.lines.push_back({room.name, kRoomSize * scale, Weight::bold});
  if (room.squareMetres) label.lines.push_back({areaOf(room, units), kAreaSize * scale});
  return label;
}

Label numberLabel(std::size_t number) {
  return {.lines = {{std::to_string(number), kNumberSize, Weight::bold}}};
}

class FurnitureNames {
 public:
  FurnitureNames(const BuiltStorey &built, const Sheet &sheet, SvgText &svg, Board &board, Legend &legend)
      : things_(built.storey.furniture), sheet_(sheet), svg_(svg), board_(board), legend_(legend) {
    for (const Polygon &barrier : built.barriers) walls_.push_back(sheet(barrier));
    for (const Furniture &thing : things_) outlines_.push_back(sheet(thing.outline()));
  }

  /// The smallest first.
  void drawAll() {
    std::vector<std::size_t> order(things_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [this](std::size_t i) { return plan::areaOf(outlines_[i]); });
    for (const std::size_t i : order) name(things_[i], outlines_[i], coversOf(i));
  }

 private:
  using Covers = std::vector<const Polygon *>;

  void name(const Furniture &thing, const Polygon &outline, const Covers &covers) {
    if (auto label = inside(outline, covers, {.lines = {{thing.name, kThingSize}}})) return put(*label);
    if (withoutPlace_ == kMostWithoutPlace) return legend_.addMissing(thing.name);
    Label number = numberLabel(legend_.numberOf(thing.name));
    for (const Covers &avoided : {covers, Covers{}})
      if (const auto placed = bestPlace(board_, number, over(outline, avoided))) return put(placed->label);
    const Point from = sheet_(thing.centre);
    if (const auto placed = bestPlace(board_, number, beside(from))) {
      const Point to = placed->label.centre, stop = to - unit(to - from) * kNumberSize * 0.8;
      svg_.line("leader", from, stop);
      board_.block(from, stop);
      return put(placed->label);
    }
    legend_.addMissing(thing.name);
    ++withoutPlace_;
  }

  /// What hides a part of the piece: a name there would be taken for that of the other one.
  Covers coversOf(std::size_t thing) const {
    const Box box = boundsOf(outlines_[thing]);
    Covers covers;
    for (std::size_t i = thing + 1; i < outlines_.size(); ++i)
      if (boundsOf(outlines_[i]).meets(box)) covers.push_back(&outlines_[i]);
    return covers;
  }

  static bool isSeen(const Box &place, const Covers &covers) {
    return std::ranges::none_of(covers, [&](const Polygon *cover) { return meets(*cover, place); });
  }

  /// The name within the outline, upright where that costs less.
  std::optional<Label> inside(const Polygon &outline, const Covers &covers, Label label) const {
    const Box box = boundsOf(outline);
    Search search{.wanted = box.centre(),
                  .reach = std::max(box.width(), box.height()) / 2,
                  .step = 4,
                  .mostCost = kMostThingCost};
    search.isAllowed = [&](const Box &place) {
      const auto isIn = [&](Point corner) { return contains(outline, corner); };
      return std::ranges::all_of(place.corners(), isIn) && isSeen(place, covers);
    };
    auto best = bestPlace(board_, label, search);
    label.isUpright = true;
    const auto upright = box.height() > box.width() ? bestPlace(board_, label, search) : std::nullopt;
    if (upright && (!best || upright->cost + 0.5 < best->cost)) best = upright;
    return best ? std::optional(best->label) : std::nullopt;
  }

  /// A number whose middle lies within the outline.
  static Search over(const Polygon &outline, const Covers &covers) {
    const Box box = boundsOf(outline);
    Search search{.wanted = box.centre(),
                  .reach = std::max(box.width(), box.height()) / 2,
                  .step = 3,
                  .distanceCost = 0.05};
    search.isAllowed = [&](const Box &place) {
      return contains(outline, place.centre()) && isSeen(place, covers);
    };
    return search;
  }

  /// A number near the piece, with no wall in between.
  Search beside(Point centre) const {
    Search search{.wanted = centre, .reach = 200, .step = 6, .distanceCost = 0.1};
    search.isAllowed = [this, centre](const Box &place) {
      return std::ranges::none_of(walls_, [&](const Polygon &wall) {
        for (std::size_t i = 0; i < wall.size(); ++i)
          if (meet(wall[i], wall[(i + 1) % wall.size()], centre, place.centre())) return true;
        return false;
      });
    };
    return search;
  }

  void put(const Label &label) {
    svg_.label("thing", label);
    board_.block(label.box().grown(1));
  }

  const std::vector<Furniture> &things_;
  const Sheet &sheet_;
  SvgText &svg_;
  Board &board_;
  Legend &legend_;
  std::vector<Polygon> walls_, outlines_;  // on the sheet
  std::size_t withoutPlace_ = 0;
};

}  // namespace

std::size_t Legend::numberOf(const std::string &name) {
  const auto [entry, isNew] = numbers_.emplace(name, names_.size() + 1);
  if (isNew) names_.push_back(name);
  return entry->second;
}

std::vector<std::string> Legend::entries() const {
  std::vector<std::string> entries;
  for (std::size_t i = 0; i < names_.size(); ++i) entries.push_back(std::to_string(i + 1) + "  " + names_[i]);
  for (const auto &[name, count] : missing_)
    entries.push_back("no room for: " + std::to_string(count) + " " + name);
  return entries;
}

void drawRoomNames(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board,
                   Legend &legend) {
  const std::vector<RoomArea> &rooms = built.rooms.areas();
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    const RoomArea &room = rooms[i];
    std::vector<Label> labels;
    for (const double scale : {1.0, 0.8})
      for (const bool isUpright : {false, true}) labels.push_back(roomLabel(room, units, scale, isUpright));
    if (labels[0].lines.empty()) continue;
    Search search{.wanted = sheet(room.centre), .reach = 320, .distanceCost = 0.004};
    search.isAllowed = [&](const Box &place) {
      const auto isIn = [&](Point p) {
        return built.rooms.isIn(i, (p - sheet.origin) * (1 / sheet.pixelsPerMetre));
      };
      return isIn(place.centre()) && std::ranges::all_of(place.corners(), isIn);
    };
    auto label = firstThatFits(board, labels, search);
    const std::string text =
        room.name + (room.name.empty() || !room.squareMetres ? "" : ", ") + areaOf(room, units);
    if (!label)
      label =
          firstThatFits(board, {numberLabel(legend.numberOf(text))}, {.wanted = search.wanted, .reach = 320});
    if (!label) {
      legend.addMissing(text);
      continue;
    }
    svg.label("room", *label);
    board.block(label->box().grown(2));
  }
}

void drawFurnitureNames(const BuiltStorey &built, const Sheet &sheet, SvgText &svg, Board &board,
                        Legend &legend) {
  FurnitureNames(built, sheet, svg, board, legend).drawAll();
}

}  // namespace vantorel::plan
