#include "platform/simulated/DiskFiles.h"

#include "base/Utf8Path.h"

#include <cerrno>
#include <fstream>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestFile = std::size_t{1} << 30;

}  // namespace

std::error_code lastFileError() { return {errno ? errno : EIO, std::generic_category()}; }

bool DiskFiles::exists(const std::string &path) {
  std::error_code ignored;
  return fs::exists(pathOf(path), ignored);
}

void DiskFiles::createDirectories(const std::string &path) {
  std::error_code error;
  fs::create_directories(pathOf(path), error);
  if (!error && !fs::is_directory(pathOf(path), error) && !error)
    error = std::make_error_code(std::errc::not_a_directory);
  if (error) throw fileError("create the folder", path, error);
}

std::string DiskFiles::read(const std::string &path) {
  errno = 0;
  std::ifstream file(pathOf(path), std::ios::binary);
  if (!file) throw fileError("read", path, lastFileError());
  std::string bytes;
  char part[1 << 16];
  while (file.read(part, sizeof part) || file.gcount() > 0) {
    bytes.append(part, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > kLongestFile)
      throw fileError("read", path, std::make_error_code(std::errc::file_too_large));
  }
  if (!file.eof()) throw fileError("read", path, lastFileError());
  return bytes;
}

void DiskFiles::write(const std::string &path, std::string_view bytes) {
  errno = 0;
  std::ofstream file(pathOf(path), std::ios::binary | std::ios::trunc);
  if (file) file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();  // a full disk may show only here
  if (!file) throw fileError("write", path, lastFileError());
}

void DiskFiles::remove(const std::string &path) {
  std::error_code error;
  const auto removed = fs::remove_all(pathOf(path), error);
  if (!error && removed == 0) error = std::make_error_code(std::errc::no_such_file_or_directory);
  if (error) throw fileError("remove", path, error);
}

}  // namespace vantorel
