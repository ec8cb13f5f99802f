#include "rooms/RoomReader.h"
#include "rooms/RoomText.h"
#include "rooms/RoomWriter.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::kRoomText;
using testing::roomTextWith;

/// The message with which a text is refused.
std::string refusal(std::string_view text) {
  try {
    readRoom(text);
  } catch (const RoomReadError &error) {
    EXPECT_GE(error.line, 1u);
    EXPECT_GE(error.column, 1u);
    return error.what();
  }
  return "nothing";
}

void expectRefused(const std::string &text, const std::string &keyPath, const std::string &reason) {
  std::string message = refusal(text);
  EXPECT_NE(message.find((keyPath.empty() ? "" : " (" + keyPath + ")") + ": " + reason), message.npos)
      << "got: " << message;
}

std::string repeated(std::string_view piece, std::size_t count) {
  std::string text;
  for (; count > 0; --count) text += piece;
  return text;
}

TEST(RoomReader, KeepsAbsentAndNullApart) {
  Surface wall =
      readRoom(roomTextWith(R"("curve":null,"dimensions":[4,)", R"("dimensions":[4,)")).walls.at(0);
  EXPECT_FALSE(wall.curve);
  RoomObject chair = readRoom(roomTextWith(R"("attributes":{"ChairType":"stool"},)", "")).objects.at(0);
  EXPECT_FALSE(chair.attributes);
  RoomDocument room = readRoom(roomTextWith(R"("floors":[])", R"("floors":null)"));
  EXPECT_FALSE(room.floors);
  EXPECT_FALSE(readRoom(roomTextWith(R"("QUJD\/w==")", "null")).coreModel);
}

TEST(RoomReader, IgnoresUnknownKeys) {
  std::string plain = writeRoom(readRoom(kRoomText));
  for (std::string_view added : {R"("a":[{"b":[[1e30,"\ud83d\ude00"],{}],"walls":7},null,true],)",
                                 R"("é":"\u0000",)", R"("":{"version":"x"},)"}) {
    EXPECT_EQ(writeRoom(readRoom(roomTextWith("\"version\"", std::string(added) + "\"version\""))), plain);
    EXPECT_EQ(writeRoom(readRoom(roomTextWith("\"category\"", std::string(added) + "\"category\""))), plain);
  }
  EXPECT_EQ(writeRoom(readRoom(roomTextWith("\"version\"", R"("v\u0065rsion")"))), plain);
}

TEST(RoomReader, TakesTheFirstOfEqualKeys) {
  std::string plain = writeRoom(readRoom(kRoomText));
  EXPECT_EQ(writeRoom(readRoom(
                roomTextWith(R"("windows":[])", R"("windows":[],"version":9,"walls":3,"coreModel":"X")"))),
            plain);
  EXPECT_EQ(writeRoom(readRoom(roomTextWith(R"("stool")", R"("stool","ChairType":"dining")"))), plain);
}

TEST(RoomReader, KeepsUnknownCases) {
  RoomDocument room = readRoom(roomTextWith(
      R"({"chair":{}})", "{\"hover\\u0020pod\" : { \"a b\" : [ 1.50, \"c \\\" d\" ],\n\"e\":{ }}}"));
  const EnumCase &category = room.objects.at(0).category;
  EXPECT_EQ(category.name, "hover pod");
  EXPECT_EQ(category.payload, R"({"a b":[1.50,"c \" d"],"e":{}})");
  EXPECT_NE(writeRoom(room).find("\"hover pod\" : " + category.payload), std::string::npos);
  EXPECT_EQ(readRoom(roomTextWith(R"({"high":{}})", R"({"certain":{}})")).walls.at(0).confidence,
            (EnumCase{"certain", {}, ""}));
}

TEST(RoomReader, KeepsCoreModelAsItWasWritten) {
  for (std::string_view written : {"", "a/b", R"(\u0041\"\\)", "é", R"(\\)"}) {
    std::string text = roomTextWith(R"(QUJD\/w==)", written);
    RoomDocument room = readRoom(text);
    EXPECT_EQ(*room.coreModel, written);
    EXPECT_EQ(*readRoom(writeRoom(room)).coreModel, written);
  }
  EXPECT_EQ(*readRoom(roomTextWith("\"coreModel\"", R"("core\u004dodel")")).coreModel, R"(QUJD\/w==)");
}

