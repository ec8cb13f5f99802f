#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

/// A room's text without the characters of its coreModel, which are most of it and which nobody but the
/// platform can read. The key and the quotes stay, so both texts parse alike. Nothing is cut when no string
/// after a key "coreModel" is plain (printable ASCII, no escape but "\/"). Whether that key is the room's own
/// is for the reader to see.
struct CutText {
  static constexpr std::size_t kNothing = std::string_view::npos;

  std::string_view whole;     ///< borrowed
  std::string shortened;      ///< padded at its end with kPadding NUL bytes
  std::size_t at = kNothing;  ///< where something was cut: an offset in both texts
  std::size_t length = 0;     ///< of what was cut
  static constexpr std::size_t kPadding = 8;

  static CutText withoutCoreModel(std::string_view text);
  static CutText uncut(std::string_view text);
  static CutText cutting(std::string_view text, std::size_t at, std::size_t length);

  std::size_t size() const { return shortened.size() - kPadding; }
  /// The place in the whole text of a place in the shortened one.
  std::size_t wholeOffset(std::size_t offset) const { return offset > at ? offset + length : offset; }
  /// What the whole text holds between two places of the shortened one.
  std::string_view written(std::size_t begin, std::size_t end) const;
  /// The characters of the string that opens before `begin`, escapes and all.
  std::string_view writtenString(std::size_t begin) const;
};

}  // namespace vantorel
