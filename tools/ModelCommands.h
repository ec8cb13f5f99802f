// vantorel plan and vantorel slim: what comes of a saved scan, without a device.
#pragma once

#include <iosfwd>
#include <string>

namespace vantorel {

struct PlanOptions {
  std::string scan;
  std::string output;  ///< empty: standard output
  bool feet = false;
};

struct SlimOptions {
  std::string scan;
  std::string output;  ///< as above
};

/// The file's room or structure as a floor plan; to `out` where there is no file. Throws std::runtime_error when
/// it refuses or fails.
void runPlan(const PlanOptions &options, std::ostream &out);

/// Likewise the file's room or structure without its coreModel and with new identifiers.
void runSlim(const SlimOptions &options, std::ostream &out);

}  // namespace vantorel
