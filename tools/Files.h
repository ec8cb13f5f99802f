#pragma once

#include <cstdint>
#include <fstream>
#include <map>
#include <string>

namespace vantorel {

/// What the system says of an error number.
std::string errorText(int number);

/// A file to read bytes from. Throws std::runtime_error with the reason when there is none.
std::ifstream openFile(const std::string &path);

/// The bytes of a file. Throws std::runtime_error when it cannot be read or holds more than 256 MiB.
std::string readFile(const std::string &path);

/// Writes a file anew. Throws std::runtime_error with the reason when it cannot.
void writeFile(const std::string &path, const std::string &bytes);

/// A path's last part without its extension.
std::string fileName(const std::string &path);

/// The regular files below a folder: their paths from there, sorted by bytes, and their sizes. Throws
/// std::filesystem::filesystem_error where it cannot look.
std::map<std::string, std::uintmax_t> fileSizes(const std::string &folder);

}  // namespace vantorel
