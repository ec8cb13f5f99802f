#include "storage/WorldMapFile.h"

#include "platform/PlatformError.h"

namespace vantorel {
namespace {

/// Stops the process when the action fails.
template <typename Action>
void mustSucceed(Platform &platform, const std::string &message, Action action) {
  try {
    action();
  } catch (const PlatformError &) {
    platform.stop(message);
  }
}

}  // namespace

std::optional<std::string> loadARWorldMapData(FileManager &files, const std::string &path) {
  try {
    return files.readFile(path);
  } catch (const PlatformError &) {
    return std::nullopt;
  }
}

std::optional<std::shared_ptr<WorldMap>> loadWorldMap(Platform &platform, const std::string &path) {
  try {
    if (const auto data = loadARWorldMapData(platform.fileManager(), path))
      return platform.unarchiveWorldMap(*data);
  } catch (const PlatformError &) {  // no archive: as unreadable as no file
  }
  platform.console().print("AR World Map Data loading error.");
  return std::nullopt;
}

void writeWorldMap(Platform &platform, const WorldMap &map, const std::string &path) {
  FileManager &files = platform.fileManager();
  const std::string savePath = path + "WorldMap/" + "scan";
  std::string data;
  mustSucceed(platform, "Can't encode map", [&] { data = map.archivedData(); });
  if (files.fileExists(savePath))
    mustSucceed(platform, "Can't remove " + savePath, [&] { files.removeItem(savePath); });
  mustSucceed(platform, "Can't write to url", [&] { files.writeFile(savePath, data); });
}

}  // namespace vantorel
