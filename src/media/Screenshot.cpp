#include "media/Screenshot.h"

#include "media/FreePath.h"
#include "media/MediaLines.h"
#include "platform/PlatformError.h"

namespace vantorel {

std::optional<std::string> takeScreenshot(Platform &platform) {
  FileManager &files = platform.fileManager();
  try {
    const std::string jpeg = platform.screen().screenshotJpeg();
    const std::string folder = files.documentsDirectory();
    files.createDirectory(folder);
    const std::string path = freePath(files, folder, "screenshot", "jpg");
    files.writeFile(path, jpeg);
    return path;
  } catch (const PlatformError &error) {
    platform.console().print(std::string(kScreenshotFailed) + error.what());
    return std::nullopt;
  }
}

}  // namespace vantorel
