#pragma once

#include "platform/FileManager.h"

#include <string>
#include <string_view>

namespace vantorel {

/// Appends a host's text to a location as Foundation appends a path component: one slash between the two, and
/// beyond that the text as it stands; "", "..", and slashes inside, before and behind it included.
std::string appendPathComponent(std::string location, std::string_view component);

/// The path of a location, without slashes at its end.
std::string pathOf(std::string_view location);

/// documents / directoryName / scanName: the folder of one scan, written once.
class ScanFolder {
 public:
  /// Throws PlatformError when there is no documents directory. Makes nothing.
  ScanFolder(FileManager &files, std::string_view directoryName, std::string_view scanName);

  std::string path() const { return pathOf(location_); }
  /// The path of a file in it.
  std::string file(std::string_view name) const { return pathOf(appendPathComponent(location_, name)); }
  bool exists() const { return files_.fileExists(path()); }
  /// Throws PlatformError.
  void create() const { files_.createDirectory(path()); }

 private:
  FileManager &files_;
  std::string location_;
};

}  // namespace vantorel
