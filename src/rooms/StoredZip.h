#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

/// A zip archive of one uncompressed file, as a USDZ package has to be: the file's bytes start at a multiple
/// of
/// 64. Everything is kept in one buffer, the time is a constant.
class StoredZip {
 public:
  /// `fileName` is ASCII. Throws std::runtime_error if it is empty or longer than a zip header can say.
  explicit StoredZip(std::string_view fileName);

  /// Where the file's bytes are to be appended. What is there already must stay.
  std::string &content() { return bytes_; }

  /// The finished archive. Throws std::runtime_error if it does not fit in 4 GiB; zip64 is not allowed in
  /// USDZ.
  std::string finish() &&;

 private:
  std::string bytes_;
  std::size_t dataStart_;
};

}  // namespace vantorel
