#include "rooms/BuildStructure.h"

#include "rooms/StandIns.h"
#include "rooms/StructureCheck.h"

#include <functional>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

namespace vantorel {
namespace {

using Rooms = std::vector<std::shared_ptr<const RoomDocument>>;

// The part of the smaller surface that must lie on the larger one. Two scans see the same wall from end to end,
// but of what is in it they may see only what no furniture hides.
constexpr double kWallOverlap = 0.8;
constexpr double kPanelOverlap = 0.5;
constexpr double kNoOverlapCounts = std::numeric_limits<double>::infinity();

Candidate candidateOf(const Surface &surface, std::size_t room) {
  const Float3 size = surface.dimensions;
  return {surface.identifier, room, static_cast<double>(size.x) * size.y, boxOf(surface.transform, size),
          rectangleOf(surface)};
}

Candidate candidateOf(const RoomObject &object, std::size_t room) {
  const Float3 size = object.dimensions;
  return {object.identifier, room, static_cast<double>(size.x) * size.y * size.z,
          boxOf(object.transform, size), std::nullopt};
}

const std::vector<Surface> &floorsOf(const RoomDocument &room) {
  static const std::vector<Surface> kNone;
  return room.floors ? *room.floors : kNone;
}

/// Collects the elements that stay, and what becomes of the others.
class Merger {
 public:
  explicit Merger(const Rooms &rooms) : rooms_(rooms) {}

  /// The elements of one kind; `listOf` is a function or member that gives a room's.
  template <typename ListOf>
  auto merge(ListOf listOf, double leastOverlap);
  /// Of all that were left out, unless they are among the elements all the same.
  std::map<Uuid, Uuid> keptFor(const RoomDocument &elements) const;

 private:
  const Rooms &rooms_;
  std::map<Uuid, Uuid> leftOut_;
};

template <typename ListOf>
auto Merger::merge(ListOf listOf, double leastOverlap) {
  std::vector<Candidate> candidates;
  for (std::size_t room = 0; room < rooms_.size(); ++room)
    for (const auto &element : std::invoke(listOf, *rooms_[room]))
      candidates.push_back(candidateOf(element, room));
  const std::vector<std::size_t> standIns = standInsFor(candidates, leastOverlap);

  std::remove_cvref_t<std::invoke_result_t<ListOf, const RoomDocument &>> merged;
  merged.reserve(candidates.size());
  std::size_t item = 0;
  for (const auto &room : rooms_)
    for (const auto &element : std::invoke(listOf, *room)) {
      const std::size_t standIn = standIns[item];
      if (standIn == item++)
        merged.push_back(element);
      else
        leftOut_.emplace(element.identifier, candidates[standIn].identifier);
    }
  return merged;
}

template <typename Element>
void eraseIdentifiers(std::map<Uuid, Uuid> &from, const std::vector<Element> &elements) {
  for (const Element &element : elements) from.erase(element.identifier);
}

std::map<Uuid, Uuid> Merger::keptFor(const RoomDocument &elements) const {
  std::map<Uuid, Uuid> keptFor = leftOut_;
  if (keptFor.empty()) return keptFor;
  for (auto *surfaces : {&elements.walls, &elements.doors, &elements.windows, &elements.openings})
    eraseIdentifiers(keptFor, *surfaces);
  eraseIdentifiers(keptFor, elements.objects);
  eraseIdentifiers(keptFor, floorsOf(elements));
  return keptFor;
}

/// All but those that equal one of an earlier room.
std::vector<Section> mergeSections(const Rooms &rooms) {
  std::vector<Section> merged;
  std::map<std::tuple<std::string, float, float, float, std::int64_t>, std::size_t> roomOf;
  for (std::size_t room = 0; room < rooms.size(); ++room) {
    if (!rooms[room]->sections) continue;
    for (const Section &section : *rooms[room]->sections) {
      const Float3 at = section.center;
      if (roomOf.try_emplace({section.label, at.x, at.y, at.z, section.story}, room).first->second == room)
        merged.push_back(section);
    }
  }
  return merged;
}

template <typename Element>
void replaceParents(std::vector<Element> &children, const std::map<Uuid, Uuid> &keptFor) {
  for (Element &child : children) {
    if (!child.parentIdentifier.value_or(std::nullopt)) continue;
    const auto kept = keptFor.find(**child.parentIdentifier);
    if (kept != keptFor.end()) child.parentIdentifier = kept->second;
  }
}

void replaceParents(RoomDocument &elements, const std::map<Uuid, Uuid> &keptFor) {
  if (keptFor.empty()) return;
  for (auto *surfaces : {&elements.walls, &elements.doors, &elements.windows, &elements.openings})
    replaceParents(*surfaces, keptFor);
  replaceParents(elements.objects, keptFor);
}

}  // namespace

StructureDocument buildStructure(Rooms rooms) {
  requireMergeable(rooms);
  Merger merger(rooms);
  StructureDocument structure;
  RoomDocument &elements = structure.elements;
  elements.walls = merger.merge(&RoomDocument::walls, kWallOverlap);
  elements.doors = merger.merge(&RoomDocument::doors, kPanelOverlap);
  elements.windows = merger.merge(&RoomDocument::windows, kPanelOverlap);
  elements.openings = merger.merge(&RoomDocument::openings, kPanelOverlap);
  elements.objects = merger.merge(&RoomDocument::objects, kNoOverlapCounts);
  elements.floors = merger.merge(floorsOf, kNoOverlapCounts);
  elements.sections = mergeSections(rooms);
  structure.keptFor = merger.keptFor(elements);
  replaceParents(elements, structure.keptFor);
  structure.rooms = std::move(rooms);
  return structure;
}

}  // namespace vantorel
