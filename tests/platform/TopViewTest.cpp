#include "platform/simulated/TopView.h"
#include "support/DeviceTest.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace vantorel::testing {
namespace {

using Pixel = std::array<int, 3>;

constexpr Pixel kPaper = {250, 249, 246}, kFloor = {236, 229, 216}, kInk = {52, 58, 66},
                kFurniture = {214, 219, 224}, kDoor = {168, 96, 44}, kWindow = {86, 156, 214},
                kCamera = {226, 74, 51};

/// 620 by 740 pixels show 5 m by 5.6 m at 100 pixels a metre.
constexpr int kWidth = 620, kHeight = 740;

Float4x4 placedAt(float x, float z, float yaw = 0) {
  const float c = std::cos(yaw), s = std::sin(yaw);
  return {{c, 0, -s, 0, 0, 1, 0, 0, s, 0, c, 0, x, 1, z, 1}};
}

Surface surface(float width, Float4x4 transform) {
  Surface made;
  made.dimensions = {width, 2, 0};
  made.transform = transform;
  return made;
}

/// The floor from -2.5 to 2.5 in x and from -1 to 1 in z; a wall along its back and one down its left side.
RoomDocument room() {
  constexpr float kQuarter = 1.57079633F;
  RoomDocument room;
  room.walls = {surface(5, placedAt(0, -1)), surface(2, placedAt(-2.5F, 0, kQuarter))};
  room.doors = {surface(1, placedAt(1, -1))};
  room.windows = {surface(1, placedAt(-1, -1))};
  Surface floor = surface(5, {{1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1}});
  room.floors.emplace().push_back(floor);
  RoomObject table;
  table.dimensions = {1, 1, 0.5F};
  table.transform = placedAt(1.5F, 0.5F);
  room.objects.push_back(table);
  return room;
}

/// The pixel at a place of the world, if its middle is the picture's.
Pixel at(const Picture &picture, double x, double z) {
  const auto column = static_cast<std::size_t>(kWidth / 2 + 100 * x);
  const auto row = static_cast<std::size_t>((kHeight - 60) / 2 + 100 * z);
  const std::uint8_t *pixel = &picture.rgb.at(3 * (row * kWidth + column));
  return {pixel[0], pixel[1], pixel[2]};
}

TEST(TopView, DrawsEverythingWhereItIs) {
  const RoomDocument seen = room();
  const Picture picture = topView(&seen, placedAt(-1.5F, 0.5F), kWidth, kHeight);
  ASSERT_EQ(picture.rgb.size(), 3U * kWidth * kHeight);
  EXPECT_EQ(at(picture, 0, -1), kInk) << "the back wall is at the top";
  EXPECT_EQ(at(picture, 0, -0.85), kFloor);
  EXPECT_EQ(at(picture, 0, -1.15), kPaper);
  EXPECT_EQ(at(picture, -2.5, 0), kInk) << "the left wall";
  EXPECT_EQ(at(picture, -2.55, -1.05), kInk) << "walls meet in the corner";
  EXPECT_EQ(at(picture, 2.4, 0), kFloor);
  EXPECT_EQ(at(picture, 2.6, 0), kPaper);
  EXPECT_EQ(at(picture, 1, -1), kDoor);
  EXPECT_EQ(at(picture, 1, -1.06), kFloor) << "a gap in the wall";
  EXPECT_EQ(at(picture, -1, -1), kWindow);
  EXPECT_EQ(at(picture, 1.5, 0.5), kFurniture);
  EXPECT_EQ(at(picture, 1.5, 0.8), kFloor);
  EXPECT_EQ(at(picture, -1.5, 0.5), kCamera);
  EXPECT_NE(at(picture, -1.5, 0.1), kFloor) << "it looks along -z";
  EXPECT_EQ(at(picture, -1.5, 0.9), kFloor);
}

TEST(TopView, ShowsTheCameraWithoutARoom) {
  EXPECT_EQ(at(topView(nullptr, placedAt(7, 8), kWidth, kHeight), 0, 0), kCamera);
  EXPECT_EQ(at(topView(nullptr, std::nullopt, kWidth, kHeight), 0, 0), kPaper);
  EXPECT_EQ(at(topView(nullptr, Float4x4(), kWidth, kHeight), 0, 0), kCamera) << "which looks nowhere";
}

TEST(TopView, FollowsTheFloorsOutline) {
  RoomDocument seen = room();
  seen.floors->front().polygonCorners.emplace({Float3{-2.5F, -1, 0}, Float3{2.5F, -1, 0}, Float3{2.5F, 0, 0},
                                               Float3{0, 0, 0}, Float3{0, 1, 0}, Float3{-2.5F, 1, 0}});
  const Picture picture = topView(&seen, std::nullopt, kWidth, kHeight);
  EXPECT_EQ(at(picture, -1, 0.3), at(picture, 0.5, -0.3));
  EXPECT_NE(at(picture, 2, 0.9), at(picture, -2, -0.5));
}

TEST(TopView, TakesAnyRoom) {
  constexpr float kMost = std::numeric_limits<float>::max(), kNone = std::numeric_limits<float>::quiet_NaN(),
                  kInfinite = std::numeric_limits<float>::infinity();
  for (const float length : {0.0F, kMost, kNone, kInfinite}) {
    RoomDocument seen = room();
    seen.walls.push_back(surface(length, placedAt(length, 0, length)));
    seen.objects[0].dimensions = {length, length, length};
    seen.floors->push_back(surface(length, placedAt(0, 0)));
    const Picture picture = topView(&seen, placedAt(length, length), kWidth, kHeight);
    EXPECT_EQ(at(picture, 2, -1) == kInk, length != kMost) << length;
  }
}

}  // namespace
}  // namespace vantorel::testing
