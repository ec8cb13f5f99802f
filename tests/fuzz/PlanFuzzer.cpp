// A text is refused or becomes a floor plan that is an SVG picture with every label apart from the others and off the
// walls, in both units; and a slim scan that holds no coreModel and is read again.
#include "plan/FloorPlan.h"
#include "rooms/SlimScan.h"
#include "support/SvgPicture.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace vantorel;

void require(bool condition) {
  if (!condition) std::abort();
}

void draw(const RoomDocument &room, plan::Units units) {
  try {
    require(testing::labelFaults(testing::readSvg(plan::writeFloorPlan(room, units, "plan"))).empty());
  } catch (const plan::PlanError &error) {
    require(*error.what() != '\0');
  }
}

void slim(const ScanDocument &scan) {
  const ScanDocument made = slimmed(scan);
  require(!elementsOf(made).coreModel);
  const std::string text = writeScan(made);
  require(writeScan(readScan(text)) == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  try {
    const ScanDocument scan = readScan({reinterpret_cast<const char *>(data), size});
    draw(elementsOf(scan), plan::Units::metric);
    draw(elementsOf(scan), plan::Units::feet);
    slim(scan);
  } catch (const RoomReadError &) {
  }
  return 0;
}
