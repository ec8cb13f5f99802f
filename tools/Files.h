#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace vantorel {

/// The bytes of a file. Throws std::runtime_error when it cannot be read or holds more than 256 MiB.
std::string readFile(const std::string &path);

/// The regular files below a folder: their paths from there, sorted by bytes, and their sizes. Throws
/// std::filesystem::filesystem_error where it cannot look.
std::map<std::string, std::uintmax_t> fileSizes(const std::filesystem::path &folder);

}  // namespace vantorel
