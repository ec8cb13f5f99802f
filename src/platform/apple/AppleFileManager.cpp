#include "platform/apple/AppleFileManager.h"

#include "platform/apple/Border.h"

namespace vantorel::apple {

std::string AppleFileManager::documentsDirectory() { return textFrom(vantorel_swift_documents_directory); }

std::string AppleFileManager::temporaryDirectory() {
  std::string path;
  vantorel_swift_temporary_directory(&path);
  return path;
}

bool AppleFileManager::fileExists(const std::string &path) {
  return vantorel_swift_file_exists(path.c_str());
}

void AppleFileManager::createDirectory(const std::string &path) {
  orThrow([&](void *error) { return vantorel_swift_create_directory(path.c_str(), error); });
}

std::string AppleFileManager::readFile(const std::string &path) {
  return textFrom(
      [&](void *bytes, void *error) { return vantorel_swift_read_file(path.c_str(), bytes, error); });
}

void AppleFileManager::removeItem(const std::string &path) {
  orThrow([&](void *error) { return vantorel_swift_remove_item(path.c_str(), error); });
}

void AppleFileManager::writeFile(const std::string &path, std::string_view bytes) {
  orThrow([&](void *error) {
    return vantorel_swift_write_file(path.c_str(), bytes.data(), bytes.size(), error);
  });
}

}  // namespace vantorel::apple