TEST(RoomReader, IsNotMisledByOtherKeysNamedCoreModel) {
  RoomDocument room =
      readRoom(roomTextWith(R"("coreModel":"QUJD\/w==",)", "").replace(2, 0, "windows\":[],\""));
  EXPECT_FALSE(room.coreModel);
  std::string nested = roomTextWith(R"("coreModel":"QUJD\/w==",)", "");
  nested.replace(nested.find(R"("ChairType":"stool")"), 19, R"("coreModel":"stool")");
  room = readRoom(nested);
  EXPECT_FALSE(room.coreModel);
  EXPECT_EQ(room.objects.at(0).attributes->at(0).second, "stool");
  room = readRoom(roomTextWith(R"({"chair":{}})", R"({"pod":{"coreModel":"xyz"}})"));
  EXPECT_EQ(room.objects.at(0).category.payload, R"({"coreModel":"xyz"})");
  EXPECT_EQ(*room.coreModel, R"(QUJD\/w==)");
}

TEST(RoomReader, RefusesAStructure) {
  for (std::string_view rooms : {"[]", "null", "3"})
    expectRefused("{\"rooms\":" + std::string(rooms) + "}", "rooms", "this is a structure of several rooms");
}

TEST(RoomReader, NamesMissingKeys) {
  for (const char *key : {"doors", "objects", "openings", "version", "walls", "windows"})
    expectRefused(roomTextWith("\"" + std::string(key) + "\"", "\"x\""), "",
                  "the key \"" + std::string(key) + "\" is missing");
  for (const char *key : {"category", "confidence", "dimensions", "identifier", "transform"})
    expectRefused(roomTextWith("\"" + std::string(key) + "\"", "\"x\""), "doors[0]",
                  "the key \"" + std::string(key) + "\" is missing");
  expectRefused(roomTextWith("\"isOpen\":true", ""), "doors[0].category.door",
                "the key \"isOpen\" is missing");
  expectRefused(roomTextWith("\"label\"", "\"x\""), "sections[0]", "the key \"label\" is missing");
  const std::string withoutEdges = writeRoom(readRoom(roomTextWith(R"("completedEdges":[],)", "")));
  EXPECT_EQ(readRoom(withoutEdges).doors[0].completedEdges, std::nullopt);
}

TEST(RoomReader, NamesTheKeyPathOfAWrongValue) {
  const struct {
    const char *piece, *replacement, *keyPath, *reason;
  } cases[] = {
      {"[0.9,2.1,0]", "[0.9,2.1]", "doors[0].dimensions", "expected 3 numbers, got 2"},
      {"[0.9,2.1,0]", "[0.9,2.1,0,0]", "doors[0].dimensions[3]", "expected 3 numbers, got more"},
      {"[0.9,2.1,0]", "\"0.9\"", "doors[0].dimensions", "expected 3 numbers, got a string"},
      {"[0.9,2.1,0]", "[0.9,\"2.1\",0]", "doors[0].dimensions[1]", "expected a number, got a string"},
      {"[0.9,2.1,0]", "[0.9,3.5e38,0]", "doors[0].dimensions[1]", "3.5e38 does not fit a 32-bit float"},
      {"[0.9,2.1,0]", "[0.9,1e-46,0]", "doors[0].dimensions[1]", "1e-46 does not fit a 32-bit float"},
      {"[0.9,2.1,0]", "[0.9,1e400,0]", "doors[0].dimensions[1]", "a number too large"},
      {"[0.9,2.1,0]", "[0.9,[],0]", "doors[0].dimensions[1]", "expected a number, got an array"},
      {"[0.9,2.1,0]", "null", "doors[0].dimensions", "expected 3 numbers, got null"},
      {"-0.5,0,2,1]", "-0.5,0,2]", "doors[0].transform", "expected 16 numbers, got 15"},
      {"\"story\":0", "\"story\":0.5", "doors[0].story", "0.5 is not a whole number"},
      {"\"version\":2", "\"version\":9223372036854775808", "version",
       "9223372036854775808 is not a whole number"},
      {"\"version\":2", "\"version\":\"2\"", "version", "expected a whole number, got a string"},
      {"\"version\":2", "\"version\":true", "version", "expected a whole number, got true"},
      {"\"isOpen\":true", "\"isOpen\":1", "doors[0].category.door.isOpen",
       "expected true or false, got a number"},
      {"0A000000-", "{0A000000-", "doors[0].parentIdentifier", "expected a UUID"},
      {"{\"wall\":{}}", "\"wall\"", "walls[0].category", "expected a case such as"},
      {"{\"wall\":{}}", "{\"wall\":null}", "walls[0].category.wall", "expected an object, got null"},
      {"{\"wall\":{}}", "{\"wall\":{},\"door\":{}}", "walls[0].category.door",
       "expected one case, got several"},
      {"{\"wall\":{}}", "{}", "walls[0].category", "expected a case such as"},
      {"\"curve\":null", "\"curve\":{\"radius\":1,\"startAngle\":{\"value\":1}}", "doors[0].curve.startAngle",
       "the key \"unit\" is missing"},
      {"\"stool\"", "1", "objects[0].attributes.ChairType", "expected a string, got a number"},
      {"\"kitchen\"", "\"\\udc00\"", "sections[0].label", "half of a surrogate pair"},
      {"\"coreModel\":\"QUJD\\/w==\"", "\"coreModel\":{}", "coreModel", "expected a string, got an object"},
      {"\"windows\":[]", "\"windows\":{}", "windows", "expected an array, got an object"},
      {"\"windows\":[]", "\"windows\":[null]", "windows[0]", "expected a surface, got null"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.replacement);
    expectRefused(roomTextWith(c.piece, c.replacement), c.keyPath, c.reason);
  }
}

