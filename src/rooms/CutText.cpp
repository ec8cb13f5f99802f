#include "rooms/CutText.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr std::string_view kKey = "\"coreModel\"";

std::size_t skipBlanks(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(" \t\r\n", at), text.size());
}

/// Whether a string's characters, with the quote after them at chars[size], are printable ASCII without an
/// escape but "\/". One pass without branches, which compilers turn into vector code.
bool isPlain(const char *chars, std::size_t size) {
  unsigned char bad = 0;
  for (std::size_t i = 0; i < size; ++i) {
    auto c = static_cast<unsigned char>(chars[i]);
    bad |= static_cast<unsigned char>((c < 0x20) | (c > 0x7e) | ((c == '\\') & (chars[i + 1] != '/')));
  }
  return bad == 0;
}

/// The characters of a plain string after the key that ends at `at`; no data where there is none.
std::string_view plainStringAfter(std::string_view text, std::size_t at) {
  at = skipBlanks(text, at);
  if (at == text.size() || text[at] != ':') return {};
  at = skipBlanks(text, at + 1);
  if (at == text.size() || text[at] != '"') return {};
  std::size_t end = text.find('"', ++at);
  if (end == std::string_view::npos || !isPlain(text.data() + at, end - at)) return {};
  return text.substr(at, end - at);
}

/// Where the key stands next, by its rarest character: other quotes and letters are everywhere.
std::size_t findKey(std::string_view text, std::size_t from) {
  constexpr std::size_t kRare = kKey.find('M');
  for (std::size_t m = text.find('M', from + kRare); m != text.npos; m = text.find('M', m + 1))
    if (text.substr(m - kRare, kKey.size()) == kKey) return m - kRare;
  return text.npos;
}

}  // namespace

CutText CutText::withoutCoreModel(std::string_view text) {
  for (std::size_t key = findKey(text, 0); key != text.npos; key = findKey(text, key + kKey.size())) {
    std::string_view chars = plainStringAfter(text, key + kKey.size());
    if (!chars.data()) continue;
    return cutting(text, static_cast<std::size_t>(chars.data() - text.data()), chars.size());
  }
  return uncut(text);
}

CutText CutText::uncut(std::string_view text) {
  CutText all = cutting(text, text.size(), 0);
  all.at = kNothing;
  return all;
}

CutText CutText::cutting(std::string_view text, std::size_t at, std::size_t length) {
  CutText cut{text, {}, at, length};
  cut.shortened.reserve(text.size() - length + kPadding);
  cut.shortened.append(text, 0, at).append(text, at + length).append(kPadding, '\0');
  return cut;
}

std::string_view CutText::written(std::size_t begin, std::size_t end) const {
  begin = wholeOffset(begin);
  return whole.substr(begin, (end >= at ? end + length : end) - begin);
}

std::string_view CutText::writtenString(std::size_t begin) const {
  begin = wholeOffset(begin);
  if (begin == at) return whole.substr(at, length);
  std::size_t end = begin;
  while (whole[end] != '"') end += whole[end] == '\\' ? 2 : 1;
  return whole.substr(begin, end - begin);
}

}  // namespace vantorel
