// Rooms that no scan here has: every case, through Foundation and back.
#include "model/Convert.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "rooms/RoomWriter.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

template <typename Element>
Element made(const char *category, const char *confidence) {
  Element element;
  element.category.name = category;
  element.confidence.name = confidence;
  element.dimensions = {0.1F, std::numeric_limits<float>::denorm_min(), -0.0F};
  element.transform.elements.fill(std::numeric_limits<float>::max());
  return element;
}

RoomDocument roomOfEveryCase() {
  RoomDocument room;
  for (const char *edge : {"top", "right", "bottom", "left"}) {
    Surface &wall = room.walls.emplace_back(made<Surface>("wall", "low"));
    wall.completedEdges.emplace().emplace_back().name = edge;
    wall.curve.emplace().emplace().radius = 2.5F;
  }
  room.doors = {made<Surface>("door", "medium")};
  room.doors[0].category.isOpen = true;
  room.windows = {made<Surface>("window", "high")};
  room.openings = {made<Surface>("opening", "high"), made<Surface>("floor", "high")};
  for (const char *category :
       {"storage", "refrigerator", "stove", "bed", "sink", "washerDryer", "toilet", "bathtub", "oven",
        "dishwasher", "table", "sofa", "chair", "fireplace", "television", "stairs"})
    room.objects.push_back(made<RoomObject>(category, "medium"));
  return room;
}

TEST(RoomThroughSwift, KeepsEveryCaseAndEveryBit) {
  const std::string text = writeRoom(roomOfEveryCase());
  const auto through = platform().decodeRoom(text), direct = simulatedPlatform().decodeRoom(text);
  EXPECT_TRUE(through->jsonText() == text);
  EXPECT_EQ(through->identifier(), direct->identifier());
  const auto content = through->content();
  EXPECT_TRUE(encodeToJson(content) == encodeToJson(direct->content()));
  EXPECT_TRUE(content.walls[3].completedEdges.left);
  EXPECT_EQ(content.walls[0].curve->radius, 2.5F);
  EXPECT_EQ(content.objects[15].category, CapturedRoomContent::ObjectCategory::stairs);
}

TEST(RoomThroughSwift, IsNoneWhereFoundationKnowsNoneOfItsCases) {
  RoomDocument room = roomOfEveryCase();
  room.objects[0].category.name = "aCaseOfALaterSystem";
  EXPECT_ANY_THROW(platform().decodeRoom(writeRoom(room)));
}

}  // namespace
}  // namespace vantorel
