#pragma once

#include "platform/CapturedRoom.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// Several rooms merged into one, immutable. Any thread.
class CapturedStructure {
 public:
  virtual ~CapturedStructure() = default;
  /// The platform's own encoding, UTF-8, pretty-printed with sorted keys. Throws PlatformError.
  virtual std::string jsonText() const = 0;
  /// Exports the mesh model to a file ending in ".usdz" and its metadata property list to another, in this
  /// order. Throws PlatformError.
  virtual void writeUsdz(const std::string &path, const std::string &metadataPath) const = 0;
};

/// iOS 17.
class StructureBuilder {
 public:
  virtual ~StructureBuilder() = default;
  /// Calls `completion` once, later, on a thread of the platform's; with null when the rooms cannot be merged.
  virtual void capturedStructure(std::vector<std::shared_ptr<CapturedRoom>> rooms,
                                 std::function<void(std::shared_ptr<CapturedStructure>)> completion) = 0;
};

}  // namespace vantorel
