#pragma once

#include "platform/CapturedStructure.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

class AppleCapturedStructure final : public CapturedStructure {
 public:
  explicit AppleCapturedStructure(Handle structure) : structure_(std::move(structure)) {}

  std::string jsonText() const override;
  void writeUsdz(const std::string &path, const std::string &metadataPath) const override;

 private:
  Handle structure_;
};

class AppleStructureBuilder final : public StructureBuilder {
 public:
  void capturedStructure(std::vector<std::shared_ptr<CapturedRoom>> rooms,
                         std::function<void(std::shared_ptr<CapturedStructure>)> completion) override;

 private:
  Handle builder_{vantorel_swift_structure_builder_create()};
};

}  // namespace vantorel::apple
