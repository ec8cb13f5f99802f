#include "model/Convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace vantorel {
namespace {

using Content = CapturedRoomContent;
using SurfaceCategory = Content::SurfaceCategory;
using ObjectCategory = Content::ObjectCategory;

/// 1, 2, ... 16, so that every element tells its place.
Float4x4 countingMatrix() {
  Float4x4 matrix;
  for (std::size_t i = 0; i < 16; ++i) matrix.elements[i] = static_cast<float>(i + 1);
  return matrix;
}

Content::Surface surface(SurfaceCategory category) {
  Content::Surface made;
  made.category = category;
  made.confidence = Content::Confidence::high;
  return made;
}

/// A wall, an open door with a curve, an opening, a window and a table.
Content furnishedRoom() {
  Content room;
  room.windows = {surface(SurfaceCategory::window)};
  room.openings = {surface(SurfaceCategory::opening)};
  room.doors = {surface(SurfaceCategory::door)};
  room.doors[0].isOpen = true;
  room.doors[0].curve = Content::Curve{-0.61, 0.61, 3.1F};
  room.walls = {surface(SurfaceCategory::wall)};
  room.objects.resize(1);
  room.objects[0].category = ObjectCategory::table;
  return room;
}

std::string withoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
  return text;
}

std::string encoded(const Content &room) { return withoutBlanks(encodeToJson(room).value()); }

TEST(Convert, NamesEveryCategoryAndConfidence) {
  const std::pair<ObjectCategory, const char *> objects[] = {
      {ObjectCategory::bathtub, "bathtub"},
      {ObjectCategory::bed, "bed"},
      {ObjectCategory::chair, "chair"},
      {ObjectCategory::dishwasher, "dishwasher"},
      {ObjectCategory::fireplace, "fireplace"},
      {ObjectCategory::oven, "oven"},
      {ObjectCategory::refrigerator, "refrigerator"},
      {ObjectCategory::sink, "sink"},
      {ObjectCategory::sofa, "sofa"},
      {ObjectCategory::stairs, "stairs"},
      {ObjectCategory::storage, "storage"},
      {ObjectCategory::stove, "stove"},
      {ObjectCategory::table, "table"},
      {ObjectCategory::television, "television"},
      {ObjectCategory::toilet, "toilet"},
      {ObjectCategory::washerDryer, "washer/dryer"},
      {ObjectCategory::unknown, "unknown"},
  };
  for (const auto &[category, text] : objects) {
    Content::Object object;
    object.category = category;
    EXPECT_EQ(toModle(object).category, text);
  }
  const std::pair<SurfaceCategory, const char *> surfaces[] = {
      {SurfaceCategory::wall, "wall"},       {SurfaceCategory::opening, "opening"},
      {SurfaceCategory::window, "window"},   {SurfaceCategory::door, "door"},
      {SurfaceCategory::unknown, "unknown"},
  };
  for (const auto &[category, text] : surfaces) EXPECT_EQ(toModel(surface(category))->category, text);

  EXPECT_EQ(toModel(Content::Confidence::high), "high");
  EXPECT_EQ(toModel(Content::Confidence::medium), "medium");
  EXPECT_EQ(toModel(Content::Confidence::low), "low");
  EXPECT_EQ(toModel(Content::Confidence::unknown), "unknown");
}

TEST(Convert, KeepsMatricesColumnByColumnAndEdgesClockwise) {
  const auto transform = toModel(countingMatrix());
  for (std::size_t i = 0; i < 16; ++i) EXPECT_EQ(transform[i], static_cast<float>(i + 1));
  EXPECT_EQ(countingMatrix().at(3, 1), transform[13]) << "the translation's y";

  EXPECT_EQ(toModel(Content::Edges{.top = true}), (EdgesModel{true, false, false, false}));
  EXPECT_EQ(toModel(Content::Edges{.right = true}), (EdgesModel{false, true, false, false}));
  EXPECT_EQ(toModel(Content::Edges{.bottom = true}), (EdgesModel{false, false, true, false}));
  EXPECT_EQ(toModel(Content::Edges{.left = true}), (EdgesModel{false, false, false, true}));
}

