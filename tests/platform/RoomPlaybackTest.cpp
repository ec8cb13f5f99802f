#include "platform/simulated/RoomPlayback.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"
#include "support/TestData.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace vantorel {
namespace {

using Time = RoomPlayback::Time;

std::shared_ptr<RoomDocument> roomFrom(const std::string &path) {
  return std::make_shared<RoomDocument>(readRoom(testing::readFile(path)));
}

bool isUpdate(const Playback::Step &step) { return std::holds_alternative<Playback::Update>(step.event); }

int rankOf(const EnumCase &confidence) {
  return confidence.name == "low" ? 0 : confidence.name == "medium" ? 1 : 2;
}

/// Holds one element against its earlier state and its final one.
template <typename Element>
void expectGrowth(const Element &now, const Element *before, const Element &finished) {
  EXPECT_LE(now.dimensions.x, finished.dimensions.x);
  EXPECT_LE(now.dimensions.y, finished.dimensions.y);
  EXPECT_LE(rankOf(now.confidence), rankOf(finished.confidence));
  const double foot = now.transform.at(3, 1) - now.transform.at(1, 1) * now.dimensions.y / 2.0;
  const double finalFoot =
      finished.transform.at(3, 1) - finished.transform.at(1, 1) * finished.dimensions.y / 2.0;
  EXPECT_NEAR(foot, finalFoot, 1e-4);
  if (!before) return;
  EXPECT_GE(now.dimensions.x, before->dimensions.x);
  EXPECT_GE(now.dimensions.y, before->dimensions.y);
  EXPECT_GE(rankOf(now.confidence), rankOf(before->confidence));
}

template <typename Element>
void expectGrowth(const std::vector<Element> &now, const std::vector<Element> &before,
                  const std::vector<Element> &finished) {
  EXPECT_GE(now.size(), before.size());
  const auto find = [](const std::vector<Element> &elements, const Uuid &identifier) -> const Element * {
    for (const Element &element : elements)
      if (element.identifier == identifier) return &element;
    return nullptr;
  };
  for (const Element &element : before) ASSERT_TRUE(find(now, element.identifier)) << "an element was lost";
  for (const Element &element : now) {
    const Element *last = find(finished, element.identifier);
    ASSERT_TRUE(last) << "an element that the room does not have";
    expectGrowth(element, find(before, element.identifier), *last);
  }
}

/// A wall that bears something stands as it will in the end.
void expectWallsStand(const std::vector<Surface> &inWalls, const RoomDocument &now,
                      const RoomDocument &finished) {
  for (const Surface &surface : inWalls) {
    const auto parent = surface.parentIdentifier.value_or(std::nullopt);
    for (const Surface &wall : finished.walls) {
      if (parent != wall.identifier) continue;
      EXPECT_NE(std::find(now.walls.begin(), now.walls.end(), wall), now.walls.end()) << parent->text();
    }
  }
}

void expectBelievable(const RoomPlayback &playback, const RoomDocument &finished) {
  std::shared_ptr<const RoomDocument> before = std::make_shared<RoomDocument>();
  for (const auto &step : playback.steps()) {
    if (!isUpdate(step)) continue;
    const auto now = playback.roomAt(step.due);
    EXPECT_EQ(now->isEmpty(), finished.isEmpty());
    EXPECT_EQ(now->version, finished.version);
    EXPECT_EQ(now->floors.has_value(), finished.floors.has_value());
    expectGrowth(now->walls, before->walls, finished.walls);
    expectGrowth(now->doors, before->doors, finished.doors);
    expectGrowth(now->windows, before->windows, finished.windows);
    expectGrowth(now->openings, before->openings, finished.openings);
    expectGrowth(now->objects, before->objects, finished.objects);
    for (const auto *surfaces : {&now->doors, &now->windows, &now->openings})
      expectWallsStand(*surfaces, *now, finished);
    EXPECT_NO_THROW(readRoom(writeRoom(*now)));
    before = now;
  }
  EXPECT_EQ(writeRoom(*before), writeRoom(finished)) << "the last update is the room itself";
}

/// The walk stays between the things, is smooth and gives a rigid right-handed pose.
void expectWalk(const RoomPlayback &playback, const RoomDocument &room) {
  float low = std::numeric_limits<float>::max(), high = -low;
  for (const Surface &wall : room.walls) {
    low = std::min({low, wall.transform.at(3, 0), wall.transform.at(3, 2)});
    high = std::max({high, wall.transform.at(3, 0), wall.transform.at(3, 2)});
  }
  for (const RoomObject &object : room.objects) {
    low = std::min({low, object.transform.at(3, 0), object.transform.at(3, 2)});
    high = std::max({high, object.transform.at(3, 0), object.transform.at(3, 2)});
  }
  Float4x4 before = playback.cameraAt(0);
  for (Time time = 0; time <= 10'000'000'000; time += 10'000'000) {
    const Float4x4 pose = playback.cameraAt(time);
    double step = 0, cosTurn = 0, determinant = 0;
    for (int i = 0; i < 3; ++i) {
      const int j = (i + 1) % 3, k = (i + 2) % 3;
      step += std::pow(pose.at(3, i) - before.at(3, i), 2);
      cosTurn += pose.at(2, i) * before.at(2, i);
      determinant += pose.at(0, i) * (pose.at(1, j) * pose.at(2, k) - pose.at(1, k) * pose.at(2, j));
    }
    ASSERT_NEAR(determinant, 1, 1e-5);
    ASSERT_NEAR(pose.at(1, 1), 0, 1e-6) << "the phone is held upright, its sensor lies";
    ASSERT_LT(std::sqrt(step), 0.5) << "metres in 10 ms, at " << time;
    ASSERT_GT(cosTurn, std::cos(0.5)) << "radians in 10 ms, at " << time;
    for (const int axis : {0, 2}) {
      ASSERT_GE(pose.at(3, axis), low);
      ASSERT_LE(pose.at(3, axis), high);
    }
    before = pose;
  }
}

TEST(RoomPlayback, MakesABelievableSessionOfEveryRoom) {
  auto paths = testing::sampleRooms();
  for (const auto &path : testing::sharedRooms()) paths.push_back(path);
  ASSERT_FALSE(paths.empty());
  for (const auto &path : paths) {
    SCOPED_TRACE(path);
    const auto room = roomFrom(path);
    const RoomPlayback playback(room, 10, 10);
    expectBelievable(playback, *room);
    expectWalk(playback, *room);
    EXPECT_EQ(playback.seenAt(0).identifier, identifierOf(*room))
        << "that of the finished room from the start";
    EXPECT_EQ(playback.roomAt(1)->walls.size(), room->walls.empty() ? 0U : 1U);
    const auto half = playback.roomAt(3'300'000'000)->walls.size();
    EXPECT_GE(half, room->walls.size() / 2);
    EXPECT_LE(half, room->walls.size() / 2 + 1) << "walls come one after the other";
  }
}

/// Four walls round the origin, a door in the last, two pieces of furniture of which the first belongs to the
/// second, a floor and a section.
std::shared_ptr<RoomDocument> smallRoom() {
  using namespace testing;
  auto room = std::make_shared<RoomDocument>();
  room->identifier = uuid(42);
  room->walls = {wall(1, {0, 1, -3}, 1), wall(2, {3, 1, 0}, 1), wall(3, {0, 1, 3}, 1),
                 wall(4, {-3, 1, 0}, 1)};
  room->doors = {door(5, {-3, 1, 0}, 4)};
  room->objects = {object("chair", 6, {-2, 1, 0}, 7), object("table", 7, {2, 1, 0}, 4)};
  room->objects[0].attributes.emplace().emplace_back("ChairType", "stool");
  for (RoomObject &thing : room->objects) thing.confidence.name = "high";
  room->floors = {surface("floor", 8, {0, 1, 0}, 1)};
  room->sections = {{{}, "kitchen", 0}};
  return room;
}

TEST(RoomPlayback, LearnsThingsInTheirOrder) {
  const auto room = smallRoom();
  const RoomPlayback playback(room, 10, 100);
  bool hasSeenOrphan = false;
  for (Time time = 0; time < 10'000'000'000; time += 10'000'000) {
    const auto now = playback.roomAt(time);
    EXPECT_EQ(now->identifier, room->identifier) << "identifiers are kept";
    EXPECT_EQ(now->floors->empty(), time < 8'500'000'000) << "floors come late";
    EXPECT_EQ(now->sections->empty(), time < 9'200'000'000) << "sections come last";
    for (const RoomObject &object : now->objects) {
      if (!object.attributes) continue;  // the other one
      EXPECT_EQ(object.attributes->empty(), object.confidence.name != "high") << "told apart once it is sure";
      ASSERT_TRUE(object.parentIdentifier);
      EXPECT_EQ(object.parentIdentifier->has_value(), now->objects.size() == 2)
          << "a parent must be found first";
      hasSeenOrphan |= !*object.parentIdentifier;
    }
  }
  EXPECT_TRUE(hasSeenOrphan);
}

TEST(RoomPlayback, LooksAtWhatItFinds) {
  const auto room = smallRoom();
  const RoomPlayback playback(room, 10, 100);
  std::size_t seen = 0;
  for (Time time = 0; time < 10'000'000'000; time += 10'000'000) {
    const auto now = playback.roomAt(time);
    if (now->walls.size() == seen) continue;
    seen = now->walls.size();
    const Float4x4 pose = playback.cameraAt(time), &wall = room->walls[seen - 1].transform;
    const double x = wall.at(3, 0) - pose.at(3, 0), z = wall.at(3, 2) - pose.at(3, 2);
    EXPECT_GT((-pose.at(2, 0) * x - pose.at(2, 2) * z) / std::hypot(x, z), 0.99) << "wall " << seen;
  }
  EXPECT_EQ(seen, 4U);
}

TEST(RoomPlayback, SpreadsItsStepsOverTheSession) {
  struct Case {
    double seconds, rate;
    std::size_t updates;
  };
  for (const auto &[seconds, rate, updates] :
       {Case{10, 10, 100}, Case{10, 3, 30}, Case{1, 0.1, 1}, Case{0, 10, 1}, Case{0.25, 10, 2}}) {
    const RoomPlayback playback(std::make_shared<RoomDocument>(), seconds, rate);
    const auto &steps = playback.steps();
    EXPECT_EQ(static_cast<std::size_t>(std::count_if(steps.begin(), steps.end(), isUpdate)), updates);
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end(),
                               [](const auto &a, const auto &b) { return a.due < b.due; }));
    EXPECT_EQ(steps.back().due, std::llround(seconds * 1e9));
    EXPECT_TRUE(isUpdate(steps.back()));
    EXPECT_TRUE(playback.roomAt(steps.front().due)->isEmpty());
  }
}

TEST(RoomPlayback, RefusesSessionsThatNobodyScans) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinite = std::numeric_limits<double>::infinity();
  for (const double seconds : {-1.0, nan, infinite, 3601.0}) EXPECT_TRUE(RoomPlayback::refusal(seconds, 1));
  for (const double rate : {-1.0, 0.0, nan, infinite, 1001.0}) EXPECT_TRUE(RoomPlayback::refusal(1, rate));
  EXPECT_TRUE(RoomPlayback::refusal(3600, 1000));
  EXPECT_FALSE(RoomPlayback::refusal(3600, 10));
}

TEST(RoomPlayback, SurvivesRoomsBeyondReason) {
  auto room = std::make_shared<RoomDocument>();
  room->walls.resize(3);  // one identifier for all, and for its own parent
  room->objects.resize(2);
  const float huge = std::numeric_limits<float>::max();
  for (auto &wall : room->walls) wall.parentIdentifier = Uuid{};
  room->walls[1].transform.elements.fill(huge);
  room->walls[2].transform.elements.fill(-huge);
  room->objects[1].transform.elements.fill(huge);
  const RoomPlayback playback(room, 1, 10);
  for (const auto &step : playback.steps()) {
    EXPECT_LE(playback.roomAt(step.due)->walls.size(), 3U);
    playback.cameraAt(step.due);
  }
}

}  // namespace
}  // namespace vantorel
