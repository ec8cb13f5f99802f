#include "rooms/StoredZip.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <utility>

namespace vantorel {
namespace {

std::uint32_t number(std::string_view bytes, std::size_t at, int byteCount) {
  std::uint32_t value = 0;
  for (int i = byteCount - 1; i >= 0; --i)
    value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
  return value;
}

std::uint32_t crc32(std::string_view bytes) {
  std::uint32_t crc = 0xffffffff;
  for (unsigned char byte : bytes) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit) crc = crc >> 1 ^ (crc & 1 ? 0xedb88320 : 0);
  }
  return ~crc;
}

std::string zipOf(std::string_view name, std::string_view content) {
  StoredZip zip(name);
  zip.content() += content;
  return std::move(zip).finish();
}

/// Every structure of the archive, from its end.
void checkArchive(const std::string &zip, const std::string &name, std::string_view content) {
  const std::size_t end = zip.size() - 22;
  ASSERT_EQ(number(zip, end, 4), 0x06054b50u);
  EXPECT_EQ(zip.substr(end + 4, 8), std::string("\0\0\0\0\1\0\1\0", 8));
  EXPECT_EQ(number(zip, end + 20, 2), 0u);
  const std::size_t central = number(zip, end + 16, 4);
  EXPECT_EQ(central + number(zip, end + 12, 4), end);

  ASSERT_EQ(number(zip, central, 4), 0x02014b50u);
  EXPECT_EQ(number(zip, central + 4, 2), 0u) << "made by";
  EXPECT_EQ(zip.substr(central + 32, 14), std::string(14, '\0')) << "comment, disk, attributes, offset";

  ASSERT_EQ(number(zip, 0, 4), 0x04034b50u);
  EXPECT_EQ(zip.substr(4, 26), zip.substr(central + 6, 26)) << "local against central header";
  EXPECT_EQ(zip.substr(4, 10), std::string("\x0a\0\0\0\0\0\0\0\x21\0", 10)) << "version to date";
  EXPECT_EQ(number(zip, 14, 4), crc32(content));
  EXPECT_EQ(number(zip, 18, 4), content.size());
  EXPECT_EQ(number(zip, 22, 4), content.size());

  const std::size_t extra = number(zip, 28, 2), data = 30 + name.size() + extra;
  ASSERT_EQ(number(zip, 26, 2), name.size());
  EXPECT_EQ(zip.substr(30, name.size()), name);
  EXPECT_EQ(data % 64, 0u);
  if (extra > 0) {
    EXPECT_EQ(number(zip, 30 + name.size(), 2), 0x1986u);
    EXPECT_EQ(number(zip, 32 + name.size(), 2), extra - 4);
  }
  EXPECT_EQ(zip.substr(30, data - 30), zip.substr(central + 46, data - 30)) << "name and padding";
  EXPECT_EQ(central + 46 + data - 30, end);
  EXPECT_EQ(zip.substr(data, central - data), content);
}

TEST(StoredZip, AlignsItsFileAndDescribesItTwiceAlike) {
  for (std::size_t length = 1; length <= 130; ++length) {
    SCOPED_TRACE(length);
    const std::string name(length, 'n'), content(17 * length, static_cast<char>(length));
    checkArchive(zipOf(name, content), name, content);
  }
  checkArchive(zipOf("empty.usda", ""), "empty.usda", "");
}

TEST(StoredZip, RefusesANameThatAHeaderCannotHold) {
  EXPECT_THROW(StoredZip(""), std::runtime_error);
  EXPECT_THROW(StoredZip(std::string(65536, 'n')), std::runtime_error);
  EXPECT_NO_THROW(zipOf(std::string(65535, 'n'), "x"));
}

}  // namespace
}  // namespace vantorel
