// The text form of a USD layer ("usda"), as far as a room needs it.
#pragma once

#include "base/FloatText.h"
#include "base/Geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace vantorel {

/// The text as a USD string with its quotes. Ill-formed UTF-8 is repaired.
std::string usdQuoted(std::string_view text);

/// What is left of the text as the name of a prim: letters, digits and underscores, all ASCII, an underscore
/// before a leading digit. `fallback` if nothing is left.
std::string usdName(std::string_view text, std::string_view fallback);

/// Like usdName, and never ends in a digit: two different stems with a number after each are different names.
std::string usdNameStem(std::string_view text, std::string_view fallback);

/// Appends a layer's prims and attributes to a text. Throws std::runtime_error for a NaN or infinite number.
class UsdText {
 public:
  using Metadata = std::initializer_list<std::string_view>;  ///< whole lines

  /// Starts the layer: metres, Y up. `out` must outlive the object; `root` is the name of its only root prim.
  UsdText(std::string &out, std::string_view root);

  /// All that follows, up to the matching endPrim, lies in this prim. `name` must be a prim's name.
  void beginPrim(std::string_view type, std::string_view name, Metadata metadata = {});
  void endPrim();
  /// The path of the innermost open prim.
  const std::string &path() const { return path_; }

  /// An attribute, or anything else, that is text already.
  void line(std::string_view text);
  /// `declaration` is the attribute's type and name.
  void attribute(std::string_view declaration, std::span<const int> values);
  void attribute(std::string_view declaration, std::span<const Float3> values, Metadata metadata = {});
  /// Places the innermost open prim in its parent.
  void transform(const Float4x4 &matrix);

 private:
  /// The text of a number lately written: meshes repeat few numbers many times.
  struct CachedFloat {
    std::uint32_t bits = 0;
    std::uint8_t length = 0;  ///< 0: none yet
    std::array<char, kFloatTextMax> text{};
  };
  static constexpr std::size_t kTupleMax = 4;

  void indent();
  void beginValue(std::string_view declaration);
  void endLine(Metadata metadata);
  void integer(int value);
  void tuple(std::span<const float> values);  // at most kTupleMax
  const CachedFloat &textOf(float value);
  template <typename Items, typename Write>
  void list(char open, const Items &items, char close, Write write);

  std::string &out_;
  std::string path_;
  std::size_t depth_ = 0;
  std::array<CachedFloat, 64> recentNumbers_;
};

}  // namespace vantorel
