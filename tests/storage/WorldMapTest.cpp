#include "support/DeviceTest.h"

#include <filesystem>

namespace vantorel::testing {
namespace {

const Lines kDidStart = {"main VTLCaptureSessionDidStart", "main console Worker task ending"};

class WorldMap : public DeviceTest {
 protected:
  WorldMap() { initialize(); }

  /// A scan that ends with a map in the folder "maps".
  void writeMap() {
    start();
    std::filesystem::create_directories(file("maps/WorldMap"));
    stopCaptureSessionWithARWorldMap(file("maps/").c_str());
    advance(0.5);
    heard();
  }
  static inline std::string flagsAtEnd;
  const std::string map_ = file("maps/WorldMap/scan");
};

TEST_F(WorldMap, IsWrittenAfterTheScanAndThenTheScanEnds) {
  for (const char *mode : {"0", "1"}) {
    isVTLDefaultScanEnabled(*mode == '1');
    start();
    std::filesystem::create_directories(file("maps/WorldMap"));
    pauseCaptureSessionScanning();
    setVTLCaptureSessionDidEnd([] { flagsAtEnd = state("isScanning") + state("view.subviews"); });
    stopCaptureSessionWithARWorldMap(file("maps/").c_str());
    EXPECT_EQ(phase(), "paused") << "the session stops at once, the scan ends with the map";
    EXPECT_EQ(state("view.subviews").size() > 2, true);
    advance(0.4);
    EXPECT_EQ(heard(), Lines());
    advance(0.1);
    EXPECT_EQ(flagsAtEnd, "false[]") << "all is cleared before the host hears of it";
    EXPECT_EQ(phase(), "idle");
    EXPECT_EQ(state("view.subviews"), "[]");
    EXPECT_EQ(files(), (Lines{"maps/", "maps/WorldMap/", "maps/WorldMap/scan"}))
        << "the older one is replaced";
  }
}

TEST_F(WorldMap, IsAddedToTheHostsTextAsItStands) {
  start();
  std::filesystem::create_directories(file("xWorldMap"));
  stopCaptureSessionWithARWorldMap(file("x").c_str());
  advance(0.5);
  EXPECT_EQ(files(), (Lines{"xWorldMap/", "xWorldMap/scan"}));
}

TEST_F(WorldMap, LeavesTheScanAsItIsWhenThereIsNone) {
  start();
  option("map", "none");
  stopCaptureSessionWithARWorldMap(file("maps/").c_str());
  advance(0.5);
  EXPECT_EQ(heard(), Lines{"completion console Can't get current world map"});
  EXPECT_EQ(phase(), "scanning");
  EXPECT_EQ(files(), Lines());
}

TEST_F(WorldMap, BeginsTheNextScanOnceTrackingIsNormal) {
  writeMap();
  powerCycle();
  initialize();
  option("tracking", "limited");
  startCaptureSessionWithARWorldMap(map_.c_str());
  advance(30.2);
  EXPECT_EQ(phase(), "idle");
  option("tracking", "normal");
  advance(0.7);
  EXPECT_EQ(heard(), Lines()) << "it looks once a second";
  advance(0.1);
  EXPECT_EQ(heard(), kDidStart);
  EXPECT_EQ(phase(), "scanning running");
}

TEST_F(WorldMap, StartsMayOverlap) {
  writeMap();
  startCaptureSessionWithARWorldMap(map_.c_str());
  advance(1.5);
  startCaptureSessionWithARWorldMap(map_.c_str());
  advance(5);
  EXPECT_EQ(heard(), (Lines{kDidStart[0], kDidStart[1], kDidStart[0], kDidStart[1]}));
}

TEST_F(WorldMap, StartRefusesWhatIsNoMap) {
  writeMap();
  const std::string bytes = readFile(map_);
  writeFile(file("short"), bytes.substr(0, bytes.size() - 1));
  writeFile(file("foreign"), "bplist00 of something else");
  writeFile(file("empty"), "");
  for (const char *path : {"", "/n", " "}) {
    startCaptureSessionWithARWorldMap(path);
    EXPECT_EQ(heard(), Lines{"main console Path is empty."}) << path;
  }
  for (const char *name : {"none", "maps", "short", "foreign", "empty"}) {
    startCaptureSessionWithARWorldMap(file(name).c_str());
    EXPECT_EQ(heard(), Lines{"main console AR World Map Data loading error."}) << name;
  }
  for (const char *call : {"readFile", "unarchive"}) {
    fail(call);
    startCaptureSessionWithARWorldMap(map_.c_str());
    EXPECT_EQ(heard(), Lines{"main console AR World Map Data loading error."}) << call;
  }
  advance(10);
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(phase(), "idle");
}

TEST_F(WorldMap, StartGoesOnWithoutAMapWhenTheArchiveHoldsNone) {
  writeMap();
  fail("unarchiveNone");
  startCaptureSessionWithARWorldMap(map_.c_str());
  advance();
  EXPECT_EQ(heard(), kDidStart) << "nothing to find oneself in";
}

TEST_F(WorldMap, ScanningAndTheSystemAreAskedFirst) {
  stopCaptureSessionWithARWorldMap(file("maps/").c_str());
  start();
  startCaptureSessionWithARWorldMap("");
  EXPECT_EQ(heard(), Lines());
  option("ios", "16.4");
  stopCaptureSessionWithARWorldMap("");
  EXPECT_EQ(heard(), Lines{kNeedsIOS17Line});
  EXPECT_EQ(phase(), "scanning running");
  stopCaptureSession();
  heard();
  startCaptureSessionWithARWorldMap("");
  EXPECT_EQ(heard(), Lines{kNeedsIOS17Line});
}

TEST_F(WorldMap, EndsTheScanThatRunsThen) {
  start();
  std::filesystem::create_directories(file("maps/WorldMap"));
  stopCaptureSessionWithARWorldMap(file("maps/").c_str());
  startCaptureSession();
  advance(0.5);
  EXPECT_EQ(phase(), "idle running") << "the second scan has lost its flag to the end of the first";
}

class WorldMapDeath : public WorldMap {
 protected:
  /// Stops with a map after that call was told to fail, in a child process.
  void stopAfter(const char *call, const std::string &message) {
    EXPECT_DEATH(
        {
          start();
          if (*call) fail(call);
          stopCaptureSessionWithARWorldMap(file("maps/").c_str());
          advance(0.5);
        },
        message);
  }
};

TEST_F(WorldMapDeath, WhatCannotBeWrittenStopsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  stopAfter("", "^Can't write to url");
  writeMap();
  const std::string bytes = readFile(map_);
  stopAfter("archive", "^Can't encode map");
  stopAfter("removeFile", "^Can't remove .*maps/WorldMap/scan");
  EXPECT_EQ(readFile(map_), bytes);
  stopAfter("writeFile", "^Can't write to url");
}

}  // namespace
}  // namespace vantorel::testing
