#include "plan/FloorPlan.h"
#include "rooms/BuildStructure.h"
#include "rooms/RoomReader.h"
#include "support/SvgPicture.h"
#include "support/TestData.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <set>

namespace vantorel::plan {
namespace {

using namespace vantorel::testing;

RoomDocument sample(const std::string &name) {
  return readRoom(readFile(VANTOREL_SAMPLES_DIR "/" + name + ".json"));
}

std::string planOf(const RoomDocument &room, Units units = Units::metric) {
  return writeFloorPlan(room, units, "plan");
}

/// All of a room moved by a matrix that turns about y, so many metres up and to a storey.
RoomDocument moved(RoomDocument room, double degrees, float up, std::int64_t story) {
  const Float4x4 turn = standing({3, up, -7}, degrees);
  const auto move = [&](Float4x4 &pose) {
    const Float4x4 old = pose;
    for (int column = 0; column < 4; ++column)
      for (int row = 0; row < 4; ++row) {
        float sum = 0;
        for (int i = 0; i < 4; ++i) sum += turn.at(i, row) * old.at(column, i);
        pose.elements[static_cast<std::size_t>(4 * column + row)] = sum;
      }
  };
  for (auto *surfaces : {&room.walls, &room.doors, &room.windows, &room.openings, &*room.floors})
    for (Surface &surface : *surfaces) move(surface.transform), surface.story = story;
  for (RoomObject &object : room.objects) move(object.transform), object.story = story;
  for (Section &section : *room.sections) {
    Float4x4 place = standing(section.center);
    move(place);
    section = {{place.at(3, 0), place.at(3, 1), place.at(3, 2)}, section.label, story};
  }
  return room;
}

/// The samples as two storeys of one home.
RoomDocument twoStoreys() {
  return buildStructure({shared(moved(sample("house"), 0, 0, 0)), shared(moved(sample("flat"), 0, 2.9f, 1))})
      .elements;
}

RoomDocument merged(const std::vector<std::string> &files) {
  std::vector<std::shared_ptr<const RoomDocument>> rooms;
  for (const std::string &file : files) rooms.push_back(shared(readRoom(readFile(file))));
  return buildStructure(std::move(rooms)).elements;
}

/// Everything but names and numbers of furniture.
std::multiset<std::string> wordsOf(const std::string &svg) {
  std::multiset<std::string> words;
  for (const PictureText &text : readSvg(svg).texts)
    if (text.style != "thing" && text.style != "legend") words.insert(text.text);
  return words;
}

/// Every label stands alone and off the walls, and every piece of furniture has a name or a number.
void expectGood(const RoomDocument &room, const std::string &name) {
  for (const Units units : {Units::metric, Units::feet}) {
    const SvgPicture picture = readSvg(planOf(room, units));
    EXPECT_EQ(labelFaults(picture), "") << name;
    EXPECT_FALSE(picture.walls.empty()) << name;
    const auto isThing = [](const PictureText &text) { return text.style == "thing"; };
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(picture.texts, isThing)), room.objects.size())
        << name;
  }
}

TEST(FloorPlan, KeepsLabelsApartAndOffTheWallsInSamples) {
  for (const char *name : {"flat", "house"}) expectGood(sample(name), name);
  expectGood(twoStoreys(), "two storeys");
  expectGood(moved(sample("house"), 33, 0, 0), "turned house");
}

TEST(FloorPlan, KeepsLabelsApartAndOffTheWallsInRealRooms) {
  SKIP_WITHOUT_SHARED_ROOMS();
  std::vector<std::string> home;
  for (const std::string &file : sharedRooms()) {
    expectGood(readRoom(readFile(file)), file);
    if (file.find("i17-apple") != file.npos) home.push_back(file);
  }
  EXPECT_EQ(home.size(), 8U);
  expectGood(merged(home), "a merged home");
}

TEST(FloorPlan, IsHeldToThoseRules) {
  std::string svg = planOf(sample("flat"));
  const std::size_t bed = svg.find(">Bed<"), x = svg.rfind(" x=\"", bed);
  ASSERT_NE(bed, svg.npos);
  svg.replace(x, svg.find('"', x + 4) - x, " x=\"120");
  EXPECT_NE(labelFaults(readSvg(svg)).find("Bed is over a wall"), std::string::npos);
  EXPECT_THROW(readSvg(svg.replace(svg.find("</g>"), 4, "")), std::runtime_error);
}

TEST(FloorPlan, SaysTheSameHoweverTheRoomLiesInTheWorld) {
  for (const char *name : {"flat", "house"})
    for (const double degrees : {12., 90., 224.})
      EXPECT_EQ(wordsOf(planOf(moved(sample(name), degrees, 1, 0))), wordsOf(planOf(sample(name))))
          << name << degrees;
}

TEST(FloorPlan, GivesAreasAndLengths) {
  const std::multiset<std::string> metric = wordsOf(planOf(sample("house")));
  // The kitchen is 3.5 m by 3.5 m, less the wall of the hall in its south; the bedroom 3.5 by 4.5.
  for (const char *text :
       {"Kitchen", "Bedroom", "15.8 m²", "3.50", "4.50", "8.00", "1:75, lengths in metres"})
    EXPECT_TRUE(metric.contains(text)) << text;
  const std::multiset<std::string> feet = wordsOf(planOf(sample("house"), Units::feet));
  for (const char *text : {"170 sq ft", "11'-6\"", "14'-9\"", "26'-3\"", "10 ft"})
    EXPECT_TRUE(feet.contains(text)) << text;
}

