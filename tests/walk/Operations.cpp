#include "walk/Operations.h"

#include "vantorel/simulated_device.h"

#include "platform/simulated/RoomPlayback.h"
#include "walk/Library.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace vantorel::walk {
namespace {

// ---- Flags ----

struct Flag {
  const char *name;
  void (*set)(vantorelBool) noexcept;
  bool Model::*member;
};

constexpr std::array kFlags = {
    Flag{"customXR", isVTLCustomXREnabled, &Model::isCustomXREnabled},
    Flag{"defaultScan", isVTLDefaultScanEnabled, &Model::isDefaultScanEnabled},
    Flag{"miniature", isVTLDefaultMiniatureModelEnabled, &Model::isDefaultMiniatureModelEnabled},
    Flag{"dataTransfer", isVTLDefaultScanDataTransferEnabled, &Model::isDefaultScanDataTransferEnabled},
    Flag{"coaching", isVTLCoachingEnabled, &Model::isCoachingEnabled},
    Flag{"instruction", isVTLInstructionEnabled, &Model::isInstructionEnabled},
    Flag{"multiRoom", isVTLMultiRoomEnabled, &Model::isMultiRoomEnabled},
    Flag{"worldMap", isVTLARWorldMapEnabled, &Model::isARWorldMapEnabled},
    Flag{"screenshot", isNativeScreenshot, &Model::nativeScreenshot},
    Flag{"screenshotPreview", isNativeScreenshotPreview, &Model::nativeScreenshotPreview},
    Flag{"recorder", isNativeScreenRecorder, &Model::nativeScreenRecorder},
    Flag{"recorderPreview", isNativeScreenRecorderPreview, &Model::nativeScreenRecorderPreview},
};

const Flag &flagOf(const Step &step) {
  return *std::find_if(kFlags.begin(), kFlags.end(), [&](const Flag &flag) { return flag.name == step.a; });
}

/// Odd bytes: only bit 0 counts.
void drawByte(Step &step, Dice &dice) { step.number = dice.of(std::array{0, 1, 1, 0, 2, 3, 254, 255}); }

vantorelBool byteOf(const Step &step) { return static_cast<vantorelBool>(step.number); }

// ---- Folders and merges ----

/// Few, so that folders collide; some are inside others or are files there.
constexpr std::array kNames = {
    "a", "b", "a/b", "", "scan.json", "a/scan.json", "b/", "/c", "screenshot-2.jpg"};

void drawNames(Step &step, Dice &dice) {
  step.a = dice.of(kNames);
  step.b = dice.of(kNames);
}

constexpr const char *kSeparator = "_|+++++AMBER_WREN+++++|_";

void drawMerge(Step &step, Dice &dice) {
  static constexpr std::array kPieces = {"wall",  "hall",   "floor", "nothing", "",
                                         "blank", "broken", "half",  "_"};
  drawNames(step, dice);
  const std::size_t count = dice.oneIn(8) ? 0 : 1 + dice.below(4);
  for (std::size_t i = 0; i < count; ++i)
    step.c += (i ? "," : "") + std::string(dice.oneIn(3) ? dice.of(kPieces) : kPieces[dice.below(2)]);
}

/// The pieces' texts, joined.
std::string mergeData(const Step &step) {
  std::istringstream names(step.c);
  std::string data;
  bool isFirst = true;
  for (std::string name; std::getline(names, name, ','); isFirst = false) {
    if (!isFirst) data += kSeparator;
    const RoomRef room = roomNamed(name);
    if (room)
      data += room->text;
    else if (name == "half")
      data += rooms()[0]->text.substr(0, rooms()[0]->text.size() / 2);
    else if (name == "broken")
      data += "{]";
    else
      data += name == "blank" ? " " : name;
  }
  return data;
}

// ---- Media ----

struct Show {
  const char *name;
  void (*onLibrary)(const char *) noexcept;
  void (*onModel)(Model &, const std::string &);
};

constexpr std::array kShows = {
    Show{"preview", vtl_QuickLook, [](Model &model, const std::string &text) { model.quickLook(text); }},
    Show{"file", vtl_shareFile, [](Model &model, const std::string &text) { model.share(text); }},
    Show{"folder", vtl_shareFolder, [](Model &model, const std::string &text) { model.share(text); }},
    Show{"screenshot", [](const char *) noexcept { screenshotShareVTL(); },
         [](Model &model, const std::string &) { model.shareScreenshot(); }}};

const Show &showOf(const Step &step) {
  return *std::find_if(kShows.begin(), kShows.end(), [&](const Show &show) { return show.name == step.a; });
}

void drawShow(Step &step, Dice &dice) {
  step.a = dice.of(kShows).name;
  step.b = dice.of(std::array{"/documents/garbage", "/documents/WorldMap", "/documents/WorldMap/",
                              "/documents/a", "/documents/screenshot-1.jpg", "/documents/missing", "",
                              "/documents/garb%61ge", "file:///documents/garb%61ge", "file:///documents",
                              "file://localhost/documents/garbage", "file://elsewhere/documents/garbage",
                              "file:///documents/50%", "file:///documents/%zz%4", "https://example.org"});
}

// ---- The device ----

constexpr const char *kPose = "1 0 0 0 0 0.5 -0.25 0 0 0.1 1e-05 0 1.5 -2 3.25 1";
constexpr Float4x4 kPoseMatrix = {{1, 0, 0, 0, 0, 0.5F, -0.25F, 0, 0, 0.1F, 1e-05F, 0, 1.5F, -2, 3.25F, 1}};

void drawOption(Step &step, Dice &dice) {
  using Choice = std::pair<const char *, std::vector<const char *>>;
  static const std::vector<Choice> kChoices = {
      {"lidar", {"on", "on", "off"}},
      {"torch", {"present", "absent", "refused", "nodevice"}},
      {"window", {"full", "full", "full", "bare", "empty", "none"}},
      {"coaching", {"0", "1", "2", "3"}},
      {"tracking", {"auto", "auto", "normal", "limited", "unavailable"}},
      {"map", {"present", "present", "none"}},
      {"camera", {kPose}},
      {"projection", {kPose}},
  };
  const Choice &choice = dice.of(kChoices);
  step.a = choice.first;
  step.b = dice.of(choice.second);
}

void setOption(Phone &phone, const std::string &name, const std::string &value) {
  if (name == "lidar") phone.hasLidar = value == "on";
  if (name == "torch") phone.torch = value;
  if (name == "window") phone.window = value;
  if (name == "coaching") phone.coaching = std::stoi(value);
  if (name == "tracking") phone.tracking = value;
  if (name == "map") phone.hasMap = value == "present";
  if (name == "camera") phone.camera = kPoseMatrix;
  if (name == "projection") phone.projection = kPoseMatrix;
}

void drawFault(Step &step, Dice &dice) {
  static constexpr std::array kCalls = {
      "documentsDirectory", "createDirectory", "writeFile",       "removeFile",     "readFile", "encodeRoom",
      "exportRoom",         "encodeStructure", "exportStructure", "buildStructure", "archive",
#ifndef VANTOREL_WALK_THROUGH_SWIFT  // Foundation refuses what is no archive itself, and UIKit gives no reasons
      "unarchive",          "unarchiveNone",   "screenshot",
#endif
      "loadView",           "loadRootView",    "recording"};
  step.a = dice.of(kCalls);
  step.number = static_cast<int>(dice.of(std::array{0, 1, 1, 2}) * 10 + dice.of(std::array{0, 0, 1, 2}));
}

void drawRoom(Step &step, Dice &dice) { step.a = dice.of(rooms())->name; }

double secondsOf(const Step &step) { return step.number / 1000.0; }

void hearBool(vantorelBool value) { hear("= " + std::to_string(value)); }

void refuseUnless(Model &model, bool isDone) {
  if (!isDone) model.say("refused");
}

// ---- The table ----

void drawNothing(Step &, Dice &) {}

/// Without arguments and results.
template <void (*onLibrary)() noexcept, void (Model::*onModel)()>
Operation plain(const char *name, bool dependsOnPresence = false, int weight = 1) {
  return {name,
          drawNothing,
          [](const Step &) { onLibrary(); },
          [](Model &model, const Step &) { (model.*onModel)(); },
          dependsOnPresence,
          weight};
}

const std::vector<Operation> kOperations = {
    plain<initializeVTL, &Model::initializeVTL>("initialise", true),
    plain<disposeVTL, &Model::disposeVTL>("dispose", true),
    plain<prepareVTLResources, &Model::prepareVTLResources>("prepare"),
    {"flag",
     [](Step &step, Dice &dice) {
       step.a = dice.of(kFlags).name;
       drawByte(step, dice);
     },
     [](const Step &step) { flagOf(step).set(byteOf(step)); },
     [](Model &model, const Step &step) { model.*flagOf(step).member = step.number & 1; }},
    {"hostSession", drawNothing, [](const Step &) { setVantorelXRSession(vantorelDeviceARSession()); },
     [](Model &model, const Step &) { model.customARSession = kHostARSession; }},
    plain<startCaptureSession, &Model::startCaptureSession>("start", true),
    plain<runCaptureSession, &Model::runCaptureSession>("run"),
    plain<stopCaptureSession, &Model::stopCaptureSession>("stop"),
    {"closeRoom", drawByte, [](const Step &step) { stopCaptureSessionWithPause(byteOf(step)); },
     [](Model &model, const Step &) { model.stopCaptureSessionWithPause(); }},
    plain<pauseCaptureSessionScanning, &Model::pauseCaptureSessionScanning>("pause"),
    plain<resumeCaptureSessionScanning, &Model::resumeCaptureSessionScanning>("resume"),
    plain<createNewRoomCaptureSession, &Model::createNewRoomCaptureSession>("newRoom"),
    {"startMap",
     [](Step &step, Dice &dice) {
       step.a = dice.of(std::array{"/documents/WorldMap/scan", "/documents/WorldMap/scan",
                                   "/documents/WorldMap/scan", "/documents/garbage", "/documents/WorldMap",
                                   "/documents/missing", "", "/n", " "});
     },
     [](const Step &step) { startCaptureSessionWithARWorldMap(step.a.c_str()); },
     [](Model &model, const Step &step) { model.startCaptureSessionWithARWorldMap(step.a); }},
    {"stopMap",
     [](Step &step, Dice &dice) {
       step.a = dice.of(std::array{"/documents/", "/documents/", "/documents/deep", "/documents/missing/"});
     },
     [](const Step &step) { stopCaptureSessionWithARWorldMap(step.a.c_str()); },
     [](Model &model, const Step &step) { model.stopCaptureSessionWithARWorldMap(step.a); }},
    {"save", drawNames, [](const Step &step) { saveRoomPlanExperience(step.a.c_str(), step.b.c_str()); },
     [](Model &model, const Step &step) { model.save(step.a, step.b); }},
    {"trySave", drawNames,
     [](const Step &step) { hearBool(trySaveRoomPlanExperience(step.a.c_str(), step.b.c_str())); },
     [](Model &model, const Step &step) { model.say(model.save(step.a, step.b) ? "= 1" : "= 0"); }},
    {"merge", drawMerge,
     [](const Step &step) { mergeScans(mergeData(step).c_str(), step.a.c_str(), step.b.c_str()); },
     [](Model &model, const Step &step) { model.mergeScans(mergeData(step), step.a, step.b); }},
    {"torch", drawByte, [](const Step &step) { setFlashlightStatus(byteOf(step)); },
     [](Model &model, const Step &step) { model.setFlashlightStatus(step.number & 1); }},
    {"show", drawShow, [](const Step &step) { showOf(step).onLibrary(step.b.c_str()); },
     [](Model &model, const Step &step) { showOf(step).onModel(model, step.b); }, false, 4},
    plain<screenshotVTL, &Model::screenshot>("screenshot", false, 20),
    {"removeScreenshot",
     [](Step &step, Dice &dice) {
       step.number = dice.of(std::array{1, 3});  // 2 may be a folder
     },
     [](const Step &step) { removeFile(screenshotPath(step.number)); },
     [](Model &model, const Step &step) { model.phone.files.erase(screenshotPath(step.number)); }, false, 20},
    {"record", [](Step &step, Dice &dice) { step.number = static_cast<int>(dice.below(2)); },
     [](const Step &step) { step.number ? startScreenRecorderVTL() : stopScreenRecorderVTL(); },
     [](Model &model, const Step &step) {
       step.number ? model.startScreenRecorder() : model.stopScreenRecorder();
     },
     false, 4},
    {"camera", [](Step &step, Dice &dice) { step.number = static_cast<int>(dice.below(2)); },
     [](const Step &step) {
       hearResult(step.number ? getVTLARCameraMatrixRuntime() : getVTLARCameraProjectionMatrixRuntime());
     },
     [](Model &model, const Step &step) {
       const std::string text = step.number ? model.cameraMatrix() : model.projectionMatrix();
       model.say("= " + text);
     }},
    {"query", [](Step &step, Dice &dice) { step.number = static_cast<int>(dice.below(6)); },
     [](const Step &step) {
       if (step.number == 0) hearResult(getVantorelVersion());
       if (step.number == 1) hearBool(VantorelSupport());
       if (step.number == 2) hearBool(MultiRoomSupport());
       if (step.number == 3) hearBool(ARWorldMapSupport());
       if (step.number == 4) hearResult(getVTLNativeScreenshotOutputURL());
       if (step.number == 5) hearResult(getVTLNativeScreenRecorderOutputURL());
     },
     [](Model &model, const Step &step) {
       if (step.number == 0) model.say("= Vantorel 1.3.0");
       if (step.number == 1) model.say(model.phone.hasLidar ? "= 1" : "= 0");
       if (step.number == 2 || step.number == 3) model.say(model.isSupportedFrom17() ? "= 1" : "= 0");
       if (step.number == 4) model.say("= " + model.nativeScreenshotOutputURL);
       if (step.number == 5) model.say("= " + model.nativeScreenRecorderOutputURL);
     },
     false, 2},
    {"callback",
     [](Step &step, Dice &dice) {
       step.a = dice.of(kSlots);
       step.number = 1 + static_cast<int>(dice.below(2));
     },
     [](const Step &step) { fillSlot(slotNamed(step.a), step.number); },
     [](Model &model, const Step &step) { model.slots.at(slotNamed(step.a)) = step.number; }},
    {"option", drawOption,
     [](const Step &step) { hearRefusal(vantorelDeviceSetOption(step.a.c_str(), step.b.c_str())); },
     [](Model &model, const Step &step) { setOption(model.phone, step.a, step.b); }},
    {"update", drawRoom,
     [](const Step &step) { hearRefusal(vantorelDeviceDeliverUpdate(roomFile(step.a).c_str())); },
     [](Model &model, const Step &step) { refuseUnless(model, model.deliverUpdate(roomNamed(step.a))); }},
    {"instruction",
     [](Step &step, Dice &dice) {
       step.a = dice.of(std::array{"moveCloseToWall", "moveAwayFromWall", "slowDown", "turnOnLight", "normal",
                                   "lowTexture", "ofLaterSystems"});
     },
     [](const Step &step) { hearRefusal(vantorelDeviceDeliverInstruction(step.a.c_str())); },
     [](Model &model, const Step &step) { refuseUnless(model, model.deliverInstruction(step.a)); }},
    {"end",
     [](Step &step, Dice &dice) {
       step.a = dice.of(std::array{"none", "World tracking failure", "World tracking failure.", ""});
     },
     [](const Step &step) {
       hearRefusal(vantorelDeviceDeliverEnd(step.a == "none" ? nullptr : step.a.c_str()));
     },
     [](Model &model, const Step &step) {
       refuseUnless(model, model.deliverEnd(step.a == "none" ? std::nullopt : std::optional(step.a)));
     }},
    {"advance",
     [](Step &step, Dice &dice) {
       step.number = dice.of(std::array{0, 0, 0, 0, 100, 500, 1000, 3000});
     },
     [](const Step &step) { hearRefusal(vantorelDeviceAdvance(secondsOf(step))); },
     [](Model &model, const Step &step) { model.advance(step.number * (kSecond / 1000)); }},
    {"settle", drawNothing, [](const Step &) { hearRefusal(vantorelDeviceSettle()); },
     [](Model &model, const Step &) { model.settle(); }},
    {"room",
     [](Step &step, Dice &dice) {
       drawRoom(step, dice);
       step.number = dice.of(std::array{0, 100, 400, 1000});
     },
     [](const Step &step) {
       hearRefusal(vantorelDeviceSetRoom(roomFile(step.a).c_str(), secondsOf(step), 5));
     },
     [](Model &model, const Step &step) {
       model.phone.nextScan = std::make_shared<RoomPlayback>(roomNamed(step.a)->document, secondsOf(step), 5);
     }},
    {"fail", drawFault,
     [](const Step &step) {
       const auto number = static_cast<std::uint32_t>(step.number);
       hearRefusal(vantorelDeviceFail(step.a.c_str(), number / 10, number % 10));
     },
     [](Model &model, const Step &step) {
       const auto number = static_cast<std::uint32_t>(step.number);
       model.phone.faults[step.a] = {number / 10, number % 10};
     }},
};

}  // namespace

const std::vector<Operation> &operations() { return kOperations; }

std::size_t operationNamed(std::string_view name) {
  const auto found = std::find_if(kOperations.begin(), kOperations.end(),
                                  [&](const Operation &operation) { return operation.name == name; });
  return static_cast<std::size_t>(found - kOperations.begin());
}

std::string toText(const Step &step) {
  std::string text = kOperations[step.operation].name;
  for (const std::string &argument : {step.a, step.b, step.c}) text += " '" + argument + "'";
  while (text.ends_with(" ''")) text.resize(text.size() - 3);
  return text + (step.number ? " " + std::to_string(step.number) : "");
}

}  // namespace vantorel::walk
