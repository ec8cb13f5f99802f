#pragma once

#include "rooms/ScanReader.h"

namespace vantorel {

/// The scan without any coreModel and with new identifiers, which lead back to nobody: equal ones stay equal,
/// within a structure across its rooms too, and references still name what they named. They are made from the
/// scan's other visible values (UUIDs of version 8), so that equal scans give equal texts. All else stays, as
/// does which keys are there. Throws JsonEncodingError for a NaN or infinite number. Pure; any thread.
ScanDocument slimmed(ScanDocument scan);

/// The text of either, as writeRoom and writeStructure write it.
std::string writeScan(const ScanDocument &scan);

}  // namespace vantorel
