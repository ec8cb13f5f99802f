#pragma once

#include "base/Guarded.h"
#include "platform/FileManager.h"
#include "platform/simulated/Faults.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Real files.
class SimulatedFiles : public FileManager {
 public:
  explicit SimulatedFiles(Faults &faults) : faults_(faults) {}

  std::string documentsDirectory() override;
  std::string temporaryDirectory() override;
  bool fileExists(const std::string &path) override;
  void createDirectory(const std::string &path) override;
  std::string readFile(const std::string &path) override;
  void removeItem(const std::string &path) override;
  void writeFile(const std::string &path, std::string_view bytes) override;

  /// Creates the folder when it is absent. Throws PlatformError.
  void setDocumentsDirectory(const std::string &path);

  // ---- Without faults, for what the platform itself reads and writes; both throw PlatformError ----

  static std::string read(const std::string &path);
  static void write(const std::string &path, std::string_view bytes);

 private:
  Faults &faults_;
  Guarded<std::string> documents_;  // empty: the working directory
};

}  // namespace vantorel
