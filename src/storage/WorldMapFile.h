#pragma once

#include "platform/Platform.h"

#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// The bytes of a file; nothing when it cannot be read.
std::optional<std::string> loadARWorldMapData(FileManager &files, const std::string &path);

/// The map in the file, null when its archive holds none. Nothing, and "AR World Map Data loading error.",
/// when the file cannot be read or is no archive.
std::optional<std::shared_ptr<WorldMap>> loadWorldMap(Platform &platform, const std::string &path);

/// Writes the map to the file "WorldMap/scan", appended to the host's text as it stands; the folder must
/// exist. Replaces an older file. Any failure stops the process. Any thread.
void writeWorldMap(Platform &platform, const WorldMap &map, const std::string &path);

}  // namespace vantorel
