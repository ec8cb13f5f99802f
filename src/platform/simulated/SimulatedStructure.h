#pragma once

#include "platform/CapturedStructure.h"
#include "platform/simulated/DeviceParts.h"
#include "rooms/StructureDocument.h"

namespace vantorel {

/// A structure document in the role of a captured structure.
class SimulatedStructure : public CapturedStructure {
 public:
  /// `device` outlives the structure.
  SimulatedStructure(StructureDocument document, DeviceParts &device)
      : document_(std::move(document)), device_(device) {}

  std::string jsonText() const override;
  void writeUsdz(const std::string &path, const std::string &metadataPath) const override;

  const StructureDocument &document() const { return document_; }

 private:
  const StructureDocument document_;
  DeviceParts &device_;
};

/// Takes 1 s and 0.5 s a room; merges at the end of that, on the completion thread. Fails without LiDAR too.
class SimulatedStructureBuilder : public StructureBuilder {
 public:
  /// `device` outlives the builder and what it builds.
  explicit SimulatedStructureBuilder(DeviceParts &device) : device_(device) {}
  void capturedStructure(std::vector<std::shared_ptr<CapturedRoom>> rooms,
                         std::function<void(std::shared_ptr<CapturedStructure>)> completion) override;

 private:
  DeviceParts &device_;
};

}  // namespace vantorel
