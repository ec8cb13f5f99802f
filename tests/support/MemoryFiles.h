#pragma once

#include "platform/simulated/FileStore.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

/// Files that never touch the disk and fail where real ones do; for tests of very many steps, whose threads go hand
/// over hand. The root and the system's folder for temporary files are there from the start. No links: ".." goes
/// up, also out of what does not exist.
class MemoryFiles : public FileStore {
 public:
  MemoryFiles();
  bool exists(const std::string &path) override;
  void createDirectories(const std::string &path) override;
  std::string read(const std::string &path) override;
  void write(const std::string &path, std::string_view bytes) override;
  void remove(const std::string &path) override;

  /// Everything below the folder in the order of the paths; folders end in a slash.
  std::vector<std::string> list(const std::string &folder);

 private:
  using Item = std::optional<std::string>;  // nothing: a folder

  std::map<std::string, Item> items_;  // by their paths, without a slash at the end
};

}  // namespace vantorel::testing
