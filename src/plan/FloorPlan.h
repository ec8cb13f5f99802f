// A room or a structure as an architect's floor plan.
#pragma once

#include "plan/Units.h"
#include "rooms/RoomDocument.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace vantorel::plan {

/// Why there is no plan.
struct PlanError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// More than any home has, and few enough for a plan in seconds, or within a minute when all lie in one place:
/// elements, sections, corners of floors.
inline constexpr std::size_t kMostElements = 5000, kMostSections = 500, kMostCorners = 20000;

/// The plan as SVG, to a usual scale when printed at its size; `title` is what the picture is called. The same
/// document gives the same bytes. Throws PlanError when there is more than the limits. Pure; any thread.
std::string writeFloorPlan(const RoomDocument &document, Units units, std::string_view title);

}  // namespace vantorel::plan
