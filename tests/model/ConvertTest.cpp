#include "model/Convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

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

/// A wall, an open door with a curve, an opening, a window and a table, in which every value tells its place.
Content furnishedRoom() {
  Content room;
  room.windows = {surface(SurfaceCategory::window)};
  room.openings = {surface(SurfaceCategory::opening)};
  room.doors = {surface(SurfaceCategory::door)};
  room.doors[0].isOpen = true;
  room.doors[0].curve = Content::Curve{0.1 + 0.2, static_cast<double>(0.1F), 0.1F};
  room.doors[0].completedEdges = {.top = true, .bottom = true};
  room.walls = {surface(SurfaceCategory::wall)};
  room.walls[0].completedEdges = {.top = true, .right = true};
  room.objects.resize(1);
  room.objects[0].category = ObjectCategory::table;
  room.objects[0].transform = countingMatrix();
  return room;
}

std::string withoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
  return text;
}

std::string encoded(const Content &room) { return withoutBlanks(encodeToJson(room).value()); }

/// Whether the texts are those of the cases from 0 on.
template <typename Case, typename TextOf>
void expectTexts(const std::string &expected, TextOf textOf) {
  std::istringstream texts(expected);
  int number = 0;
  for (std::string text; texts >> text; ++number) EXPECT_EQ(textOf(static_cast<Case>(number)), text);
}

TEST(Convert, NamesEveryCategoryAndConfidence) {
  expectTexts<ObjectCategory>(
      "unknown storage refrigerator stove bed sink washer/dryer toilet bathtub oven dishwasher table sofa "
      "chair fireplace television stairs",
      [](ObjectCategory category) {
        Content::Object object;
        object.category = category;
        return toModle(object).category;
      });
  expectTexts<SurfaceCategory>("unknown wall opening window door",
                               [](SurfaceCategory category) { return toModel(surface(category))->category; });
  expectTexts<Content::Confidence>("unknown low medium high",
                                   [](Content::Confidence confidence) { return toModel(confidence); });
}

TEST(EncodeToJson, WritesAnEmptyRoomAsTwoEmptyArrays) {
  EXPECT_EQ(encodeToJson({}), "{\n  \"surfaces\" : [\n\n  ],\n  \"objects\" : [\n\n  ]\n}");
}

TEST(EncodeToJson, WritesWallsDoorsOpeningsWindowsAndObjectsWithEveryMemberInItsOrder) {
  const std::string zeros = "[0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0]", noEdge = "[false,false,false,false]",
                    id = "\"00000000-0000-0000-0000-000000000000\"";
  const auto surfaceText = [&](const std::string &category, const std::string &edges,
                               const std::string &curve = "", const std::string &isOpen = "") {
    return "{\"category\":\"" + category + "\",\"id\":" + id +
           R"(,"confidence":"high","scale":{"x":0,"y":0,"z":0},"transform":)" + zeros + curve +
           ",\"edges\":" + edges + isOpen + "}";
  };
  const std::string door = surfaceText(
      "door", "[true,false,true,false]",
      R"(,"curve":{"startAngle":0.30000000000000004,"endAngle":0.10000000149011612,"radius":0.1})",
      ",\"isOpen\":true");
  EXPECT_EQ(encoded(furnishedRoom()),
            "{\"surfaces\":[" + surfaceText("wall", "[true,true,false,false]") + "," + door + "," +
                surfaceText("opening", noEdge) + "," + surfaceText("window", noEdge) +
                "],\"objects\":[{\"id\":" + id +
                R"(,"category":"table","confidence":"unknown","scale":{"x":0,"y":0,"z":0},)" +
                R"("transform":[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16]}]})");
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

TEST(EncodeToJson, GivesNothingForANumberThatIsNotFinite) {
  for (const float bad : {NAN, HUGE_VALF, -HUGE_VALF}) {
    Content room = furnishedRoom();
    room.objects[0].dimensions.x = bad;
    EXPECT_FALSE(encodeToJson(room));
  }
}

}  // namespace
}  // namespace vantorel
