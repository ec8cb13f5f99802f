#include "media/Screenshot.h"

#include "media/MediaLines.h"
#include "platform/PlatformError.h"

namespace vantorel {

namespace {

/// The first of the folder's "screenshot-1.jpg", "screenshot-2.jpg", ... that is not there yet.
std::string freePath(FileManager &files, const std::string &folder) {
  const auto numbered = [&](int number) { return folder + "/screenshot-" + std::to_string(number) + ".jpg"; };
  int number = 1;
  while (files.fileExists(numbered(number))) ++number;
  return numbered(number);
}

/// A file that could not be written whole does not stay.
void writeWhole(FileManager &files, const std::string &path, std::string_view bytes) {
  try {
    files.writeFile(path, bytes);
  } catch (const PlatformError &) {
    if (files.fileExists(path)) files.removeItem(path);
    throw;
  }
}

}  // namespace

std::optional<std::string> takeScreenshot(Platform &platform) {
  FileManager &files = platform.fileManager();
  try {
    const std::string jpeg = platform.screen().screenshotJpeg();
    const std::string folder = files.documentsDirectory();
    files.createDirectory(folder);
    const std::string path = freePath(files, folder);
    writeWhole(files, path, jpeg);
    return path;
  } catch (const PlatformError &error) {
    platform.console().print(std::string(kScreenshotFailed) + error.what());
    return std::nullopt;
  }
}

}  // namespace vantorel
