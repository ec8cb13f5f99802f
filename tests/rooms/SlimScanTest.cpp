#include "rooms/BuildStructure.h"
#include "rooms/RoomText.h"
#include "rooms/RoomWriter.h"
#include "rooms/SlimScan.h"
#include "support/TestData.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <sstream>

namespace vantorel {
namespace {

using namespace testing;

const std::regex kUuid("[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}");

std::vector<std::string> uuidsIn(const std::string &text) {
  return {std::sregex_token_iterator(text.begin(), text.end(), kUuid), {}};
}

/// Without the lines of that key.
std::string withoutCoreModel(const std::string &text) {
  std::istringstream lines(text);
  std::string rest;
  for (std::string line; std::getline(lines, line);)
    if (line.find("\"coreModel\"") == line.npos) rest += line + '\n';
  rest.pop_back();
  return rest;
}

/// The slim text of one that writeScan wrote: nothing but the lines of coreModel is gone and nothing but
/// identifiers differs, each old one having one new one.
void expectSlim(const std::string &text, const std::string &name) {
  const std::string slim = writeScan(slimmed(readScan(text)));
  EXPECT_EQ(slim.find("coreModel"), slim.npos) << name;
  std::string expected = withoutCoreModel(text);
  const auto before = uuidsIn(expected), after = uuidsIn(slim);
  ASSERT_EQ(before.size(), after.size()) << name;
  std::map<std::string, std::string> renamed, back;
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_EQ(renamed.emplace(before[i], after[i]).first->second, after[i]) << name;
    EXPECT_EQ(back.emplace(after[i], before[i]).first->second, before[i]) << name;
    EXPECT_EQ(slim.find(before[i]), slim.npos) << name << " keeps " << before[i];
    expected.replace(expected.find(before[i]), before[i].size(), after[i]);
  }
  EXPECT_TRUE(slim == expected) << name;
  EXPECT_TRUE(writeScan(slimmed(readScan(text))) == slim) << name;
}

std::string structureText() {
  auto flat = shared(readRoom(readFile(sampleRooms().at(0))));
  auto house = shared(readRoom(readFile(sampleRooms().at(1))));
  return writeStructure(buildStructure({flat, house, flat}));
}

TEST(SlimScan, ChangesNothingButCoreModelAndIdentifiers) {
  for (const std::string &file : sampleRooms()) expectSlim(readFile(file), file);
  expectSlim(writeRoom(readRoom(kRoomText)), "every element");
  expectSlim(structureText(), "a structure");
  for (const std::string &file : sharedRooms()) expectSlim(writeRoom(readRoom(readFile(file))), file);
}

TEST(SlimScan, GivesIdentifiersThatDoNotDependOnTheOldOnes) {
  const std::string other = std::regex_replace(std::string(kRoomText), std::regex("0A0000"), "0C1234");
  EXPECT_EQ(writeScan(slimmed(readScan(other))), writeScan(slimmed(readScan(kRoomText))));
  EXPECT_NE(writeScan(slimmed(readScan(roomTextWith("2.5", "2.6")))),
            writeScan(slimmed(readScan(kRoomText))));
}

TEST(ScanReader, ReadsStructuresAndRooms) {
  const std::string text = structureText();
  const auto scan = std::get<StructureDocument>(readScan(text));
  EXPECT_EQ(scan.rooms.size(), 3U);
  EXPECT_TRUE(scan.rooms[0]->coreModel && *scan.rooms[0]->coreModel == *scan.rooms[2]->coreModel);
  EXPECT_TRUE(writeStructure(scan) == text) << "the structure comes back byte for byte";
  EXPECT_EQ(writeScan(readScan(kRoomText)), writeRoom(readRoom(kRoomText)));
}

TEST(ScanReader, RefusesWhatIsNeither) {
  const std::string nested = R"({"rooms":[)" + structureText() +
                             R"(],"walls":[],"doors":[],"windows":[],"openings":[],)" +
                             R"("objects":[],"version":2})";
  for (const std::string &text :
       {std::string("[]"), std::string("{"), nested, roomTextWith(R"("doors")", R"("rooms":7,"doors")")})
    EXPECT_THROW(readScan(text), RoomReadError);
}

}  // namespace
}  // namespace vantorel
