#include "platform/apple/AppleFileManager.h"

#include "platform/apple/Border.h"

namespace vantorel::apple {

std::string AppleFileManager::documentsDirectory() {
  std::string path;
  orThrow([&](void *error) { return vantorel_swift_documents_directory(&path, error); });
  return path;
}

std::string AppleFileManager::temporaryDirectory() {
  stopProcess("Temporary files are not built for the iPhone yet.");
}

std::string AppleFileManager::readFile(const std::string &) {
  stopProcess("Reading files is not built for the iPhone yet.");
}

void AppleFileManager::removeItem(const std::string &) {
  stopProcess("Removing files is not built for the iPhone yet.");
}

bool AppleFileManager::fileExists(const std::string &path) {
  return vantorel_swift_file_exists(path.c_str());
}

void AppleFileManager::createDirectory(const std::string &path) {
  orThrow([&](void *error) { return vantorel_swift_create_directory(path.c_str(), error); });
}

void AppleFileManager::writeFile(const std::string &path, std::string_view bytes) {
  orThrow([&](void *error) {
    return vantorel_swift_write_file(path.c_str(), bytes.data(), bytes.size(), error);
  });
}

}  // namespace vantorel::apple
