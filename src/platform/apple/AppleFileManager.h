#pragma once

#include "platform/FileManager.h"

namespace vantorel::apple {

class AppleFileManager final : public FileManager {
 public:
  std::string documentsDirectory() override;
  std::string temporaryDirectory() override;
  bool fileExists(const std::string &path) override;
  void createDirectory(const std::string &path) override;
  std::string readFile(const std::string &path) override;
  void removeItem(const std::string &path) override;
  void writeFile(const std::string &path, std::string_view bytes) override;
};

}  // namespace vantorel::apple
