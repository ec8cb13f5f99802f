#include "media/HostFile.h"

#include "base/Digits.h"
#include "base/Utf8.h"
#include "media/MediaLines.h"

namespace vantorel {
namespace {

/// The character of the escape that begins the text. No path holds a NUL, so "%00" is none.
std::optional<char> escapeAt(std::string_view text) {
  if (text.size() < 3 || text[0] != '%') return std::nullopt;
  const auto high = hexDigit(text[1]), low = hexDigit(text[2]);
  if (!high || !low || *high + *low == 0) return std::nullopt;
  return static_cast<char>(*high * 16 + *low);
}

std::string unescaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const auto escape = escapeAt(text);
    result += escape.value_or(text.front());
    text.remove_prefix(escape ? 3 : 1);
  }
  return repairedUtf8(result);
}

}  // namespace

std::string pathIn(std::string_view text) {
  for (const std::string_view scheme : {"file://localhost/", "file:///"})
    if (text.starts_with(scheme)) return unescaped(text.substr(scheme.size() - 1));
  return std::string(text);
}

std::optional<std::string> existingFile(Platform &platform, std::string_view text) {
  std::string path = pathIn(text);
  if (!path.empty() && platform.fileManager().fileExists(path)) return path;
  platform.console().print(path.empty() ? kEmptyPath : kMissingFile + path);
  return std::nullopt;
}

}  // namespace vantorel
