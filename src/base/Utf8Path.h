#pragma once

#include <filesystem>
#include <string>

namespace vantorel {

/// Paths are UTF-8 texts on every system.
inline std::filesystem::path pathOf(const std::string &text) {
  return std::u8string(text.begin(), text.end());
}

/// With slashes on every system.
inline std::string textOf(const std::filesystem::path &path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

}  // namespace vantorel
