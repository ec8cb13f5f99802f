#pragma once

#include <string>

namespace vantorel {

/// A fresh folder, removed with the object and also when SIGHUP, SIGINT, SIGTERM or an abort ends the process
/// before. One at a time, made before other threads start: they inherit that these signals wait for one thread.
class TemporaryFolder {
 public:
  /// Throws std::runtime_error.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;
  const std::string &path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace vantorel
