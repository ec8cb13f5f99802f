#include "platform/simulated/SimulatedFiles.h"

#include "platform/PlatformError.h"
#include "rooms/RoomReader.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// Paths are UTF-8 on every system.
fs::path pathOf(const std::string &text) { return fs::path(std::u8string(text.begin(), text.end())); }

std::string textOf(const fs::path &path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

[[noreturn]] void fail(const std::string &what, const std::string &path, const std::string &reason) {
  throw PlatformError("cannot " + what + " " + path + ": " + reason);
}

std::string lastError() { return std::generic_category().message(errno ? errno : EIO); }

void makeFolder(const fs::path &path) {
  std::error_code error;
  fs::create_directories(path, error);
  if (!error && !fs::is_directory(path, error) && !error)
    error = std::make_error_code(std::errc::not_a_directory);
  if (error) fail("create the folder", textOf(path), error.message());
}

}  // namespace

std::string SimulatedFiles::documentsDirectory() {
  faults_.check("documentsDirectory");
  if (auto chosen = documents_.load(); !chosen.empty()) return chosen;
  std::error_code error;
  const fs::path here = fs::current_path(error);
  if (error) throw PlatformError("no working directory: " + error.message());
  return textOf(here);
}

std::string SimulatedFiles::temporaryDirectory() {
  std::error_code error;
  const fs::path folder = fs::temp_directory_path(error);
  if (error) throw PlatformError("no folder for temporary files: " + error.message());
  return textOf(folder);
}

bool SimulatedFiles::fileExists(const std::string &path) {
  std::error_code ignored;
  return fs::exists(pathOf(path), ignored);
}

void SimulatedFiles::createDirectory(const std::string &path) {
  faults_.check("createDirectory");
  makeFolder(pathOf(path));
}

std::string SimulatedFiles::readFile(const std::string &path) {
  faults_.check("readFile");
  return read(path);
}

void SimulatedFiles::removeItem(const std::string &path) {
  faults_.check("removeFile");
  std::error_code error;
  const auto removed = fs::remove_all(pathOf(path), error);
  if (error) fail("remove", path, error.message());
  if (removed == 0) fail("remove", path, "there is no such file");
}

void SimulatedFiles::writeFile(const std::string &path, std::string_view bytes) {
  faults_.check("writeFile");
  write(path, bytes);
}

void SimulatedFiles::setDocumentsDirectory(const std::string &path) {
  if (path.empty()) throw PlatformError("the documents directory needs a path");
  std::error_code error;
  const fs::path folder = fs::absolute(pathOf(path), error);
  if (error) fail("find", path, error.message());
  makeFolder(folder);
  const fs::path resolved = fs::canonical(folder, error);  // without ".." and a slash at the end
  if (error) fail("find", path, error.message());
  documents_.store(textOf(resolved));
}

std::string SimulatedFiles::read(const std::string &path) {
  errno = 0;
  std::ifstream file(pathOf(path), std::ios::binary);
  if (!file) fail("read", path, lastError());
  std::string bytes;
  char part[1 << 16];
  while (file.read(part, sizeof part) || file.gcount() > 0) {
    bytes.append(part, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > kLongestRoom) fail("read", path, "larger than 1 GiB");
  }
  if (!file.eof()) fail("read", path, lastError());
  return bytes;
}

void SimulatedFiles::write(const std::string &path, std::string_view bytes) {
  errno = 0;
  std::ofstream file(pathOf(path), std::ios::binary | std::ios::trunc);
  if (file) file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();  // a full disk may show only here
  if (!file) fail("write", path, lastError());
}

}  // namespace vantorel
