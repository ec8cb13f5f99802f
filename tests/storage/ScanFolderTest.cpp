#include "storage/ScanFolder.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

struct Documents : FileManager {
  std::string documentsDirectory() override { return "/docs"; }
  std::string temporaryDirectory() override { return "/tmp"; }
  bool fileExists(const std::string &) override { return false; }
  void createDirectory(const std::string &) override {}
  std::string readFile(const std::string &) override { return ""; }
  void removeItem(const std::string &) override {}
  void writeFile(const std::string &, std::string_view) override {}
};

// What Foundation gives for these names.
TEST(ScanFolder, AppendsEachNameAsOneComponentAsItStands) {
  const struct {
    std::string directoryName, scanName, path, json = path + "/scan.json";
  } table[] = {
      {"model-viewer", "My new scan", "/docs/model-viewer/My new scan"},
      {"", "", "/docs"},
      {"", "n", "/docs/n"},
      {"/", "n", "/docs/n"},
      {"///", "n", "/docs///n"},
      {"/x", "", "/docs/x"},
      {"//x", "", "/docs//x"},
      {"a/", "n", "/docs/a/n"},
      {"a/", "/n", "/docs/a/n"},
      {"a//", "n", "/docs/a//n"},
      {"a//", "//n", "/docs/a///n"},
      {"a", "n/", "/docs/a/n"},
      {"a", "n//", "/docs/a/n", "/docs/a/n//scan.json"},
      {"//", "//", "/docs", "/docs///scan.json"},
      {"a/b", "c/d", "/docs/a/b/c/d"},
      {"..", "../n", "/docs/../../n"},
      {".", "./", "/docs/./."},
      {" a ", "%2F", "/docs/ a /%2F"},
      {"e\xCC\x81", "?#;", "/docs/e\xCC\x81/?#;"},
  };
  Documents documents;
  for (const auto &row : table) {
    const ScanFolder folder(documents, row.directoryName, row.scanName);
    EXPECT_EQ(folder.path(), row.path) << row.directoryName << " and " << row.scanName;
    EXPECT_EQ(folder.file("scan.json"), row.json);
  }
}

}  // namespace
}  // namespace vantorel
