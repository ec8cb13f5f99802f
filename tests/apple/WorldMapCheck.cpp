#include "vantorel/vantorel.h"

#include "Check.h"

#include <filesystem>
#include <fstream>

extern "C" {
void standin_set_has_frames(bool hasFrames);
int standin_map_generation(const char *path);
void standin_archive_no_map(const char *path);
char *standin_scene_view();
}

namespace {

void expectSceneView(const char *wanted) {
  const std::string name = taken(standin_scene_view());
  expect(name == wanted, "sceneView, by name, is " + name);
}

void lookThroughTheCamera() {
  const std::string none = taken(getVTLARCameraMatrixRuntime());
  expect(none.ends_with("0.0, 0.0, 0.0, 0.0]"), "there is no pose before the first frame");
  standin_set_has_frames(true);
  const std::string pose = taken(getVTLARCameraMatrixRuntime());
  expect(pose == "[-0.0, 1.0, -0.0, 2.0, -1.0, -0.0, -0.0, 3.0, 0.0, 0.0, 1.0, -4.0, 0.0, 0.0, 0.0, 1.0]",
         "the pose is " + pose);
  const std::string projection = taken(getVTLARCameraProjectionMatrixRuntime());
  expect(projection.starts_with("[852.0, -4.0, 393.0, 0.0, 1000.0, 0.01, 0.0, 0.0, "),
         "the projection is for landscape left, the screen's size and planes: " + projection);
}

/// The map's generation.
int stopWithMap(const std::string &folder) {
  const int ends = heard.sessionEnds;
  stopCaptureSessionWithARWorldMap(folder.c_str());
  waitUntil([ends] { return heard.sessionEnds > ends; });
  letRun();
  expect(heard.sessionEnds == ends + 1, "the scan ended with a map");
  expectViews("clear UIWindow(untouchable UIView, clear UIView)");
  return standin_map_generation((folder + "WorldMap/scan").c_str());
}

void startFrom(const std::string &path, bool isTrackingLimited) {
  const int starts = heard.sessionStarts;
  startCaptureSessionWithARWorldMap(path.c_str());
  letRun();
  expect((heard.sessionStarts == starts) == isTrackingLimited, "no scan begins while tracking is limited");
  waitUntil([starts] { return heard.sessionStarts > starts; });
  expect(heard.sessionStarts == starts + 1, "the scan began");
}

}  // namespace

void worldMapScene(const std::string &home) {
  const std::string folder = home + "/Documents/", map = folder + "WorldMap/scan", other = home + "/other";
  std::filesystem::create_directories(folder + "WorldMap");
  startCaptureSession();
  expectSceneView("ARSCNView");
  lookThroughTheCamera();
  standin_set_has_frames(false);
  expectPrinted("Can't get current world map", [&] { stopCaptureSessionWithARWorldMap(folder.c_str()); });
  standin_set_has_frames(true);
  expect(stopWithMap(folder) == 1, "a scan without a map leaves the first one");
  expectSceneView("nil");

  std::ofstream(other) << "no archive";
  expectPrinted("AR World Map Data loading error.",
                [&] { startCaptureSessionWithARWorldMap(other.c_str()); });
  standin_archive_no_map(other.c_str());
  startFrom(other, false);
  expect(stopWithMap(folder) == 1, "an archive without a map starts a scan without one");

  startFrom(map, true);
  expect(stopWithMap(folder) == 2, "a scan from the first map leaves the second");
}
