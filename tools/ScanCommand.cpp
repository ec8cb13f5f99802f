#include "ScanCommand.h"

#include "Files.h"
#include "Host.h"
#include "LibraryCalls.h"
#include "ScanProgress.h"
#include "ScanSummary.h"
#include "rooms/RoomReader.h"

#include <ostream>
#include <sstream>
#include <stdexcept>

namespace vantorel {
namespace {

RoomDocument checkedRoom(const std::string &path) {
  const std::string text = readFile(path);
  try {
    return readRoom(text);
  } catch (const RoomReadError &error) {
    throw std::runtime_error(path + ": " + error.what());
  }
}

/// Joined as texts: a name that begins with a slash stays below the documents folder.
std::string scanFolder(const ScanOptions &options) {
  return options.documents + '/' + options.directoryName + '/' + options.scanName;
}

void expectNoFolder(const std::string &folder) {
  if (std::filesystem::exists(std::filesystem::symlink_status(folder)))
    throw std::runtime_error(folder + " exists: a scan is never saved over what is there");
}

void play(const ScanOptions &options, ScanProgress &progress) {
  Host host(progress, options.documents);
  registerCallbacks();
  std::istringstream script(scanScript(options));
  const bool isGood = host.runScript(script);
  if (!isGood || !progress.isSaved())
    throw std::runtime_error("the scan was not saved: " + progress.remarks());
}

}  // namespace

std::string scanScript(const ScanOptions &options) {
  const std::string seconds = secondsText(options.seconds);
  const Words commands[] = {
      {"device", "ios", options.ios},
      {"device", "room", options.room, seconds, secondsText(options.updatesPerSecond)},
      {"initializeVTL"},
      {"advance", "0"},
      {"startCaptureSession"},
      {"advance", seconds},
      {"settle"},
      {"stopCaptureSession"},
      {"trySaveRoomPlanExperience", options.directoryName, options.scanName},
      {"disposeVTL"},
      {"advance", "0"},
  };
  std::string script;
  for (const Words &command : commands) script += scriptLine(command) + '\n';
  return script;
}

void runScan(const ScanOptions &options, std::ostream &out, std::ostream &notes, bool showsBar) {
  const RoomDocument room = checkedRoom(options.room);
  const std::string folder = scanFolder(options);
  expectNoFolder(folder);
  if (room.isEmpty()) notes << "vantorel: warning: there is nothing in " << options.room << '\n';
  ScanProgress progress(notes, options.seconds, showsBar);
  play(options, progress);
  if (!progress.remarks().empty()) notes << "vantorel: note: " << progress.remarks() << '\n';
  const ScanSummary summary{
      options.room, options.ios, options.seconds,  progress.updates(), progress.instructions(),
      room,         folder,      fileSizes(folder)};
  out << (options.json ? jsonText(summary) : readableText(summary));
}

}  // namespace vantorel
