#include "rooms/StoredZip.h"

#include <libdeflate.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

namespace vantorel {
namespace {

constexpr std::size_t kAlignment = 64;
constexpr std::size_t kLocalHeaderSize = 30;
constexpr std::size_t kChecksumAt = 14;  // in the local header; the two sizes follow
constexpr std::uint16_t kPaddingId = 0x1986;
constexpr std::uint16_t kFirstOfJanuary1980 = 0x0021;

void put(std::string &out, std::uint64_t value, int byteCount) {
  for (int i = 0; i < byteCount; ++i) out += static_cast<char>(value >> (8 * i) & 0xff);
}

void put16(std::string &out, std::uint64_t value) { put(out, value, 2); }
void put32(std::string &out, std::uint64_t value) { put(out, value, 4); }

/// The bytes that bring `offset` to a multiple of 64: none, or enough to be a record of their own.
std::size_t paddingAfter(std::size_t offset) {
  constexpr std::size_t kRecordHeaderSize = 4;
  const std::size_t padding = (kAlignment - offset % kAlignment) % kAlignment;
  return padding == 0 || padding >= kRecordHeaderSize ? padding : padding + kAlignment;
}

void putPadding(std::string &out, std::size_t size) {
  if (size == 0) return;
  put16(out, kPaddingId);
  put16(out, size - 4);
  out.append(size - 4, '\0');
}

void putLocalHeader(std::string &out, std::string_view fileName) {
  const std::size_t padding = paddingAfter(kLocalHeaderSize + fileName.size());
  put32(out, 0x04034b50);
  put16(out, 10);  // version needed: stored files
  put16(out, 0);   // flags
  put16(out, 0);   // method: stored
  put16(out, 0);   // time
  put16(out, kFirstOfJanuary1980);
  put32(out, 0);  // checksum and both sizes: set by setChecksumAndSizes
  put32(out, 0);
  put32(out, 0);
  put16(out, fileName.size());
  put16(out, padding);
  out += fileName;
  putPadding(out, padding);
}

void setChecksumAndSizes(std::string &archive, std::size_t dataStart) {
  const std::size_t size = archive.size() - dataStart;
  std::string fields;
  put32(fields, libdeflate_crc32(0, archive.data() + dataStart, size));
  put32(fields, size);
  put32(fields, size);
  archive.replace(kChecksumAt, fields.size(), fields);
}

/// Repeats the fields of the local header, its name and its padding.
void putCentralHeader(std::string &archive, std::size_t dataStart) {
  const std::string local = archive.substr(0, dataStart);
  put32(archive, 0x02014b50);
  put16(archive, 0);  // made by
  archive.append(local, 4, kLocalHeaderSize - 4);
  put16(archive, 0);  // comment
  put16(archive, 0);  // disk
  put16(archive, 0);  // internal attributes
  put32(archive, 0);  // external attributes
  put32(archive, 0);  // offset of the local header
  archive.append(local, kLocalHeaderSize);
}

void putEnd(std::string &archive, std::size_t directoryStart) {
  const std::size_t directorySize = archive.size() - directoryStart;
  put32(archive, 0x06054b50);
  put16(archive, 0);  // this disk
  put16(archive, 0);  // disk of the directory
  put16(archive, 1);  // entries here
  put16(archive, 1);  // entries in all
  put32(archive, directorySize);
  put32(archive, directoryStart);
  put16(archive, 0);  // comment
}

}  // namespace

StoredZip::StoredZip(std::string_view fileName) {
  if (fileName.empty() || fileName.size() > std::numeric_limits<std::uint16_t>::max())
    throw std::runtime_error("a file name of " + std::to_string(fileName.size()) +
                             " bytes does not fit in a zip archive");
  putLocalHeader(bytes_, fileName);
  dataStart_ = bytes_.size();
}

std::string StoredZip::finish() && {
  // The directory and the end record after the data take less than three times the header.
  constexpr std::uint64_t kLimit = std::numeric_limits<std::uint32_t>::max();
  if (bytes_.size() + 3 * dataStart_ > kLimit)
    throw std::runtime_error("the package of " + std::to_string(bytes_.size()) +
                             " bytes does not fit in 4 GiB");
  setChecksumAndSizes(bytes_, dataStart_);
  const std::size_t directoryStart = bytes_.size();
  putCentralHeader(bytes_, dataStart_);
  putEnd(bytes_, directoryStart);
  return std::move(bytes_);
}

}  // namespace vantorel
