#include "platform/simulated/SimulatedRoom.h"

#include "base/JsonWriter.h"
#include "platform/PlatformError.h"
#include "rooms/RoomWriter.h"
#include "rooms/UsdzWriter.h"

#include <array>
#include <exception>
#include <string_view>

namespace vantorel {
namespace {

using Content = CapturedRoomContent;

constexpr std::string_view kExtension = ".usdz";

// In the order of the enumerations, less their `unknown`.
constexpr std::array<std::string_view, 3> kConfidences = {"low", "medium", "high"};
constexpr std::array<std::string_view, 4> kSurfaces = {"wall", "opening", "window", "door"};
constexpr std::array<std::string_view, 16> kObjects = {
    "storage", "refrigerator", "stove", "bed",  "sink",  "washerDryer", "toilet",     "bathtub",
    "oven",    "dishwasher",   "table", "sofa", "chair", "fireplace",   "television", "stairs"};

/// The case of that name; `unknown`, which is 0, for every name of a later system.
template <typename Case, std::size_t count>
Case caseNamed(std::string_view name, const std::array<std::string_view, count> &names) {
  for (std::size_t i = 0; i < count; ++i)
    if (names[i] == name) return static_cast<Case>(i + 1);
  return Case::unknown;
}

Content::Edges edgesOf(const std::vector<EnumCase> &cases) {
  Content::Edges edges;
  for (const EnumCase &edge : cases) {
    if (edge.name == "top") edges.top = true;
    if (edge.name == "right") edges.right = true;
    if (edge.name == "bottom") edges.bottom = true;
    if (edge.name == "left") edges.left = true;
  }
  return edges;
}

Content::Surface surfaceOf(const Surface &from) {
  Content::Surface to;
  to.identifier = from.identifier;
  to.category = caseNamed<Content::SurfaceCategory>(from.category.name, kSurfaces);
  to.isOpen = from.category.isOpen.value_or(false);
  to.confidence = caseNamed<Content::Confidence>(from.confidence.name, kConfidences);
  to.dimensions = from.dimensions;
  to.transform = from.transform;
  if (from.curve && *from.curve) {
    const Curve &curve = **from.curve;
    to.curve = {curve.startAngle.value, curve.endAngle.value, curve.radius};
  }
  if (from.completedEdges) to.completedEdges = edgesOf(*from.completedEdges);
  return to;
}

Content::Object objectOf(const RoomObject &from) {
  return {from.identifier, caseNamed<Content::ObjectCategory>(from.category.name, kObjects),
          caseNamed<Content::Confidence>(from.confidence.name, kConfidences), from.dimensions,
          from.transform};
}

std::vector<Content::Surface> surfacesOf(const std::vector<Surface> &surfaces) {
  std::vector<Content::Surface> converted;
  converted.reserve(surfaces.size());
  for (const Surface &surface : surfaces) converted.push_back(surfaceOf(surface));
  return converted;
}

/// The file's name without folder and extension.
std::string_view stemOf(std::string_view path) {
  path.remove_suffix(kExtension.size());
  return path.substr(path.find_last_of('/') + 1);
}

}  // namespace

std::string SimulatedRoom::jsonText() const {
  device_.faults.check("encodeRoom");
  try {
    return writeRoom(*document_);
  } catch (const JsonEncodingError &error) {
    throw PlatformError(error.what());
  }
}

CapturedRoomContent SimulatedRoom::content() const {
  Content content;
  content.walls = surfacesOf(document_->walls);
  content.doors = surfacesOf(document_->doors);
  content.openings = surfacesOf(document_->openings);
  content.windows = surfacesOf(document_->windows);
  for (const RoomObject &object : document_->objects) content.objects.push_back(objectOf(object));
  return content;
}

void SimulatedRoom::writeUsdz(const std::string &path) const {
  device_.faults.check("exportRoom");
  exportUsdz(*document_, path, device_.files);
}

void exportUsdz(const RoomDocument &room, const std::string &path, SimulatedFiles &files) {
  if (!path.ends_with(kExtension)) throw PlatformError("a room is exported to a .usdz file, not to " + path);
  std::string package;
  try {
    package = writeUsdz(room, stemOf(path));
  } catch (const std::exception &error) {
    throw PlatformError(error.what());
  }
  files.exportFile(path, package);
}

}  // namespace vantorel
