#include "support/DeviceTest.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <regex>
#include <set>

namespace vantorel::testing {
namespace {

using Export = DeviceTest;

TEST_F(Export, GivesAFreshCopyOfEachText) {
  char *first = getVantorelVersion();
  char *second = getVantorelVersion();
  EXPECT_STREQ(first, "Vantorel 1.3.0");
  EXPECT_STREQ(second, "Vantorel 1.3.0");
  EXPECT_NE(first, second);
  std::free(first);
  std::free(second);
}

TEST_F(Export, GivesAnEmptyTextAsOneByteNotAsNull) {
  for (const auto get : {getVTLNativeScreenshotOutputURL, getVTLNativeScreenRecorderOutputURL,
                         getVTLARCameraMatrixRuntime, getVTLARCameraProjectionMatrixRuntime})
    EXPECT_EQ(taken(get()), "");
}

TEST_F(Export, StoresBitZeroOfAFlagAndNothingElse) {
  const struct {
    void (*set)(vantorelBool);
    const char *property;
    const char *byDefault;
  } flags[] = {
      {isVTLCustomXREnabled, "isCustomXREnabled", "false"},
      {isVTLDefaultScanEnabled, "isDefaultScanEnabled", "false"},
      {isVTLDefaultMiniatureModelEnabled, "isDefaultMiniatureModelEnabled", "true"},
      {isVTLDefaultScanDataTransferEnabled, "isDefaultScanDataTransferEnabled", "false"},
      {isVTLCoachingEnabled, "isCoachingEnabled", "true"},
      {isVTLInstructionEnabled, "isInstructionEnabled", "true"},
      {isVTLMultiRoomEnabled, "isMultiRoomEnabled", "false"},
      {isVTLARWorldMapEnabled, "isARWorldMapEnabled", "false"},
      {isNativeScreenshot, "nativeScreenshot", "false"},
      {isNativeScreenshotPreview, "nativeScreenshotPreview", "false"},
      {isNativeScreenRecorder, "nativeScreenRecorder", "false"},
      {isNativeScreenRecorderPreview, "nativeScreenRecorderPreview", "false"},
  };
  for (const auto &flag : flags) {
    EXPECT_EQ(state(flag.property), flag.byDefault);
    for (const int byte : {1, 2, 255, 254, 3, 0}) {
      const std::string before = state(nullptr), old = state(flag.property);
      flag.set(static_cast<vantorelBool>(byte));
      const std::string now = byte % 2 == 1 ? "true" : "false";
      EXPECT_EQ(state(flag.property), now) << flag.property << " " << byte;
      if (now == old) {
        EXPECT_EQ(state(nullptr), before) << "nothing else changes";
      }
    }
  }
  EXPECT_EQ(heard(), Lines());
}

TEST_F(Export, CopiesAndRepairsTexts) {
  char directory[] = "caf\xC3\xA9", scan[] =
                                        "a\xF0\x9F\x8F"
                                        "b\xFF";
  EXPECT_EQ(trySaveRoomPlanExperience(directory, scan), 1);
  directory[0] = scan[0] = 'X';
  EXPECT_EQ(state("directoryName"), "\"caf\xC3\xA9\"");
  EXPECT_EQ(state("scanName"),
            "\"a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\"");
  EXPECT_EQ(files().back(),
            "caf\xC3\xA9/a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD/scan.json");
}

TEST_F(Export, AnswersWhatTheDeviceSupports) {
  const struct {
    const char *ios, *lidar;
    int scanning, rooms;
    bool prints;
  } table[] = {{"16.4", "on", 1, 0, true},
               {"16.4", "off", 0, 0, true},
               {"17.0", "on", 1, 1, false},
               {"18.0", "off", 0, 0, false}};
  for (const auto &row : table) {
    option("ios", row.ios);
    option("lidar", row.lidar);
    EXPECT_EQ(VantorelSupport(), row.scanning);
    EXPECT_EQ(heard(), Lines());
    for (const auto supports : {MultiRoomSupport, ARWorldMapSupport}) {
      EXPECT_EQ(supports(), row.rooms);
      EXPECT_EQ(heard(), row.prints ? Lines{kNeedsIOS17Line} : Lines());
    }
  }
}

TEST_F(Export, SkipsEmptySlotsSilently) {
  vantorelDevicePowerCycle();  // all slots are empty now
  initialize();
  start();
  update(walledRoom(1));
  instruction("normal");
  stopCaptureSession();
  disposeVTL();
  advance();
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(state("roomInstructionStringResults"), "\"Normal\"");
  EXPECT_NE(state("roomFinalStringResults"), "\"\"") << "the text is kept without a host to hear it";
}

int firstCalls, secondCalls;

TEST_F(Export, KeepsTheLastCallbackOfASlot) {
  firstCalls = secondCalls = 0;
  setVTLDidStart([] { ++firstCalls; });
  setVTLDidStart([] { ++secondCalls; });
  initialize();
  EXPECT_EQ(firstCalls, 0);
  EXPECT_EQ(secondCalls, 1);
}

// ---- The headers and the built library ----

extern "C" int vantorelHostInC(void);

TEST_F(Export, ServesAHostInC) { EXPECT_EQ(vantorelHostInC(), 1); }

const std::string kLibrary = VANTOREL_BINARY_DIR "/lib/libvantorel.so";

/// The last word before the first parenthesis, bracket or semicolon of each declaration.
std::set<std::string> declaredNames(const std::string &header) {
  const std::string text = readFile(std::string(VANTOREL_SOURCE_DIR) + "/include/vantorel/" + header);
  static const std::regex declaration(R"(\n(extern )?VANTOREL_EXPORT [^;(\[]*?(\w+)[;(\[])");
  std::set<std::string> names;
  for (std::sregex_iterator match(text.begin(), text.end(), declaration), end; match != end; ++match)
    names.insert((*match)[2]);
  return names;
}

std::set<std::string> exportedNames() {
  std::set<std::string> names;
  FILE *list = popen(("nm -D --defined-only '" + kLibrary + "'").c_str(), "r");
  char line[512], name[512];
  while (list && std::fgets(line, sizeof line, list))
    if (std::sscanf(line, "%*s %*s %511s", name) == 1) names.insert(name);
  if (list) pclose(list);
  return names;
}

TEST(SharedLibrary, ExportsExactlyWhatTheHeadersDeclare) {
  auto declared = declaredNames("vantorel.h");
  EXPECT_EQ(declared.size(), 56U) << "54 functions and the version record";
  declared.merge(declaredNames("simulated_device.h"));
  EXPECT_EQ(exportedNames(), declared);
}

TEST(SharedLibrary, CarriesTheVersionRecord) {
  void *library = dlopen(kLibrary.c_str(), RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  const auto *number = static_cast<const double *>(dlsym(library, "VantorelVersionNumber"));
  const auto *text = static_cast<const char *>(dlsym(library, "VantorelVersionString"));
  ASSERT_TRUE(number && text);
  EXPECT_EQ(*number, 1.3);
  EXPECT_STREQ(text, "@(#)PROGRAM:Vantorel  PROJECT:Vantorel-1.3.0\n");
  dlclose(library);
}

}  // namespace
}  // namespace vantorel::testing
