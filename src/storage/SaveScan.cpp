#include "storage/SaveScan.h"

#include "model/Convert.h"
#include "platform/PlatformError.h"
#include "storage/ScanFolder.h"

namespace vantorel {
namespace {

/// The library's own records of the room; nothing is written when they cannot be encoded.
void exportJson(FileManager &files, const CapturedRoom &room, const std::string &path) {
  if (const auto text = encodeToJson(room.content())) files.writeFile(path, *text);
}

}  // namespace

bool saveScan(Platform &platform, const std::string &directoryName, const std::string &scanName,
              const CapturedRoom *room) {
  FileManager &files = platform.fileManager();
  try {
    const ScanFolder folder(files, directoryName, scanName);
    if (folder.exists()) return false;
    folder.create();
    const std::string jsonPath = folder.file("scan.json");
    // Overwritten at once: what stays is the platform's text, and the records wherever encoding that fails.
    if (room) exportJson(files, *room, jsonPath);
    files.writeFile(jsonPath, room ? room->jsonText() : "null");
    if (room) room->writeUsdz(folder.file("scan.usdz"));
    return true;
  } catch (const PlatformError &) {
    platform.console().print("Couldn't create file(s)");
    return false;
  }
}

}  // namespace vantorel
