#include "storage/SaveStructure.h"

#include "platform/PlatformError.h"
#include "storage/ScanFolder.h"

namespace vantorel {
namespace {

void exportJson(FileManager &files, const CapturedStructure &structure, const std::string &path) {
  files.writeFile(path, structure.jsonText());
}

}  // namespace

void saveStructure(Platform &platform, const std::string &directoryName, const std::string &scanName,
                   const CapturedStructure *structure) {
  FileManager &files = platform.fileManager();
  try {
    if (!structure) throw PlatformError("the rooms could not be merged");
    const ScanFolder folder(files, directoryName, scanName);
    if (folder.exists()) return;
    folder.create();
    exportJson(files, *structure, folder.file("scan.json"));
    structure->writeUsdz(folder.file("scan.usdz"), folder.file("scan.plist"));
  } catch (const PlatformError &) {
    platform.console().print("Merging Error.");
  }
}

}  // namespace vantorel
