#include "Files.h"

#include "base/Utf8Path.h"

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace vantorel {
namespace {

[[noreturn]] void refuse(const std::string &path, int number) {
  throw std::runtime_error("cannot read " + path + ": " + errorText(number));
}

}  // namespace

std::string errorText(int number) { return std::generic_category().message(number ? number : EIO); }

std::ifstream openFile(const std::string &path) {
  errno = 0;
  std::ifstream file(pathOf(path), std::ios::binary);
  if (!file) refuse(path, errno);
  std::error_code ignored;
  if (std::filesystem::is_directory(pathOf(path), ignored))
    refuse(path, EISDIR);  // it opens but cannot be read
  return file;
}

std::string readFile(const std::string &path) {
  constexpr std::size_t kLargest = std::size_t{1} << 28U;  // an endless file shall not eat the memory
  std::ifstream file = openFile(path);
  std::string bytes;
  char block[1 << 16];
  while (file.read(block, sizeof block), file.gcount() > 0) {
    bytes.append(block, static_cast<std::size_t>(file.gcount()));
    if (bytes.size() > kLargest) throw std::runtime_error(path + " is too long: expected at most 256 MiB");
  }
  if (!file.eof()) refuse(path, errno);
  return bytes;
}

void writeFile(const std::string &path, const std::string &bytes) {
  errno = 0;
  std::ofstream file(pathOf(path), std::ios::binary | std::ios::trunc);
  if (!file || !file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())) || !file.flush())
    throw std::runtime_error("cannot write " + path + ": " + errorText(errno));
}

std::string fileName(const std::string &path) { return textOf(pathOf(path).stem()); }

std::map<std::string, std::uintmax_t> fileSizes(const std::string &folderPath) {
  const std::filesystem::path folder = pathOf(folderPath);
  std::map<std::string, std::uintmax_t> sizes;
  for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string path = textOf(entry.path().lexically_relative(folder));
    if (entry.is_regular_file()) sizes[path] = entry.file_size();
  }
  return sizes;
}

}  // namespace vantorel
