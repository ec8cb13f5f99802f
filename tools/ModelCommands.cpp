#include "ModelCommands.h"

#include "Files.h"
#include "base/Utf8Path.h"
#include "plan/FloorPlan.h"
#include "rooms/SlimScan.h"

#include <ostream>
#include <stdexcept>

namespace vantorel {
namespace {

ScanDocument readScanFile(const std::string &path) {
  const std::string text = readFile(path);
  try {
    return readScan(text);
  } catch (const RoomReadError &error) {
    throw std::runtime_error(path + ": " + error.what());
  }
}

/// Never over the scan, which may be the only one of its kind.
void put(const std::string &text, const std::string &scan, const std::string &path, std::ostream &out) {
  std::error_code ignored;
  if (std::filesystem::equivalent(pathOf(scan), pathOf(path), ignored))
    throw std::runtime_error(path + " is the scan itself; name another file");
  path.empty() ? void(out << text) : writeFile(path, text);
}

}  // namespace

void runPlan(const PlanOptions &options, std::ostream &out) {
  const ScanDocument scan = readScanFile(options.scan);
  try {
    const plan::Units units = options.feet ? plan::Units::feet : plan::Units::metric;
    put(plan::writeFloorPlan(elementsOf(scan), units, fileName(options.scan)), options.scan, options.output,
        out);
  } catch (const plan::PlanError &error) {
    throw std::runtime_error(options.scan + ": " + error.what());
  }
}

void runSlim(const SlimOptions &options, std::ostream &out) {
  put(writeScan(slimmed(readScanFile(options.scan))), options.scan, options.output, out);
}

}  // namespace vantorel
