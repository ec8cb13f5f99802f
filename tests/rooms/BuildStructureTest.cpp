#include "rooms/BuildStructure.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomText.h"
#include "rooms/RoomWriter.h"
#include "support/TestData.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <set>

namespace vantorel {
namespace {

using namespace testing;

std::vector<Uuid> identifiersOf(const std::vector<Surface> &surfaces) {
  std::vector<Uuid> identifiers;
  for (const Surface &surface : surfaces) identifiers.push_back(surface.identifier);
  return identifiers;
}

/// The walls that stay when a second room has `other` beside the first room's wall: 4 m about the origin, seen
/// from +z.
std::vector<Uuid> staying(Surface other, Surface first = wall(1, {0, 0, 0}, 4)) {
  return identifiersOf(
      buildStructure({walled({std::move(first)}), walled({std::move(other)})}).elements.walls);
}

TEST(BuildStructure, OfOneRoomOrTheSameRoomTwiceIsThatRoom) {
  SKIP_WITHOUT_SHARED_ROOMS();
  for (const std::string &path : sharedRooms()) {
    const auto room = shared(readRoom(readFile(path)));
    RoomDocument expected = *room;
    expected.version = 2;
    expected.story.reset();
    expected.referenceOriginTransform.reset();
    if (!expected.floors) expected.floors.emplace();
    if (!expected.sections) expected.sections.emplace();
    for (const auto &rooms : {std::vector{room}, {room, room}}) {
      const StructureDocument structure = buildStructure(rooms);
      EXPECT_EQ(writeVisibleValues(structure.elements), writeVisibleValues(expected)) << path;
      EXPECT_FALSE(structure.elements.coreModel);
      EXPECT_EQ(structure.rooms, rooms);
      EXPECT_TRUE(structure.keptFor.empty()) << path;
    }
  }
}

TEST(BuildStructure, MakesTheTwoSidesOfADividingWallOne) {
  RoomDocument kitchen, hall;
  kitchen.walls = {wall(1, {0, 0, 0}, 4), wall(2, {2, 0, 2}, 4, -90)};
  kitchen.doors = {door(3, {1, 0, 0}, 1)};
  kitchen.openings = {surface("opening", 5, {-1, 0, 0}, 1)};
  kitchen.objects = {object("stove", 4, {0, 0, 0.5f}, 1)};
  hall.walls = {wall(11, {0.05f, 0, -0.2f}, 3.9f, 181), wall(12, {2, 0, -3}, 4, -90)};
  hall.doors = {door(13, {1.3f, 0, -0.2f}, 11, 181), door(14, {-1, 0, -0.2f}, 11, 181)};
  hall.openings = {surface("opening", 16, {-1, 0, -0.2f}, 1, 180)};
  hall.objects = {object("fireplace", 15, {0, 0, -0.5f}, 11)};
  const StructureDocument structure = buildStructure({shared(kitchen), shared(hall)});
  const RoomDocument &all = structure.elements;
  EXPECT_EQ(identifiersOf(all.walls), (std::vector{uuid(1), uuid(2), uuid(12)}));
  EXPECT_EQ(identifiersOf(all.doors), (std::vector{uuid(3), uuid(14)}));
  EXPECT_EQ(identifiersOf(all.openings), (std::vector{uuid(5)}));
  EXPECT_EQ(all.doors[1].parentIdentifier, uuid(1));
  EXPECT_EQ(all.objects[1].parentIdentifier, uuid(1));
  EXPECT_EQ(structure.keptFor,
            (std::map{std::pair(uuid(11), uuid(1)), {uuid(13), uuid(3)}, {uuid(16), uuid(5)}}));
  EXPECT_EQ(structure.rooms[1]->doors[1].parentIdentifier, uuid(11));
}

TEST(BuildStructure, SaysWhichWallsAreTheSame) {
  const std::vector<Uuid> both{uuid(1), uuid(2)}, first{uuid(1)}, second{uuid(2)};
  struct Case {
    const char *what;
    Surface other;
    const std::vector<Uuid> &expected;
  } const cases[] = {
      {"same face, as far as scans differ", wall(2, {0, 0, 0.09f}, 3.9f), first},
      {"a step in the wall", wall(2, {0, 0, 0.11f}, 3.9f), both},
      {"back to back", wall(2, {0, 0, -0.29f}, 3.9f, 180), first},
      {"back to back with a shaft between", wall(2, {0, 0, -0.31f}, 3.9f, 180), both},
      {"face to face, a corridor", wall(2, {0, 0, 0.29f}, 3.9f, 180), both},
      {"a wall before another", wall(2, {0, 0, -0.29f}, 3.9f), both},
      {"the larger is kept", wall(2, {0, 0, 0}, 4.1f, 180), second},
      {"a short piece of it", wall(2, {1.5f, 0, 0}, 1), first},
      {"a short piece, half a storey up", wall(2, {0, 1.25f, 0}, 1), both},
      {"no area", wall(2, {0, 0, 0}, 0), both},
      {"sticks out by less than a fifth", wall(2, {1.69f, 0, 0}, 1, 180), first},
      {"partial overlap", wall(2, {1.8f, 0, 0}, 1), both},
      {"the next storey", wall(2, {0, 2.5f, 0}, 4), both},
      {"a little askew", wall(2, {0, 0, 0}, 3.9f, 9), first},
      {"askew", wall(2, {0, 0, 0}, 3.9f, 11), both},
      {"across", wall(2, {0, 0, 0}, 4, 90), both},
  };
  for (const Case &c : cases) EXPECT_EQ(staying(c.other), c.expected) << c.what;
  for (double turn : {0.0, 45.0, 90.0, 200.0}) {  // the same everywhere
    const Float4x4 there = standing({100, 3, -40}, turn);
    Surface a = wall(1, {100, 3, -40}, 4, turn), b = wall(2, {}, 3.9f, turn + 180);
    const auto move = [&](float back) {
      return Float3{100 - back * there.at(2, 0), 3, -40 - back * there.at(2, 2)};
    };
    b.transform = standing(move(0.2f), turn + 180);
    EXPECT_EQ(staying(b, a), first) << turn;
    b.transform = standing(move(-0.2f), turn + 180);
    EXPECT_EQ(staying(b, a), both) << turn;
  }
}

TEST(BuildStructure, TakesCurvedAndCorneredWallsByTheirIdentifierOnly) {
  Surface curved = wall(2, {0, 0, 0}, 4), cornered = curved;
  curved.curve.emplace().emplace();
  cornered.polygonCorners = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
  for (Surface &special : std::vector{curved, cornered}) {
    EXPECT_EQ(staying(special).size(), 2u);
    special.identifier = uuid(1);
    EXPECT_EQ(staying(special).size(), 1u);
  }
}

TEST(BuildStructure, NeverMergesWithinARoomOrAcrossKinds) {
  RoomDocument room;
  room.walls = {wall(1, {0, 0, 0}, 4), wall(1, {0, 0, 0}, 4), wall(2, {0, 0, 0}, 4)};
  room.windows = {surface("window", 3, {0, 0, 0}, 1)};
  room.sections = {{{1, 2, 3}, "den", 0}, {{1, 2, 3}, "den", 0}};
  RoomDocument other;
  other.openings = {surface("opening", 3, {0, 0, 0}, 1)};
  other.sections = {{{1, 2, 3}, "den", 0}, {{1, 2, 3}, "den", 1}};
  const StructureDocument structure = buildStructure({shared(room), shared(other)});
  EXPECT_EQ(structure.elements.walls, room.walls);
  EXPECT_EQ(structure.elements.windows, room.windows);
  EXPECT_EQ(structure.elements.openings, other.openings);
  EXPECT_EQ(structure.elements.sections->size(), 3u);
}

TEST(BuildStructure, KeepsTheLargestOfEqualIdentifiers) {
  RoomDocument first, second;
  first.walls = {wall(1, {0, 0, 0}, 4)};
  second.walls = {wall(1, {0, 0, 0.3f}, 4.5f)};
  first.objects = {object("table", 5, {0, 0, 1}, 1)};
  second.objects = first.objects;
  second.objects[0].dimensions.z = 1.1f;
  first.floors = {wall(7, {0, 0, 0}, 4)};
  second.floors = {wall(7, {0, 0, 0}, 3), wall(8, {0, 0, 0}, 3)};
  const StructureDocument structure = buildStructure({shared(first), shared(second)});
  EXPECT_EQ(structure.elements.walls, second.walls);
  EXPECT_EQ(structure.elements.objects, second.objects);
  EXPECT_EQ(*structure.elements.floors, (std::vector{first.floors->at(0), second.floors->at(1)}));
  EXPECT_TRUE(structure.keptFor.empty());
}

/// The rooms of all files in a row, or in place, with identifiers of their own.
std::vector<std::shared_ptr<const RoomDocument>> realRooms(float step) {
  std::vector<std::shared_ptr<const RoomDocument>> rooms;
  for (const std::string &path : sharedRooms()) {
    RoomDocument room = readRoom(readFile(path));
    const auto move = [&](auto &elements) {
      for (auto &element : elements)
        element.transform.elements[12] += step * static_cast<float>(rooms.size());
    };
    for (auto *list : {&room.walls, &room.doors, &room.windows, &room.openings}) move(*list);
    move(room.objects);
    rooms.push_back(shared(std::move(room)));
  }
  return rooms;
}

TEST(BuildStructure, KeepsAllOfRealRoomsSideBySide) {
  SKIP_WITHOUT_SHARED_ROOMS();
  const auto rooms = realRooms(20);
  std::size_t walls = 0, objects = 0;
  for (const auto &room : rooms) {
    walls += room->walls.size();
    objects += room->objects.size();
  }
  const StructureDocument structure = buildStructure(rooms);
  EXPECT_EQ(structure.elements.walls.size(), walls);
  EXPECT_EQ(structure.elements.objects.size(), objects);
  EXPECT_TRUE(structure.keptFor.empty());
}

TEST(BuildStructure, KeepsTheSameElementsInWhateverOrderRoomsCome) {
  SKIP_WITHOUT_SHARED_ROOMS();
  auto rooms = realRooms(0);  // on top of each other
  const StructureDocument structure = buildStructure(rooms);
  auto walls = identifiersOf(structure.elements.walls);
  std::sort(walls.begin(), walls.end());
  EXPECT_FALSE(structure.keptFor.empty());
  for (int i = 0; i < 5; ++i) {
    std::rotate(rooms.begin(), rooms.begin() + 3, rooms.end());
    const StructureDocument other = buildStructure(rooms);
    auto found = identifiersOf(other.elements.walls);
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, walls);
    EXPECT_EQ(other.keptFor, structure.keptFor);
  }
}

TEST(BuildStructure, RefusesWhatCannotBeMerged) {
  using Kind = StructureError::Kind;
  const auto kindFor = [](const std::function<void(RoomDocument &)> &change) -> std::optional<Kind> {
    RoomDocument room = readRoom(kRoomText);
    change(room);
    try {
      buildStructure({shared(readRoom(kRoomText)), shared(room)});
      return std::nullopt;
    } catch (const StructureError &error) {
      return error.kind;
    }
  };
  constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  const auto place = [](RoomDocument &r, float x) {
    for (auto *list : {&r.walls, &r.doors}) list->at(0).transform.elements[12] = x;
    r.objects[0].transform.elements[12] = x;
  };
  EXPECT_EQ(kindFor([](auto &) {}), std::nullopt);
  EXPECT_EQ(kindFor([](auto &r) { r = {}; }), std::nullopt);
  EXPECT_EQ(kindFor([&](auto &r) { place(r, 53); }), std::nullopt);
  EXPECT_EQ(kindFor([&](auto &r) { place(r, 55); }), Kind::invalidRoomLocation);
  EXPECT_EQ(kindFor([&](auto &r) { place(r, 16385); }), Kind::exceedSceneSizeLimit);
  EXPECT_EQ(kindFor([](auto &r) { r.walls[0].dimensions.x = 1001; }), Kind::exceedSceneSizeLimit);
  EXPECT_EQ(kindFor([](auto &r) {
              r.walls[0].polygonCorners = {{0, -1001, 0}};
            }),
            Kind::exceedSceneSizeLimit);
  EXPECT_EQ(kindFor([](auto &r) { r.sections->at(0).center.z = 2e4f; }), Kind::exceedSceneSizeLimit);
  EXPECT_EQ(kindFor([](auto &r) { r.doors[0].dimensions.x = -1; }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.objects[0].dimensions.z = kNan; }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.sections->at(0).center.z = kNan; }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.walls[0].polygonCorners = {{0, kNan, 0}}; }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.walls[0].curve.emplace().emplace().radius = kNan; }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.walls[0].curve.emplace().emplace().startAngle.value = kNan; }),
            Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.openings.push_back(wall(9, {}, -1)); }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.floors->push_back(wall(9, {}, -1)); }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.referenceOriginTransform.emplace().elements[3] = kNan; }),
            Kind::invalidInput);
  for (std::size_t i : {0U, 4U, 8U, 9U, 3U, 15U})  // stretched, sheared, or no longer affine
    EXPECT_EQ(kindFor([=](auto &r) { r.objects[0].transform.elements[i] += 0.01f; }), Kind::invalidInput);
  EXPECT_EQ(kindFor([](auto &r) { r.walls[0].transform.elements[0] = -1; }), Kind::invalidInput);  // mirrored
  RoomDocument floorOnly;
  floorOnly.floors.emplace(1);
  for (const auto &rooms : {std::vector<std::shared_ptr<const RoomDocument>>{}, {shared(floorOnly)}}) try {
      buildStructure(rooms);
      ADD_FAILURE() << "merged nothing";
    } catch (const StructureError &error) {
      EXPECT_EQ(error.kind, Kind::insufficientInput);
    }
}

