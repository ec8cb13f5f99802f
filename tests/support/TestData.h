// Where tests find real scans, reference texts and the project's samples.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

std::string readFile(const std::string &path);
void writeFile(const std::string &path, std::string_view bytes);

/// Real scans that lie beside the project on some machines; empty elsewhere: then the test is to be skipped.
std::vector<std::string> sharedRooms();
std::string sharedRoom(std::string_view name);
/// Reference rows of a .tsv file: comment lines dropped, split at tabs; empty where the file is absent.
std::vector<std::vector<std::string>> referenceRows(std::string_view fileName);

std::vector<std::string> sampleRooms();

/// A fresh folder, removed with the object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder &) = delete;
  const std::string &path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace vantorel::testing

/// For tests over real scans, which lie beside the project only on some machines.
#define SKIP_WITHOUT_SHARED_ROOMS()                 \
  if (::vantorel::testing::sharedRooms().empty()) { \
    GTEST_SKIP() << "the real rooms are not here";  \
  }
