#include "storage/ScanFolder.h"

namespace vantorel {

std::string appendPathComponent(std::string location, std::string_view component) {
  const bool endsInSlash = !location.empty() && location.back() == '/';
  const bool beginsWithSlash = !component.empty() && component.front() == '/';
  if (endsInSlash && beginsWithSlash) component.remove_prefix(1);
  if (!endsInSlash && !beginsWithSlash) location += '/';
  return location.append(component);
}

std::string pathOf(std::string_view location) {
  while (location.size() > 1 && location.back() == '/') location.remove_suffix(1);
  return std::string(location);
}

ScanFolder::ScanFolder(FileManager &files, std::string_view directoryName, std::string_view scanName)
    : files_(files),
      location_(
          appendPathComponent(appendPathComponent(files.documentsDirectory(), directoryName), scanName)) {}

}  // namespace vantorel
