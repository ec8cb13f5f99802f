// What the model says of saved scans, merged rooms and world maps.
#include "walk/Model.h"

#include <algorithm>
#include <utility>

namespace vantorel::walk {
namespace {

constexpr std::string_view kSeparator = "_|+++++AMBER_WREN+++++|_";

/// Each name as one component: slashes at its ends and doubled ones do not count.
std::string folderOf(const std::string &directory, const std::string &scan) {
  std::string path = kDocuments + "/" + directory + "/" + scan;
  for (auto slash = path.find("//"); slash != std::string::npos; slash = path.find("//"))
    path.erase(slash, 1);
  while (path.ends_with('/')) path.pop_back();
  return path;
}

}  // namespace

// ---- Saving ----

bool Model::save(const std::string &directory, const std::string &scan) {
  directoryName = directory;
  scanName = scan;
  if (phone.ios >= 17 && capturedRoomsData.size() > 1) {
    mergeSession();
    return true;
  }
  const bool hasDocuments = !phone.fails("documentsDirectory");
  const std::string folder = folderOf(directory, scan);
  if (hasDocuments && phone.exists(folder)) return false;
  if (hasDocuments && writeScan(folder)) return true;
  print("Couldn't create file(s)");
  return false;
}

/// The records first, then the platform's text over them, then the model.
bool Model::writeScan(const std::string &folder) {
  if (phone.fails("createDirectory") || !phone.createFolder(folder)) return false;
  if (finalResults) {
    if (phone.fails("writeFile")) return false;
    phone.write(folder + "/scan.json", {ModelFile::Kind::other});
    if (phone.fails("encodeRoom")) return false;
  }
  if (phone.fails("writeFile")) return false;
  phone.write(folder + "/scan.json", {ModelFile::Kind::text, finalResults ? finalResults->text : "null"});
  if (!finalResults) return true;
  if (phone.fails("exportRoom")) return false;
  return phone.write(folder + "/scan.usdz", {ModelFile::Kind::other});
}

// ---- Merging ----

void Model::mergeScans(const std::string &data, const std::string &directory, const std::string &scan) {
  if (isRefusedBefore17()) return;
  std::vector<std::string> pieces;
  for (std::size_t begin = 0, end = 0; end != std::string::npos; begin = end + kSeparator.size()) {
    end = data.find(kSeparator, begin);
    const std::string piece = data.substr(begin, end == std::string::npos ? end : end - begin);
    if (!piece.empty() && piece != " ") pieces.push_back(piece);
  }
  if (pieces.empty()) return;
  phone.post(Thread::main, [pieces, folder = folderOf(directory, scan)](Model &model) {
    Rooms decoded;
    for (const auto &piece : pieces) {
      const RoomRef room = roomWithText(piece);
      model.print(room ? room->identifier : "Data is empty.");
      if (room) decoded.push_back(room);
    }
    if (decoded.empty()) return model.print("Structure data is empty.");
    model.build(decoded, [folder](const Model &) { return folder; });
  });
}

void Model::mergeSession() {
  addCapturedRoomToArray();
  phone.stop(session());
  phone.post(Thread::main, [](Model &model) {
    Rooms decoded;
    for (const RoomRef &room : model.capturedRoomsData)
      if (room) decoded.push_back(room);
    if (decoded.empty()) return model.print("Paths is empty.");
    model.build(decoded, [](const Model &later) { return folderOf(later.directoryName, later.scanName); });
  });
}

/// Takes 1 s and half a second a room; the main thread goes on with what came of it.
void Model::build(const Rooms &decoded, std::function<std::string(const Model &)> folder) {
  const bool isEmpty =
      std::all_of(decoded.begin(), decoded.end(), [](const RoomRef &room) { return room->isEmpty; });
  const bool fails = phone.fails("buildStructure") || !phone.hasLidar || isEmpty;
  const auto onMain = [decoded, folder, fails](Model &model) {
    if (fails) return model.print("Merging Error.");
    model.writeStructure(decoded, folder(model));
  };
  phone.post(
      Thread::completion, [onMain](Model &model) { model.phone.post(Thread::main, onMain); },
      kSecond + static_cast<Time>(decoded.size()) * kSecond / 2);
}

void Model::writeStructure(const Rooms &merged, const std::string &folder) {
  const bool hasDocuments = !phone.fails("documentsDirectory");
  if (hasDocuments && phone.exists(folder)) return;
  if (!hasDocuments || !tryWriteStructure(merged, folder)) print("Merging Error.");
}

bool Model::tryWriteStructure(const Rooms &merged, const std::string &folder) {
  if (phone.fails("createDirectory") || !phone.createFolder(folder)) return false;
  if (phone.fails("encodeStructure") || phone.fails("writeFile")) return false;
  std::string names;
  for (const RoomRef &room : merged) names += room->identifier + "\n";
  phone.write(folder + "/scan.json", {ModelFile::Kind::structure, names});
  if (phone.fails("exportStructure")) return false;
  phone.write(folder + "/scan.usdz", {ModelFile::Kind::other});
  return phone.write(folder + "/scan.plist", {ModelFile::Kind::other});
}

// ---- World maps ----

void Model::startCaptureSessionWithARWorldMap(const std::string &path) {
  if (isScanning || isRefusedBefore17()) return;
  if (path.empty() || path == "/n" || path == " ") return print("Path is empty.");
  const auto file = phone.files.find(path);
  const bool isRead = !phone.fails("readFile") && file != phone.files.end();
  const auto map = isRead ? phone.unarchive(file->second) : std::nullopt;
  if (!map) return print("AR World Map Data loading error.");
  createCaptureSession();
  phone.runAR(phone.sessions[session()].arSession, *map);
  phone.post(Thread::main, [](Model &model) { model.awaitTracking(); });
}

/// Sleeps a second between polls. As every job it comes back through the main queue, behind what is there.
void Model::awaitTracking() {
  const auto poll = [](Model &model) { model.awaitTracking(); };
  if (phone.trackingOf(phone.arSessionOf(session())) != "normal")
    return phone.post(
        Thread::main, [poll](Model &model) { model.phone.post(Thread::main, poll); }, kSecond, true);
  phone.run(session(), configIsCoachingEnabled);
  isRoomPlanSessionScanningPaused = false;
  isScanning = true;
  fire("VTLCaptureSessionDidStart");
  print("Worker task ending");
}

void Model::stopCaptureSessionWithARWorldMap(const std::string &path) {
  if (!isScanning || isRefusedBefore17()) return;
  phone.stop(session());
  const Id arSession = phone.sessions[session()].arSession;
  phone.post(
      Thread::completion, [arSession, path](Model &model) { model.worldMapArrives(arSession, path); },
      kSecond / 2);
}

void Model::worldMapArrives(Id arSession, const std::string &path) {
  const auto camera = phone.pose(phone.arSessions[arSession]);
  if (!phone.hasMap || !camera) return print("Can't get current world map");
  const std::string file = path + "WorldMap/scan";
  if (phone.fails("archive")) throw ProcessStops{};
  if (phone.exists(file) && phone.fails("removeFile")) throw ProcessStops{};
  if (phone.fails("writeFile") || !phone.write(file, {ModelFile::Kind::worldMap, "", *camera}))
    throw ProcessStops{};
  removeScanView();
  isRoomPlanSessionScanningPaused = false;
  isScanning = false;
  fire("VTLCaptureSessionDidEnd");
}

}  // namespace vantorel::walk
