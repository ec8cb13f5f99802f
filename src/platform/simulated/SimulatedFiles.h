#pragma once

#include "base/Guarded.h"
#include "platform/FileManager.h"
#include "platform/simulated/DiskFiles.h"
#include "platform/simulated/Faults.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantorel {

/// The app's files: real ones, unless a test keeps them elsewhere.
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

  /// What the platform itself writes, which no fault of writeFile hits. Throws PlatformError.
  void exportFile(const std::string &path, std::string_view bytes) { store_.load()->write(path, bytes); }

  // ---- Control; both stay over a power cycle ----

  /// Creates the folder when it is absent. Throws PlatformError.
  void setDocumentsDirectory(const std::string &path);
  /// Not null. The documents directory is to be set anew after it.
  void setStore(std::shared_ptr<FileStore> store) { store_.store(std::move(store)); }

 private:
  Faults &faults_;
  Guarded<std::shared_ptr<FileStore>> store_{std::make_shared<DiskFiles>()};
  Guarded<std::string> documents_;  // empty: the working directory
};

}  // namespace vantorel
