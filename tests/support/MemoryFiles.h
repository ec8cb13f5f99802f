#pragma once

#include "platform/simulated/FileStore.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

/// Files that never touch the disk, with the errors of real ones; for tests of very many steps. The root and the
/// system's folder for temporary files are there from the start. No links: ".." goes up, also out of what does
/// not exist.
class MemoryFiles : public FileStore {
 public:
  MemoryFiles();
  bool exists(const std::string &path) override;
  void createDirectories(const std::string &path) override;
  std::string read(const std::string &path) override;
  void write(const std::string &path, std::string_view bytes) override;
  void remove(const std::string &path) override;

  /// Everything below the folder, sorted; folders end in a slash.
  std::vector<std::string> list(const std::string &folder);

 private:
  using Item = std::optional<std::string>;  // nothing: a folder

  const Item *find(const std::string &path) const;
  const Item &itemAt(const char *doWhat, const std::string &path) const;

  std::mutex mutex_;
  std::map<std::string, Item> items_;  // by their paths, without a slash at the end
};

}  // namespace vantorel::testing
