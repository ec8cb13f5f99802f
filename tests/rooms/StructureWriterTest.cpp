#include "rooms/BuildStructure.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomText.h"
#include "rooms/RoomWriter.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

namespace vantorel {
namespace {

using namespace testing;

rapidjson::Document parsed(const std::string &text) {
  rapidjson::Document document;
  document.Parse(text.data(), text.size());
  EXPECT_FALSE(document.HasParseError());
  return document;
}

TEST(StructureWriter, WritesTheElementsAndTheRoomsAsTheyWere) {
  const auto room = shared(readRoom(kRoomText));
  RoomDocument old;  // of the first generation
  old.version = 1;
  old.walls = {wall(1, {0, 0, 0}, 4)};
  const std::string text = writeStructure(buildStructure({room, shared(old)}));
  const auto structure = parsed(text);
  std::string keys;
  for (const auto &member : structure.GetObject()) keys += std::string(member.name.GetString()) + ' ';
  EXPECT_EQ(keys, "doors floors objects openings rooms sections version walls windows ");
  EXPECT_EQ(structure["version"].GetInt(), 2);
  EXPECT_EQ(structure["walls"].Size(), 2u);
  EXPECT_TRUE(structure["walls"][0].HasMember("story"));
  EXPECT_FALSE(structure["walls"][1].HasMember("story"));
  EXPECT_EQ(structure["rooms"].Size(), 2u);
  EXPECT_TRUE(structure["rooms"][0] == parsed(writeRoom(*room)));
  EXPECT_TRUE(structure["rooms"][1] == parsed(writeRoom(old)));
  EXPECT_THROW(readRoom(text), RoomReadError);
}

}  // namespace
}  // namespace vantorel