TEST(BuildStructure, SaysWhereAFaultLies) try {
  RoomDocument room = readRoom(kRoomText);
  room.objects[0].dimensions.z = -1;
  buildStructure({shared(readRoom(kRoomText)), shared(room)});
  FAIL();
} catch (const StructureError &error) {
  EXPECT_STREQ(error.what(), "room 1, objects[0]: a length is negative");
}

TEST(BuildStructure, TakesAChainOfRoomsFarLongerThanAVicinity) {
  std::vector<std::shared_ptr<const RoomDocument>> rooms;
  for (std::uint32_t i = 0; i < 20; ++i)  // steps of 40 m to and fro along x, away along z
    rooms.push_back(walled({wall(i, {i % 2 ? 40.f : 0.f, 0, 40.f * static_cast<float>(i)}, 4)}));
  EXPECT_EQ(buildStructure(rooms).elements.walls.size(), 20u);
  rooms.erase(rooms.begin() + 10);
  EXPECT_THROW(buildStructure(rooms), StructureError);
}

TEST(StructureIdentifier, TellsWhichRoomsThereAreInWhichOrder) {
  const Uuid a = uuid(1), b = uuid(2);
  const std::set made{a, structureIdentifier({a}), structureIdentifier({a, b}), structureIdentifier({b, a})};
  EXPECT_EQ(made.size(), 4u);
}

}  // namespace
}  // namespace vantorel
