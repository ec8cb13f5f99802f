#include "support/TestData.h"
#include "tools/Host.h"
#include "tools/LibraryCalls.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

namespace vantorel {
namespace {

using Lines = std::vector<std::string>;

/// What a script brings, a line an event, without the opening that is the same in all:
/// {"time":0,"thread":"main",
class HostTest : public ::testing::Test {
 protected:
  Lines play(const std::string &text, bool registers = true) {
    std::stringstream out, script(text);
    JsonPrinter printer(out);
    {
      Host host(printer, documents_.path());
      if (registers) registerCallbacks();
      isGood_ = host.runScript(script);
    }
    Lines lines;
    for (std::string line; std::getline(out, line);) lines.push_back(shortened(line));
    return lines;
  }

  static std::string shortened(const std::string &line) {
    const std::string opening = R"({"time":0,"thread":"main",)";
    return line.starts_with(opening) ? line.substr(opening.size(), line.size() - opening.size() - 1) : line;
  }

  testing::TemporaryFolder documents_;
  bool isGood_ = false;
};

TEST_F(HostTest, KnowsEveryFunctionOfTheHeader) {
  const std::string header = testing::readFile(VANTOREL_SOURCE_DIR "/include/vantorel/vantorel.h");
  const std::regex declaration(R"(\nVANTOREL_EXPORT [^;]*?(\w+)\()");
  int count = 0;
  for (std::sregex_iterator found(header.begin(), header.end(), declaration), end; found != end;
       ++found, ++count)
    EXPECT_NE(play((*found)[1].str() + " 1 2 3 4").at(0).find("expected"), std::string::npos) << (*found)[1];
  EXPECT_EQ(count, 54);
}

TEST_F(HostTest, PrintsWhatComesBackWhenItIsDue) {
  EXPECT_EQ(play("initializeVTL # queued\n\nadvance 0\nVantorelSupport\ngetVantorelVersion"),
            (Lines{R"("event":"callback","name":"VTLDidStart","value":null)",
                   R"("event":"return","name":"VantorelSupport","value":true)",
                   R"("event":"return","name":"getVantorelVersion","value":"Vantorel 1.3.0")"}));
  EXPECT_TRUE(isGood_);
  EXPECT_EQ(play("device ios 16.4\nMultiRoomSupport"),
            (Lines{R"("event":"console","name":null,"value":"This feature is only available for iOS 17+.")",
                   R"("event":"return","name":"MultiRoomSupport","value":false)"}));
  EXPECT_EQ(
      play("initializeVTL\nadvance 0.25\nstartCaptureSession\nadvance 0\ndevice instruction slowDown").back(),
      R"({"time":0.25,"thread":"delegate","event":"callback","name":"VTLCaptureSessionInstruction","value":"SlowDown"})");
}

TEST_F(HostTest, RegistersOnlyWhatItIsAskedTo) {
  EXPECT_EQ(play("initializeVTL\nadvance 0\nsetVTLDidEnd\ndisposeVTL\nadvance 0", false),
            (Lines{R"("event":"callback","name":"VTLDidEnd","value":null)"}));
}

TEST_F(HostTest, DropsWhatIsLeftAtTheEnd) { EXPECT_EQ(play("initializeVTL\n"), Lines{}); }

TEST_F(HostTest, NamesTheCommandWhoseWordsAreWrong) {
  const std::pair<std::string, std::string> table[] = {
      {"device room", "device room: expected 1 to 3 arguments, got 0"},
      {"device room r 0", "device room: expected a number from 0.001 to 3600, got 0"},
      {"advance -1", "advance: expected a number from 0, got -1"},
      {"advance nan", "advance: expected a number from 0, got nan"},
      {"advance 1e400", "advance: expected a number from 0, got 1e400"},
      {"isVTLCoachingEnabled 256", "isVTLCoachingEnabled: expected true, false or 0 to 255, got 256"},
      {"vtl_shareFile @", "vtl_shareFile: expected the name of a file after @"},
      {"vtl_shareFile @/no/such", "cannot read /no/such: No such file or directory"},
  };
  for (const auto &[line, message] : table)
    EXPECT_EQ(play(line), Lines{R"("event":"error","name":null,"value":"line 1: )" + message + '"'});
  EXPECT_FALSE(isGood_);
}

TEST_F(HostTest, ReadsAScriptWithAByteOrderMark) {
  EXPECT_EQ(play("\xEF\xBB\xBFVantorelSupport").size(), 1U);
  EXPECT_TRUE(isGood_);
}

TEST_F(HostTest, StopsWhenNobodyListens) {
  std::stringstream out, script("VantorelSupport\ninitializeVTL\n");
  out.setstate(std::ios::badbit);
  JsonPrinter printer(out);
  Host(printer, documents_.path()).runScript(script);
  EXPECT_EQ(script.peek(), 'V');
}

TEST_F(HostTest, ReadsATextFromAFile) {
  const std::string name = documents_.path() + "/name";
  testing::writeFile(name, "of a \"file\"");
  EXPECT_EQ(play("trySaveRoomPlanExperience d @" + name + "\nstate scanName").back(),
            R"("event":"state","name":"scanName","value":"of a \"file\"")");
}

}  // namespace
}  // namespace vantorel
