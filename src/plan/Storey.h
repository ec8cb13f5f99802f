// What a scan holds, storey by storey, as it lies on paper: in metres, turned so that most walls run along the
// paper's edges.
#pragma once

#include "base/Uuid.h"
#include "plan/Track.h"
#include "rooms/RoomDocument.h"
#include "rooms/WallDepth.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorel::plan {

struct Wall {
  Uuid identifier;
  Track track;
  std::vector<Band> whole{};  ///< end to end, as if nothing was cut out
  std::vector<Band> solid{};  ///< without doors, windows and openings
};

struct Hole {
  enum class Kind { door, window, opening };
  Kind kind;
  Track track;  ///< of the wall
  double from, to;
  double depth = kWallDepth;
  std::optional<Uuid> wall{};
  Band band() const { return {&track, from, to, depth}; }
};

struct Furniture {
  Point centre, right, front;  ///< the latter two are half its size
  std::string name;            ///< as people say it: "Coffee table"
  std::string category;
  bool isRound = false;
  Polygon outline() const;
};

struct LabelledPlace {
  Point centre;
  std::string name;
};

struct Storey {
  std::string name;
  std::vector<Wall> walls{};
  std::vector<Hole> holes{};
  std::vector<Furniture> furniture{};  ///< each may hide what comes before it
  std::vector<Polygon> floors{};
  std::vector<LabelledPlace> sections{};
};

struct Storeys {
  std::vector<Storey> storeys;  ///< from the lowest to the highest
  std::size_t leftOut = 0;      ///< elements whose numbers make no sense
};

/// Elements that are not finite, more than 16,384 m from the origin, longer than 1 km or without a size are left
/// out. Walls have neither bands nor holes yet.
Storeys storeysOf(const RoomDocument &document);

/// "livingRoom" as "Living room"; what is much longer is cut.
std::string wordsOf(const std::string &name);

}  // namespace vantorel::plan
