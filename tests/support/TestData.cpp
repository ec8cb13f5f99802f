#include "support/TestData.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace vantorel::testing {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> jsonFiles(const fs::path &folder) {
  std::vector<std::string> files;
  if (!fs::is_directory(folder)) return files;
  for (const auto &entry : fs::directory_iterator(folder))
    if (entry.path().extension() == ".json") files.push_back(entry.path().string());
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

std::string readFile(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void writeFile(const std::string &path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::vector<std::string> sharedRooms() { return jsonFiles(fs::path(VANTOREL_SHARED_DIR) / "rooms"); }

std::string sharedRoom(std::string_view name) {
  return (fs::path(VANTOREL_SHARED_DIR) / "rooms" / (std::string(name) + ".json")).string();
}

std::vector<std::vector<std::string>> referenceRows(std::string_view fileName) {
  std::vector<std::vector<std::string>> rows;
  std::ifstream file(fs::path(VANTOREL_SHARED_DIR) / "reference" / fileName, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> cells(1);
    for (char c : line) {
      if (c == '\t') {
        cells.emplace_back();
      } else {
        cells.back() += c;
      }
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

std::vector<std::string> sampleRooms() { return jsonFiles(VANTOREL_SAMPLES_DIR); }

TemporaryFolder::TemporaryFolder() {
  std::string name = (fs::temp_directory_path() / "vantorel-test-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("cannot make a temporary folder");
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace vantorel::testing
