#pragma once

#include "platform/simulated/FileStore.h"

#include <filesystem>

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

/// Paths are UTF-8 on every system.
std::filesystem::path pathOf(const std::string &text);
std::string textOf(const std::filesystem::path &path);

}  // namespace vantorel