TEST(FloorPlan, WritesNoNameOverWhatHidesItsPiece) {
  RoomDocument room = sample("flat");
  room.objects.resize(2, room.objects.at(0));
  for (RoomObject &object : room.objects) object.transform = standing({0, 0, 0});
  room.objects[0].category.name = "sofa", room.objects[0].dimensions = {2, 1, 1.6f};
  room.objects[1].category.name = "stove",
  room.objects[1].dimensions = {1.9f, 1, 0.7f};  // on the sofa's middle
  for (RoomObject &object : room.objects) object.attributes.reset();
  const SvgPicture picture = readSvg(planOf(room));
  const auto labelOf = [&](const char *text) {
    return std::ranges::find(picture.texts, text, &PictureText::text)->box.centre();
  };
  ASSERT_TRUE(wordsOf(planOf(room)).contains("1:25, lengths in metres"));
  const double metre = kPixelsPerInch / 0.0254 / 25;
  EXPECT_GT(length(labelOf("Sofa") - labelOf("Stove")), 0.35 * metre);
}

TEST(FloorPlan, DrawsStoreysSideBySide) {
  const SvgPicture picture = readSvg(planOf(twoStoreys()));
  std::vector<Box> captions;
  for (const PictureText &text : picture.texts)
    if (text.style == "caption") captions.push_back(text.box);
  ASSERT_EQ(captions.size(), 2U);
  EXPECT_EQ(captions[0].low.y, captions[1].low.y);
  EXPECT_LT(captions[0].high.x, captions[1].low.x);
  // Rooms scanned one by one all have storey 0: then their height tells.
  const RoomDocument byHeight =
      buildStructure({shared(moved(sample("house"), 0, 0, 0)), shared(moved(sample("flat"), 0, 2.9f, 0))})
          .elements;
  EXPECT_EQ(wordsOf(planOf(byHeight)), wordsOf(planOf(twoStoreys())));
}

TEST(FloorPlan, FindsTheFloorOfARoomWithoutOne) {
  // Four by three metres; the first wall goes on for a metre beyond the corner.
  RoomDocument room;
  room.walls = {wall(1, {0.5f, 0, -1.5f}, 5, 0), wall(2, {2, 0, 0}, 3, 270), wall(3, {0, 0, 1.5f}, 4, 180),
                wall(4, {-2, 0, 0}, 3, 90)};
  const auto words = wordsOf(planOf(room));
  EXPECT_TRUE(words.contains("Room") && words.contains("12.0 m²"));
  room.walls.pop_back();
  EXPECT_FALSE(wordsOf(planOf(room)).contains("Room")) << "the walls do not close";
}

TEST(FloorPlan, TakesWhateverADocumentHolds) {
  constexpr float kMost = std::numeric_limits<float>::max(), kNaN = std::numeric_limits<float>::quiet_NaN();
  for (const float wild :
       {0.f, -1.f, 1e-30f, 1e5f, kMost, -kMost, std::numeric_limits<float>::infinity(), kNaN}) {
    for (const int place : {0, 1, 2, 3, 4}) {
      RoomDocument room = sample("flat");
      const auto spoil = [&](auto &element) {
        (place < 3 ? (place == 0   ? element.dimensions.x
                      : place == 1 ? element.dimensions.y
                                   : element.dimensions.z)
                   : element.transform.elements[place == 3 ? 0 : 12]) = wild;
      };
      for (auto *surfaces : {&room.walls, &room.doors, &room.windows, &room.openings, &*room.floors})
        spoil(surfaces->at(0));
      for (RoomObject &object : room.objects) spoil(object);
      room.sections->at(0).center.x = wild;
      const SvgPicture picture = readSvg(planOf(room));
      EXPECT_EQ(labelFaults(picture), "") << wild << " at " << place;
      EXPECT_LT(picture.sheet.width(), 3000) << wild << " at " << place;
    }
  }
  EXPECT_EQ(labelFaults(readSvg(planOf({}))), "");
}

TEST(FloorPlan, EscapesEveryText) {
  RoomDocument room = sample("flat");
  room.sections->at(0).label = "<b>&\"\x01\xFF\xEF\xBF\xBF'";
  room.objects[0].category.name = "]]>\n<script>";
  const std::string svg = writeFloorPlan(room, Units::metric, "</title>&");
  EXPECT_EQ(labelFaults(readSvg(svg)), "");
  EXPECT_EQ(svg.find("<script"), svg.npos);
}

TEST(FloorPlan, RefusesMoreThanAPlanCanShow) {
  RoomDocument room;
  room.walls.assign(kMostElements + 1, wall(1, {0, 0, 0}, 1));
  EXPECT_THROW(planOf(room), PlanError);
  room.walls.clear();
  room.sections.emplace(kMostSections + 1);
  EXPECT_THROW(planOf(room), PlanError);
}

/// After a wanted change: VANTOREL_UPDATE_PICTURES=1 build/dev/bin/vantorel_tests --gtest_filter='*Pictures'
TEST(FloorPlan, IsCurrentInTheDocumentationsPictures) {
  const std::pair<std::string, std::string> pictures[] = {
      {"house", writeFloorPlan(sample("house"), Units::metric, "house")},
      {"flat-feet", writeFloorPlan(sample("flat"), Units::feet, "flat")},
      {"two-storeys", writeFloorPlan(twoStoreys(), Units::metric, "two storeys")}};
  for (const auto &[name, svg] : pictures) {
    const std::string file = VANTOREL_SOURCE_DIR "/docs/plans/" + name + ".svg";
    if (std::getenv("VANTOREL_UPDATE_PICTURES")) writeFile(file, svg);
    EXPECT_TRUE(readFile(file) == svg) << file << " is not current";
  }
}

}  // namespace
}  // namespace vantorel::plan
