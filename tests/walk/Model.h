// What the library must do, written down a second time and as plainly as possible: flags, one function for each
// operation and event. It knows the public documents and nothing of src/bridge, src/controller and src/storage.
#pragma once

#include "walk/Phone.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel::walk {

/// Thrown where the library must stop the process. The model is useless afterwards.
struct ProcessStops {};

inline constexpr std::array kSlots = {"VTLDidStart",
                                      "VTLDidEnd",
                                      "VTLCaptureSessionDidStart",
                                      "VTLCaptureSessionDidEnd",
                                      "VTLCaptureSessionDidAdd",
                                      "VTLCaptureSessionDidUpdate",
                                      "VTLCaptureSessionDidChange",
                                      "VTLCaptureSessionDidRemove",
                                      "VTLCaptureSessionInstruction",
                                      "VTLRoomSnapshot"};

/// Its place; the name must be one of them.
std::size_t slotNamed(std::string_view name);

/// Of the screenshot with that number.
std::string screenshotPath(int number);

class Model {
 public:
  Phone phone;
  /// Callbacks, console lines and results, a line each: "main VTLDidStart", "delegate console LINE".
  std::string heard;

  // ---- The controller's state ----

  bool isScanning = false, isPresent = false, isCoachingEnabled = true, isDefaultScanEnabled = false,
       isDefaultMiniatureModelEnabled = true, isDefaultScanDataTransferEnabled = false,
       isInstructionEnabled = true, isTorchEnabled = false, isCustomXREnabled = false,
       isMultiRoomEnabled = false, isARWorldMapEnabled = false, isRoomPlanSessionScanningPaused = false,
       nativeScreenshot = false, nativeScreenshotPreview = false, nativeScreenRecorder = false,
       nativeScreenRecorderPreview = false;
  std::vector<RoomRef> capturedRoomsData;  ///< null: an empty text
  Float4x4 arCameraMatrix{{}}, arCameraProjectionMatrix{{}};
  std::string directoryName = "model-viewer", scanName = "My new scan";
  RoomRef finalResults, roomFinalStringResults;
  Id captureSession = 0, customARSession = 0, roomCaptureView = 0, sceneView = 0;
  bool hasRootViewController = false;
  bool configIsCoachingEnabled = true;  ///< of roomCaptureSessionConfig
  std::string roomInstructionStringResults;
  std::string nativeScreenshotOutputURL, nativeScreenRecorderOutputURL;
  std::string previewedPath;    ///< QLModelViewerURL; empty: null
  std::size_t displayLink = 0;  ///< the newest of displayLinkRuns
  std::vector<bool> displayLinkRuns{false};
  /// 0: empty; else which of two functions was set last.
  std::array<int, kSlots.size()> slots{};

  // ---- Exported functions ----

  void initializeVTL();
  void disposeVTL();
  void prepareVTLResources();
  void startCaptureSession();
  void runCaptureSession();
  void stopCaptureSession();
  void stopCaptureSessionWithPause();
  void pauseCaptureSessionScanning();
  void resumeCaptureSessionScanning();
  void createNewRoomCaptureSession();
  void startCaptureSessionWithARWorldMap(const std::string &path);
  void stopCaptureSessionWithARWorldMap(const std::string &path);
  bool save(const std::string &directory, const std::string &scan);
  void mergeScans(const std::string &data, const std::string &directory, const std::string &scan);
  void setFlashlightStatus(bool isOn);
  void quickLook(const std::string &text);
  void share(const std::string &text);
  void screenshot();
  void shareScreenshot();
  void startScreenRecorder();
  void stopScreenRecorder();
  std::string cameraMatrix();
  std::string projectionMatrix();
  bool isSupportedFrom17();

  // ---- What the device does; false: refused ----

  void advance(Time duration);
  void settle();
  bool deliverUpdate(const RoomRef &room);
  bool deliverInstruction(const std::string &name);
  bool deliverEnd(const std::optional<std::string> &error);
  /// Sessions that nothing holds any more are gone; what is left of their scans with them.
  void releaseSessions();

  // ---- Queued events of a session ----

  void sessionStarts(Id session);
  void sessionPlays(Id session, std::size_t step);
  void sessionEnds(Id session, const std::optional<std::string> &error);

  // ---- Looking ----

  void say(const std::string &line);
  /// As vantorelDeviceState(nullptr) gives it.
  std::string stateJson() const;
  /// The other names of vantorelDeviceState, each with its value.
  std::vector<std::pair<const char *, std::string>> looks();
  /// The session that events reach: the last one that ran, else the newest, of those alive; 0 without any.
  Id currentSession() const;

 private:
  using Rooms = std::vector<RoomRef>;

  void print(const std::string &line) { say("console " + line); }
  void fire(std::string_view name, const std::string *text = nullptr);
  bool isRefusedBefore17();
  void loadView();

  void setupScene();
  void initialize();
  void dispose();
  Id session();
  void createCaptureSession();
  void createScanView();
  void createCameraView();
  void removeScanView();
  void addCapturedRoomToArray() { capturedRoomsData.push_back(roomFinalStringResults); }
  void forceReloadCaptureSession();

  void roomUpdate(const RoomRef &room);
  void roomUpdateOnMain(const RoomRef &room);
  void instruction(const std::string &name);

  bool writeScan(const std::string &folder);
  void mergeSession();
  void build(const Rooms &rooms, std::function<std::string(const Model &)> folder);
  void writeStructure(const Rooms &rooms, const std::string &folder);
  bool tryWriteStructure(const Rooms &rooms, const std::string &folder);
  void awaitTracking();
  void worldMapArrives(Id arSession, const std::string &path);

  bool present(const char *kind, const std::string &path);
  void presentEach(const char *kind, const std::string &path, bool isPreviewed, bool isShared);
  void keepScreenshot();

  bool isAlive(Id session) const;
  void runNextEvent();
  template <typename Work>
  bool onDelegateThread(Work work);

  Thread thread_ = Thread::main;
  bool isViewLoaded_ = false, isWindowClear_ = false, isRootViewTransparent_ = false, ignoresTouches_ = false;
  int dismissals_ = 0, recordings_ = 0;
  std::string scanViewSettings_ = "null", sceneViewSettings_ = "null";
};

}  // namespace vantorel::walk
