#include "plan/Storey.h"

#include "plan/StoreyLevels.h"
#include "plan/Turning.h"
#include "rooms/SceneLimits.h"

#include <algorithm>
#include <cctype>
#include <numbers>

namespace vantorel::plan {
namespace {

constexpr double kShortest = 0.001;  // metres

/// An element's own frame, as it lies on paper.
struct Frame {
  Point origin, x, y, z;
  Point at(double right, double front) const { return origin + x * right + z * front; }
};

bool isSensible(const Float4x4 &transform, const Float3 &size) {
  const auto within = [](float value, double limit) { return std::abs(value) <= limit; };  // false for NaN
  return std::ranges::all_of(transform.elements, [&](float value) { return within(value, kSceneReach); }) &&
         within(size.x, kLongestElement) && within(size.y, kLongestElement) &&
         within(size.z, kLongestElement);
}

class Paper {
 public:
  Paper(const RoomDocument &document, Storeys &out)
      : turning_(turningOf(document)), levels_(document), out_(out) {
    for (const std::string &name : levels_.names()) out_.storeys.push_back({.name = name});
  }

  void addAll(const RoomDocument &document) {
    for (const Surface &wall : document.walls) add(wall);
    addHoles(document.openings, Hole::Kind::opening);
    addHoles(document.windows, Hole::Kind::window);
    addHoles(document.doors, Hole::Kind::door);
    for (const RoomObject &object : document.objects) add(object);
    for (const Surface &floor : document.floors.value_or(std::vector<Surface>{})) addFloor(floor);
    for (const Section &section : document.sections.value_or(std::vector<Section>{})) add(section);
  }

 private:
  Frame frameOf(const Float4x4 &m) const {
    const auto column = [&](int i) { return turning_({m.at(i, 0), m.at(i, 2)}); };
    return {column(3), column(0), column(1), column(2)};
  }

  template <typename Element>
  Storey *storeyOf(const Element &element) {
    if (isSensible(element.transform, element.dimensions)) return &out_.storeys[levels_.of(element)];
    ++out_.leftOut;
    return nullptr;
  }

  void add(const Surface &wall) {
    Storey *storey = storeyOf(wall);
    if (!storey) return;
    const std::optional<Track> track = trackOf(wall);
    track ? storey->walls.push_back({wall.identifier, *track}) : void(++out_.leftOut);
  }

  void addHoles(const std::vector<Surface> &surfaces, Hole::Kind kind) {
    for (const Surface &surface : surfaces) {
      Storey *storey = storeyOf(surface);
      if (!storey) continue;
      const std::optional<Track> track = trackOf(surface);
      if (track)
        storey->holes.push_back({.kind = kind,
                                 .track = *track,
                                 .from = 0,
                                 .to = track->length(),
                                 .wall = surface.parentIdentifier.value_or(std::nullopt)});
      else
        ++out_.leftOut;
    }
  }

  void add(const RoomObject &object) {
    Storey *storey = storeyOf(object);
    if (!storey) return;
    const Frame frame = frameOf(object.transform);
    Furniture made{.centre = frame.origin,
                   .right = frame.x * (object.dimensions.x / 2.0),
                   .front = frame.z * (object.dimensions.z / 2.0),
                   .name = nameOf(object),
                   .category = object.category.name};
    made.isRound = attributeOf(object, "TableShapeType") == "circularElliptic";
    if (std::abs(cross(made.right, made.front)) < kShortest * kShortest)
      ++out_.leftOut;
    else
      storey->furniture.push_back(std::move(made));
  }

  void addFloor(const Surface &floor) {
    Storey *storey = storeyOf(floor);
    if (!storey) return;
    const Frame frame = frameOf(floor.transform);
    const Point x = frame.x * (floor.dimensions.x / 2.0), y = frame.y * (floor.dimensions.y / 2.0);
    Polygon outline;
    for (const Float3 &corner : floor.polygonCorners.value_or(std::vector<Float3>{}))
      outline.push_back(frame.origin + frame.x * corner.x + frame.y * corner.y + frame.z * corner.z);
    if (outline.empty())
      outline = {frame.origin - x - y, frame.origin + x - y, frame.origin + x + y, frame.origin - x + y};
    const Box box = boundsOf(outline);
    const bool isSane =
        box.width() <= kLongestElement && box.height() <= kLongestElement && areaOf(outline) > kShortest;
    isSane ? storey->floors.push_back(std::move(outline)) : void(++out_.leftOut);
  }

