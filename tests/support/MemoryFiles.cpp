#include "support/MemoryFiles.h"

#include "base/Utf8Path.h"

namespace vantorel::testing {
namespace {

namespace fs = std::filesystem;

/// The one key of a file or folder; that of the root is empty.
std::string keyOf(const std::string &path) {
  std::string key = textOf(("/" / pathOf(path)).lexically_normal());
  if (key.ends_with('/')) key.pop_back();
  return key;
}

void failUnless(bool condition, const std::string &what) {
  if (!condition) throw PlatformError("cannot " + what);
}

}  // namespace

MemoryFiles::MemoryFiles() {
  items_[""];
  createDirectories(textOf(fs::temp_directory_path()));
}

bool MemoryFiles::exists(const std::string &path) { return items_.contains(keyOf(path)); }

void MemoryFiles::createDirectories(const std::string &path) {
  const std::string key = keyOf(path);
  for (std::size_t end = key.find('/', 1); !key.empty(); end = key.find('/', end + 1)) {
    failUnless(!items_[key.substr(0, end)], "create the folder " + path);
    if (end == key.npos) break;
  }
}

std::string MemoryFiles::read(const std::string &path) {
  const auto item = items_.find(keyOf(path));
  failUnless(item != items_.end() && item->second, "read " + path);
  return *item->second;
}

void MemoryFiles::write(const std::string &path, std::string_view bytes) {
  const std::string key = keyOf(path);
  const auto folder = items_.find(key.substr(0, key.rfind('/'))), item = items_.find(key);
  failUnless(folder != items_.end() && !folder->second, "write " + path);
  failUnless(item == items_.end() || item->second, "write " + path);
  items_[key] = std::string(bytes);
}

void MemoryFiles::remove(const std::string &path) {
  const std::string key = keyOf(path);
  failUnless(items_.erase(key) > 0, "remove " + path);
  items_.erase(items_.lower_bound(key + '/'), items_.lower_bound(key + static_cast<char>('/' + 1)));
}

std::vector<std::string> MemoryFiles::list(const std::string &folder) {
  const std::string below = keyOf(folder) + '/';
  std::vector<std::string> paths;
  for (auto item = items_.lower_bound(below); item != items_.end() && item->first.starts_with(below); ++item)
    paths.push_back(item->first.substr(below.size()) + (item->second ? "" : "/"));
  return paths;
}

}  // namespace vantorel::testing
