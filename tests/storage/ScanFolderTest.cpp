#include "platform/simulated/DeviceParts.h"
#include "storage/ScanFolder.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

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
  DeviceParts device;
  device.files.setStore(std::make_shared<testing::MemoryFiles>());
  device.files.setDocumentsDirectory("/docs");
  for (const auto &row : table) {
    const ScanFolder folder(device.files, row.directoryName, row.scanName);
    EXPECT_EQ(folder.path(), row.path) << row.directoryName << " and " << row.scanName;
    EXPECT_EQ(folder.file("scan.json"), row.json);
  }
}

}  // namespace
}  // namespace vantorel
