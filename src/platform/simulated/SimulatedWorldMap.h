#pragma once

#include "base/Geometry.h"
#include "base/Uuid.h"
#include "platform/ARSession.h"
#include "platform/simulated/Faults.h"

#include <string>
#include <string_view>

namespace vantorel {

/// What the simulated device knows of a space. docs/world-maps.md describes the archive's bytes.
struct KnownSpace {
  Uuid identifier;
  Float4x4 camera;  ///< the pose where the session was

  bool operator==(const KnownSpace &) const = default;
};

std::string archiveOf(const KnownSpace &space);
/// Throws PlatformError when the bytes are not exactly an archive.
KnownSpace readArchive(std::string_view bytes);

class SimulatedWorldMap : public WorldMap {
 public:
  /// `faults` outlives the map.
  SimulatedWorldMap(const KnownSpace &space, Faults &faults) : space_(space), faults_(faults) {}
  std::string archivedData() const override;

  const KnownSpace &space() const { return space_; }

 private:
  const KnownSpace space_;
  Faults &faults_;
};

}  // namespace vantorel
