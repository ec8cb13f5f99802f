#pragma once

#include "platform/simulated/FileStore.h"

#include <string>
#include <system_error>

namespace vantorel {

/// Real files.
class DiskFiles : public FileStore {
 public:
  bool exists(const std::string &path) override;
  void createDirectories(const std::string &path) override;
  /// Refuses files of more than 1 GiB.
  std::string read(const std::string &path) override;
  void write(const std::string &path, std::string_view bytes) override;
  void remove(const std::string &path) override;
};

/// Why the last call of a file stream failed, when errno was 0 before it.
std::error_code lastFileError();

}  // namespace vantorel
