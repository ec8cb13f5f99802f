// The text form of a USD layer ("usda"), as far as a room needs it.
#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <initializer_list>
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
  /// `declaration` is the attribute's type and name. What is appended to the text that is returned, up to the
  /// matching endAttribute, is its value.
  std::string &beginAttribute(std::string_view declaration);
  void endAttribute(Metadata metadata = {}) { endLine(metadata); }
  /// Places the innermost open prim in its parent.
  void transform(const Float4x4 &matrix);

 private:
  void indent();
  void endLine(Metadata metadata);

  std::string &out_;
  std::string path_;
  std::size_t depth_ = 0;
};

}  // namespace vantorel
