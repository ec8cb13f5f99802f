#pragma once

#include "rooms/RoomDocument.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace vantorel {

/// What `vantorel scan` says at its end.
struct ScanSummary {
  std::string room, ios;
  double seconds;
  std::size_t updates, instructions;
  const RoomDocument &document;
  std::string folder;
  std::map<std::string, std::uintmax_t> files;  ///< sizes by name
};

/// One object on one line, with its newline.
std::string jsonText(const ScanSummary &summary);

/// A few lines for people.
std::string readableText(const ScanSummary &summary);

}  // namespace vantorel
