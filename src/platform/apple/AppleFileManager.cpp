#include "platform/apple/AppleFileManager.h"

#include "platform/apple/Border.h"

namespace vantorel::apple {

std::string AppleFileManager::documentsDirectory() {
  std::string path;
  orThrow([&](void *error) { return vantorel_swift_documents_directory(&path, error); });
  return path;
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
