#include "ScanCommand.h"

#include "vantorel/simulated_device.h"

#include "DeviceText.h"
#include "Files.h"
#include "Host.h"
#include "LibraryCalls.h"
#include "ScanProgress.h"
#include "ScanSummary.h"
#include "base/Utf8Path.h"
#include "plan/FloorPlan.h"
#include "rooms/RoomReader.h"

#include <cerrno>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

RoomDocument checkedRoom(const std::string &path) {
  const std::string text = readFile(path);
  try {
    return readRoom(text);
  } catch (const RoomReadError &error) {
    throw std::runtime_error(path + ": " + error.what());
  }
}

std::string planOf(const RoomDocument &room, const ScanOptions &options) {
  try {
    return plan::writeFloorPlan(room, plan::Units::metric, fileName(options.room));
  } catch (const plan::PlanError &error) {
    throw std::runtime_error(options.room + ": " + error.what());
  }
}

/// Joined as texts: a name that begins with a slash stays below the documents folder.
std::string scanFolder(const ScanOptions &options) {
  return options.documents + '/' + options.directoryName + '/' + options.scanName;
}

/// The device knows more limits than the options' own.
void expectPlayable(const ScanOptions &options) {
  const DeviceText refusal(
      vantorelDeviceSetRoom(options.room.c_str(), options.seconds, options.updatesPerSecond));
  if (refusal) throw std::runtime_error(refusal.get());
}

std::string existsText(const std::string &folder) {
  return folder + " exists: a scan is never saved over what is there";
}

void expectNoFolder(const std::string &folder) {
  std::error_code error;
  const fs::file_type type = fs::symlink_status(pathOf(folder), error).type();
  if (type == fs::file_type::none)
    throw std::runtime_error("cannot save in " + folder + ": " + error.message());
  if (type != fs::file_type::not_found) throw std::runtime_error(existsText(folder));
}

/// What stands in the way of files in this folder, which the library does not tell; empty when nothing does
/// any more.
std::string obstacle(const std::string &folder) {
  std::error_code error;
  fs::create_directories(pathOf(folder), error);
  if (!error && access(folder.c_str(), W_OK) != 0) error.assign(errno, std::generic_category());
  if (!error && fs::space(pathOf(folder), error).available == 0)
    error = std::make_error_code(std::errc::no_space_on_device);
  return error ? ": " + error.message() : "";
}

void play(const ScanOptions &options, ScanProgress &progress) {
  Host host(progress, options.documents);
  registerCallbacks();
  std::istringstream script(scanScript(options));
  if (host.runScript(script) && progress.isSaved()) return;
  const std::string folder = scanFolder(options);
  if (progress.remarks().empty()) throw std::runtime_error(existsText(folder));  // since a moment ago
  throw std::runtime_error("the scan was not saved: " + progress.remarks() + " in " + folder +
                           obstacle(folder));
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
  expectPlayable(options);
  const std::string plan = options.plan.empty() ? "" : planOf(room, options);
  if (room.isEmpty()) notes << "vantorel: warning: there is nothing in " << options.room << '\n';
  ScanProgress progress(notes, options.seconds, showsBar);
  play(options, progress);
  progress.clearBar();
  if (!options.plan.empty()) writeFile(options.plan, plan);
  if (!progress.remarks().empty()) notes << "vantorel: note: " << progress.remarks() << '\n';
  const ScanSummary summary{
      options.room, options.ios, options.seconds,  progress.updates(), progress.instructions(),
      room,         folder,      fileSizes(folder)};
  out << (options.json ? jsonText(summary) : readableText(summary));
}

}  // namespace vantorel
