#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// The app's files. Paths are absolute UTF-8 texts. Any thread; every failure but fileExists's throws
/// PlatformError.
class FileManager {
 public:
  virtual ~FileManager() = default;
  /// The user's documents directory, without a slash at the end. It is not created.
  virtual std::string documentsDirectory() = 0;
  /// For files that the system may remove when the app does not run; without a slash at the end.
  virtual std::string temporaryDirectory() = 0;
  /// Whether a file or folder is there; false also when it cannot be told.
  virtual bool fileExists(const std::string &path) = 0;
  /// With intermediate folders. A folder that exists is no failure.
  virtual void createDirectory(const std::string &path) = 0;
  /// The whole file. A folder is a failure.
  virtual std::string readFile(const std::string &path) = 0;
  /// A file, or a folder with all that is in it.
  virtual void removeItem(const std::string &path) = 0;
  /// Replaces what was there, not atomically.
  virtual void writeFile(const std::string &path, std::string_view bytes) = 0;
};

}  // namespace vantorel