TEST(RoomReader, NamesLineAndColumnBehindTheCoreModel) {
  std::string text = "{\n  \"coreModel\" : \"" + std::string(5000, 'A') + "\",\n  \"version\" : x\n}";
  EXPECT_EQ(refusal(text), "line 3, column 15 (version): expected a JSON value");
  EXPECT_EQ(refusal("{\"coreModel\":\"AAAA\",\"doors\":1}"),
            "line 1, column 29 (doors): expected an array, got a number");
}

TEST(RoomReader, RefusesWhatIsNotJson) {
  const std::pair<std::string, const char *> cases[] = {
      {"", "the text ends before the room does"},
      {" \n", "the text ends before the room does"},
      {"[]", "expected a room, which is an object, got an array"},
      {"null", "expected a room, which is an object, got null"},
      {"{\"a\":1,}", "expected a key in quotes"},
      {"{\"a\":[1,]}", "expected a JSON value"},
      {"{a:1}", "expected a key in quotes"},
      {"{\"a\" 1}", "expected a colon"},
      {"{\"a\":01}", "expected a comma or }"},
      {"{\"a\":1.}", "expected a digit after the decimal point"},
      {"{\"a\":NaN}", "expected a JSON value"},
      {"{\"a\":\"\\q\"}", "unknown escape"},
      {"{\"a\":\"\x1F\"}", "unknown escape or control character"},
      {"{\"a\":\"\\ud800\"}", "half of a surrogate pair"},
      {"{\"a\":\"\xC3(\"}", "the text is not UTF-8"},
      {std::string("{\"a\":1}\0", 8), "the key \"doors\" is missing"},
      {std::string(kRoomText) + std::string(1, '\0'), "a NUL character"},
      {std::string(kRoomText) + " {}", "there is more text after the room's end"},
      {std::string("\xFF\xFE{\0", 4), "the text is not UTF-8"},
  };
  for (const auto &[text, reason] : cases) {
    SCOPED_TRACE(text);
    expectRefused(text, "", reason);
  }
  EXPECT_NO_THROW(readRoom("\xEF\xBB\xBF" + std::string(kRoomText) + "\r\n\t "));
}

TEST(RoomReader, RefusesDeepNesting) {
  auto nested = [](std::size_t depth) {
    return roomTextWith("\"version\"",
                        "\"x\":" + repeated("[", depth) + repeated("]", depth) + ",\"version\"");
  };
  EXPECT_NO_THROW(readRoom(nested(511)));
  EXPECT_NE(refusal(nested(512)).find("more than 512"), std::string::npos);
  EXPECT_NE(refusal(repeated("{\"a\":", 300'000)).find("more than 512"), std::string::npos);
  EXPECT_NE(refusal("{\"a\":" + repeated("[", 300'000)).find("more than 512"), std::string::npos);
  EXPECT_LT(refusal(repeated("{\"\u00E4\u00F6\u00FC\":", 600)).size(), 200U);  // not every key of the path
}

TEST(RoomReader, ReadsOddButValidRooms) {
  RoomDocument empty =
      readRoom(R"({"version":1,"walls":[],"doors":[],"windows":[],"openings":[],"objects":[]})");
  EXPECT_TRUE(empty.isEmpty());
  EXPECT_FALSE(empty.coreModel);
  EXPECT_EQ(readRoom(writeRoom(empty)).version, 1);

  const std::string large(5'000'000, 'A');
  EXPECT_EQ(readRoom(roomTextWith(R"(QUJD\/w==)", large)).coreModel->size(), large.size());
  EXPECT_NO_THROW(readRoom(
      roomTextWith("\"version\"", "\"x\":[" + repeated("{\"a\":[0.25]},", 350'000) + "0],\"version\"")));
}

TEST(RoomReader, RefusesATextThatIsCutOffAnywhere) {
  for (std::size_t size = 0; size < kRoomText.size(); ++size)
    EXPECT_NE(refusal(kRoomText.substr(0, size)).find("the text ends before"), std::string::npos) << size;
}

}  // namespace
}  // namespace vantorel
