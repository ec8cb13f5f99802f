#include "support/MemoryFiles.h"

#include "base/Utf8Path.h"

#include <algorithm>

namespace vantorel::testing {
namespace {

namespace fs = std::filesystem;

/// The one key of a file or folder; that of the root is empty.
std::string keyOf(const std::string &path) {
  std::string key = textOf(("/" / pathOf(path)).lexically_normal());
  if (key.ends_with('/')) key.pop_back();
  return key;
}

std::string parentOf(const std::string &key) { return key.substr(0, key.rfind('/')); }

PlatformError failure(const char *doWhat, const std::string &path, std::errc reason) {
  return fileError(doWhat, path, std::make_error_code(reason));
}

}  // namespace

MemoryFiles::MemoryFiles() {
  items_[""];
  createDirectories(textOf(fs::temp_directory_path()));
}

const MemoryFiles::Item *MemoryFiles::find(const std::string &path) const {
  const auto found = items_.find(keyOf(path));
  return found == items_.end() ? nullptr : &found->second;
}

const MemoryFiles::Item &MemoryFiles::itemAt(const char *doWhat, const std::string &path) const {
  if (const Item *item = find(path)) return *item;
  throw failure(doWhat, path, std::errc::no_such_file_or_directory);
}

bool MemoryFiles::exists(const std::string &path) {
  const std::lock_guard lock(mutex_);
  return find(path) != nullptr;
}

void MemoryFiles::createDirectories(const std::string &path) {
  const std::lock_guard lock(mutex_);
  const std::string key = keyOf(path);
  for (std::size_t end = key.find('/', 1); !key.empty(); end = key.find('/', end + 1)) {
    if (items_[key.substr(0, end)]) throw failure("create the folder", path, std::errc::not_a_directory);
    if (end == key.npos) break;
  }
}

std::string MemoryFiles::read(const std::string &path) {
  const std::lock_guard lock(mutex_);
  const Item &item = itemAt("read", path);
  if (!item) throw failure("read", path, std::errc::is_a_directory);
  return *item;
}

void MemoryFiles::write(const std::string &path, std::string_view bytes) {
  const std::lock_guard lock(mutex_);
  const std::string key = keyOf(path);
  const auto folder = items_.find(parentOf(key));
  if (folder == items_.end()) throw failure("write", path, std::errc::no_such_file_or_directory);
  if (folder->second) throw failure("write", path, std::errc::not_a_directory);
  const auto present = items_.find(key);
  if (present != items_.end() && !present->second) throw failure("write", path, std::errc::is_a_directory);
  items_[key] = std::string(bytes);
}

void MemoryFiles::remove(const std::string &path) {
  const std::lock_guard lock(mutex_);
  itemAt("remove", path);
  const std::string key = keyOf(path);
  items_.erase(key);
  items_.erase(items_.lower_bound(key + '/'), items_.lower_bound(key + static_cast<char>('/' + 1)));
}

std::vector<std::string> MemoryFiles::list(const std::string &folder) {
  const std::lock_guard lock(mutex_);
  const std::string below = keyOf(folder) + '/';
  std::vector<std::string> paths;
  for (auto item = items_.lower_bound(below); item != items_.end() && item->first.starts_with(below); ++item)
    paths.push_back(item->first.substr(below.size()) + (item->second ? "" : "/"));
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace vantorel::testing
