#pragma once

#include "platform/PlatformError.h"

#include <string>
#include <string_view>
#include <system_error>

namespace vantorel {

/// Where the device's files lie. Paths are absolute UTF-8 texts. Any thread; every failure but that of exists
/// throws PlatformError.
class FileStore {
 public:
  virtual ~FileStore() = default;
  /// Whether a file or folder is there; false also when it cannot be told.
  virtual bool exists(const std::string &path) = 0;
  /// With those above it. A folder that exists is no failure.
  virtual void createDirectories(const std::string &path) = 0;
  /// The whole file. A folder is a failure.
  virtual std::string read(const std::string &path) = 0;
  /// Replaces what was there; the folder must exist.
  virtual void write(const std::string &path, std::string_view bytes) = 0;
  /// A file, or a folder with all that is in it.
  virtual void remove(const std::string &path) = 0;
};

/// What a store throws when it cannot `doWhat` (as "write").
inline PlatformError fileError(const std::string &doWhat, const std::string &path, std::error_code reason) {
  return PlatformError("cannot " + doWhat + " " + path + ": " + reason.message());
}

}  // namespace vantorel
