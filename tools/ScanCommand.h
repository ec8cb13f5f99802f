#pragma once

#include "ScriptParser.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace vantorel {

struct ScanOptions {
  std::string room;
  std::string documents = ".";
  std::string directoryName = "model-viewer", scanName = "My new scan";
  std::string ios = "18.0";
  double seconds = 10, updatesPerSecond = 10;
  std::string plan;  ///< where the room's floor plan goes; empty: nowhere
  bool json = false;
};

/// What a scan asks of the host, one command a line.
std::string scanScript(const ScanOptions &options);

/// vantorel scan: the summary goes to `out`, progress and notes to `notes`, with a bar if `showsBar`. Throws
/// std::runtime_error when it refuses, before anything is written, or when saving failed.
void runScan(const ScanOptions &options, std::ostream &out, std::ostream &notes, bool showsBar);

}  // namespace vantorel