TEST(Convert, OrdersWallsDoorsOpeningsWindowsAndMakesDoorsOfDoors) {
  const RoomModel model = toModel(furnishedRoom());
  const char *categories[] = {"wall", "door", "opening", "window"};
  ASSERT_EQ(model.surfaces.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(model.surfaces[i]->category, categories[i]);
  const auto *door = dynamic_cast<const DoorModel *>(model.surfaces[1].get());
  ASSERT_NE(door, nullptr);
  EXPECT_TRUE(door->isOpen);
  EXPECT_EQ(dynamic_cast<const DoorModel *>(model.surfaces[0].get()), nullptr);
}

TEST(EncodeToJson, WritesAnEmptyRoomAsTwoEmptyArrays) {
  EXPECT_EQ(encodeToJson({}), "{\n  \"surfaces\" : [\n\n  ],\n  \"objects\" : [\n\n  ]\n}");
}

TEST(EncodeToJson, WritesEveryMemberInDeclaredOrder) {
  const std::string zeros = "[0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0]";
  const std::string id = "\"00000000-0000-0000-0000-000000000000\"";
  const auto surfaceText = [&](const std::string &category, const std::string &curve,
                               const std::string &isOpen) {
    return "{\"category\":\"" + category + "\",\"id\":" + id +
           R"(,"confidence":"high","scale":{"x":0,"y":0,"z":0},"transform":)" + zeros + curve +
           ",\"edges\":[false,false,false,false]" + isOpen + "}";
  };
  EXPECT_EQ(encoded(furnishedRoom()),
            "{\"surfaces\":[" + surfaceText("wall", "", "") + "," +
                surfaceText("door", R"(,"curve":{"startAngle":-0.61,"endAngle":0.61,"radius":3.1})",
                            ",\"isOpen\":true") +
                "," + surfaceText("opening", "", "") + "," + surfaceText("window", "", "") +
                "],\"objects\":[{\"id\":" + id +
                R"(,"category":"table","confidence":"unknown","scale":{"x":0,"y":0,"z":0},"transform":)" +
                zeros + "}]}");
}

TEST(EncodeToJson, PrintsNumbersIdentifiersAndSlashesAsThePlatformDoes) {
  Content room;
  room.objects.resize(1);
  auto &object = room.objects[0];
  object.identifier = Uuid::parse("0a1b2c3d-4e5f-6789-abcd-ef0123456789").value();
  object.category = ObjectCategory::washerDryer;
  object.dimensions = {0.1F, -0.0F, 1.0F};
  object.transform.elements = {1e-5F, 20000000.0F, 16777216.0F, 0.70710677F};
  const std::string text = encodeToJson(room).value();
  for (const char *line : {
           R"(      "id" : "0A1B2C3D-4E5F-6789-ABCD-EF0123456789",)",
           R"(      "category" : "washer\/dryer",)",
           R"(        "x" : 0.1,)",
           R"(        "y" : -0,)",
           R"(        "z" : 1)",
           "        1e-05,",
           "        2e+07,",
           "        16777216,",
           "        0.70710677,",
       })
    EXPECT_NE(text.find("\n" + std::string(line) + "\n"), std::string::npos) << line << " in\n" << text;
}

TEST(EncodeToJson, KeepsAnglesAsDoublesAndTheRadiusAsFloat) {
  Content room;
  room.walls = {surface(SurfaceCategory::wall)};
  room.walls[0].curve = Content::Curve{0.1 + 0.2, static_cast<double>(0.1F), 0.1F};
  EXPECT_NE(encoded(room).find(
                R"("curve":{"startAngle":0.30000000000000004,"endAngle":0.10000000149011612,"radius":0.1})"),
            std::string::npos);
}

TEST(EncodeToJson, GivesNothingForANumberThatIsNotFinite) {
  const std::function<void(Content &, float)> places[] = {
      [](Content &room, float bad) { room.walls[0].dimensions.z = bad; },
      [](Content &room, float bad) { room.windows[0].transform.elements[15] = bad; },
      [](Content &room, float bad) { room.doors[0].curve->startAngle = static_cast<double>(bad); },
      [](Content &room, float bad) { room.doors[0].curve->endAngle = static_cast<double>(bad); },
      [](Content &room, float bad) { room.doors[0].curve->radius = bad; },
      [](Content &room, float bad) { room.objects[0].dimensions.x = bad; },
      [](Content &room, float bad) { room.objects[0].transform.elements[0] = bad; },
  };
  ASSERT_TRUE(encodeToJson(furnishedRoom()));
  for (const auto &spoil : places)
    for (const float bad : {NAN, HUGE_VALF, -HUGE_VALF}) {
      Content room = furnishedRoom();
      spoil(room, bad);
      EXPECT_FALSE(encodeToJson(room));
    }
}

}  // namespace
}  // namespace vantorel