  void add(const Section &section) {
    Float4x4 place;
    place.elements = {
        1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, section.center.x, section.center.y, section.center.z, 1};
    if (!isSensible(place, {})) return void(++out_.leftOut);
    const std::string name = section.label == "unidentified" ? "Room" : wordsOf(section.label);
    out_.storeys[levels_.of(section)].sections.push_back({frameOf(place).origin, name});
  }

  /// Where the surface stands; nothing when it has no length.
  std::optional<Track> trackOf(const Surface &surface) const {
    const Frame frame = frameOf(surface.transform);
    double left = -surface.dimensions.x / 2.0, right = surface.dimensions.x / 2.0;
    if (surface.curve && *surface.curve) return arcOf(**surface.curve, frame);
    if (surface.polygonCorners && !surface.polygonCorners->empty()) {
      const auto [least, most] = std::ranges::minmax(*surface.polygonCorners, {}, &Float3::x);
      left = std::max<double>(least.x, -kLongestElement), right = std::min<double>(most.x, kLongestElement);
    }
    Track track = Track::straight(frame.at(left, 0), frame.at(right, 0), frame.z * -1);
    if (!(track.length() >= kShortest && track.length() <= kLongestElement)) return std::nullopt;
    return track;
  }

  /// Without a centre the chord lies in the surface's middle.
  static std::optional<Track> arcOf(const Curve &curve, const Frame &frame) {
    const auto radians = [](const Curve::Angle &angle) {
      return (angle.value * angle.coefficient + angle.constant) * std::numbers::pi / 180;
    };
    const double r = curve.radius, from = radians(curve.startAngle), to = radians(curve.endAngle);
    const double turn = std::abs(to - from);
    if (!(r >= kShortest && r <= kLongestElement && turn * r >= kShortest && turn <= 2 * std::numbers::pi))
      return std::nullopt;
    const Point chord{-r / 2 * (std::cos(from) + std::cos(to)), -r / 2 * (std::sin(from) + std::sin(to))};
    const Point c = curve.center ? Point{(*curve.center)[0], (*curve.center)[1]} : chord;
    if (!(std::abs(c.x) <= kSceneReach && std::abs(c.y) <= kSceneReach)) return std::nullopt;
    const Point centre = frame.at(c.x, c.y);
    const Point start = frame.at(c.x + r * std::cos(from), c.y + r * std::sin(from));
    const double side = cross(frame.x, frame.z) < 0 ? -1 : 1;
    return Track::arc(centre, start, side * (to - from), frame.z * -1);
  }

  static std::string attributeOf(const RoomObject &object, const std::string &type) {
    if (object.attributes)
      for (const auto &[key, value] : *object.attributes)
        if (key == type) return value;
    return {};
  }

  static std::string nameOf(const RoomObject &object) {
    const std::string &category = object.category.name;
    if (category == "television") return "TV";
    if (category == "washerDryer") return "Washer";
    const std::string kind = attributeOf(object, category == "table" ? "TableType" : "StorageType");
    if (category == "table" && (kind == "coffee" || kind == "dining")) return wordsOf(kind) + " table";
    if (category == "storage" && (kind == "cabinet" || kind == "shelf")) return wordsOf(kind);
    return wordsOf(category);
  }

  Turning turning_;
  StoreyLevels levels_;
  Storeys &out_;
};

/// Chairs first, which tables hide; then from the largest to the smallest, so that what stands on others shows.
void sortByHeight(std::vector<Furniture> &furniture) {
  std::ranges::stable_sort(furniture, std::greater<>(), [](const Furniture &thing) {
    return std::pair(thing.category == "chair", areaOf(thing.outline()));
  });
}

}  // namespace

Polygon Furniture::outline() const {
  return {centre - right - front, centre + right - front, centre + right + front, centre - right + front};
}

std::string wordsOf(const std::string &name) {
  constexpr std::size_t kMostBytes = 32;
  std::string words;
  for (const char c : name) {
    const bool isWhole = (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    if (isWhole && words.size() >= kMostBytes) return words + "...";
    const bool isUpper = c >= 'A' && c <= 'Z';
    if (isUpper && !words.empty()) words += ' ';
    words += isUpper ? static_cast<char>(c - 'A' + 'a') : c;
  }
  if (!words.empty() && words[0] >= 'a' && words[0] <= 'z')
    words[0] = static_cast<char>(words[0] - 'a' + 'A');
  return words;
}

Storeys storeysOf(const RoomDocument &document) {
  Storeys storeys;
  Paper(document, storeys).addAll(document);
  for (Storey &storey : storeys.storeys) sortByHeight(storey.furniture);
  return storeys;
}

}  // namespace vantorel::plan
