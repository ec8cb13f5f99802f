#include "base/JsonWriter.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomText.h"
#include "rooms/RoomWriter.h"
#include "support/TestData.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cmath>
#include <cstdlib>

namespace vantorel {
namespace {

using testing::kRoomText;
using testing::roomTextWith;

rapidjson::Document parsed(const std::string &text) {
  rapidjson::Document document;
  document.Parse<rapidjson::kParseNumbersAsStringsFlag>(text.data(), text.size());
  EXPECT_FALSE(document.HasParseError());
  return document;
}

/// Equal up to the order of keys and the notation of numbers, which are compared as 32-bit floats.
bool isSame(const rapidjson::Value &a, const rapidjson::Value &b) {
  if (a.GetType() != b.GetType()) return false;
  if (a.IsString())
    return a == b || std::strtof(a.GetString(), nullptr) == std::strtof(b.GetString(), nullptr);
  if (a.IsArray())
    return std::equal(a.Begin(), a.End(), b.Begin(), b.End(), [](auto &x, auto &y) { return isSame(x, y); });
  if (!a.IsObject()) return true;
  return a.MemberCount() == b.MemberCount() && std::all_of(a.MemberBegin(), a.MemberEnd(), [&](auto &member) {
           auto other = b.FindMember(member.name);
           return other != b.MemberEnd() && isSame(member.value, other->value);
         });
}

TEST(RoomWriter, GivesTheBytesOfSortedPrettyRoomsBack) {
  SKIP_WITHOUT_SHARED_ROOMS();
  int identical = 0;
  for (const std::string &path : testing::sharedRooms()) {
    const std::string text = testing::readFile(path);
    RoomDocument room = readRoom(text);
    const std::string written = writeRoom(room);
    EXPECT_TRUE(isSame(parsed(text), parsed(written))) << path;
    EXPECT_EQ(writeRoom(readRoom(written)), written) << path;
    const bool isSorted = room.version == 2 && text.starts_with("{\n  \"coreModel\"");
    EXPECT_EQ(written == text, isSorted) << path;
    identical += isSorted;
  }
  EXPECT_EQ(identical, 9);
}

TEST(RoomWriter, WritesWhatItReadWithSortedKeys) {
  RoomDocument room = readRoom(roomTextWith(
      R"("curve":null)", R"("curve":{"center":[1,2],"endAngle":{"unit":{"converter":)"
                         R"({"coefficient":1,"constant":0},"symbol":"°"},"value":90},"radius":1.25,)"
                         R"("startAngle":{"unit":{"converter":{"coefficient":1,"constant":0},)"
                         R"("symbol":"°"},"value":-0.1}})"));
  EXPECT_EQ(writeVisibleValues(readRoom(writeRoom(room))), writeVisibleValues(room));
  EXPECT_NE(writeVisibleValues(room).find(R"("symbol":"°"},"value":-0.1}})"), std::string::npos);
  EXPECT_EQ(writeVisibleValues(readRoom(kRoomText)), roomTextWith(R"("coreModel":"QUJD\/w==",)", ""));
}

TEST(RoomWriter, RefusesNumbersWithoutAJsonForm) {
  RoomDocument room = readRoom(kRoomText);
  room.walls.at(0).dimensions.y = NAN;
  EXPECT_THROW(writeRoom(room), JsonEncodingError);
  room = readRoom(kRoomText);
  room.objects.at(0).transform.elements[12] = INFINITY;
  EXPECT_THROW(writeRoom(room), JsonEncodingError);
}

TEST(RoomIdentifier, IsTheDocumentsOwnOrMadeFromItsVisibleValues) {
  RoomDocument room = readRoom(kRoomText);
  // FNV-1a of 128 bits over the compact text, with the bits of version and variant, computed independently.
  EXPECT_EQ(identifierOf(room).text(), "333EEDF0-40F1-868B-9BEB-53BD8FE88764");
  EXPECT_EQ(identifierOf(readRoom(roomTextWith("QUJD", "WFla"))), identifierOf(room));
  EXPECT_EQ(identifierOf(readRoom(writeRoom(room))), identifierOf(room));
  EXPECT_NE(identifierOf(readRoom(roomTextWith("kitchen", "kitchem"))), identifierOf(room));
  room.identifier = room.walls.at(0).identifier;
  EXPECT_EQ(identifierOf(room), room.walls.at(0).identifier);
  EXPECT_EQ(readRoom(writeRoom(room)).identifier, room.identifier);
}

TEST(RoomDocument, IsEmptyWithoutAnythingScanned) {
  RoomDocument floors;
  floors.floors.emplace(1);
  EXPECT_TRUE(floors.isEmpty());
  for (const auto surfaces :
       {&RoomDocument::walls, &RoomDocument::doors, &RoomDocument::windows, &RoomDocument::openings}) {
    RoomDocument room;
    (room.*surfaces).emplace_back();
    EXPECT_FALSE(room.isEmpty());
  }
  RoomDocument furniture;
  furniture.objects.emplace_back();
  EXPECT_FALSE(furniture.isEmpty());
}

}  // namespace
}  // namespace vantorel
