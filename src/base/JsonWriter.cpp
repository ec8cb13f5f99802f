#include "base/JsonWriter.h"

#include "base/FloatText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace vantorel {
namespace {

constexpr std::size_t kMaxDepth = 511;

/// What follows the backslash: 0 for a character that stands for itself, 'u' for four hexadecimal digits.
constexpr auto kEscapes = [] {
  std::array<char, 256> escapes{};
  for (std::size_t i = 0; i < 0x20; ++i) escapes[i] = 'u';
  escapes['\b'] = 'b';
  escapes['\t'] = 't';
  escapes['\n'] = 'n';
  escapes['\f'] = 'f';
  escapes['\r'] = 'r';
  escapes['"'] = '"';
  escapes['\\'] = '\\';
  escapes['/'] = '/';
  return escapes;
}();

char escapeOf(char c) { return kEscapes[static_cast<unsigned char>(c)]; }

char *writeEscape(char *at, char c) {
  *at++ = '\\';
  *at++ = escapeOf(c);
  if (escapeOf(c) != 'u') return at;
  for (char digit : {'0', '0', c < 0x10 ? '0' : '1', "0123456789abcdef"[c & 15]}) *at++ = digit;
  return at;
}

constexpr std::size_t kEscapeMax = 6;

char *writeEscaped(char *at, std::string_view text) {
  for (char c : text) {
    if (escapeOf(c)) {
      at = writeEscape(at, c);
    } else {
      *at++ = c;
    }
  }
  return at;
}

constexpr std::string_view kBlanks = "                                ";
constexpr std::size_t kSeparatorMax = 2 + 2 * kMaxDepth + kBlanks.size();  // ",", line break, blanks

}  // namespace

JsonWriter::JsonWriter(std::string &out, JsonStyle style)
    : out_(out), isPretty_(style == JsonStyle::pretty) {}

void JsonWriter::beginObject() { begin('{'); }
void JsonWriter::endObject() { end('}'); }
void JsonWriter::beginArray() { begin('['); }
void JsonWriter::endArray() { end(']'); }

void JsonWriter::key(std::string_view text) {
  at_ = startValue(0);
  quote(text);
  if (isPretty_) put(' ');
  put(':');
  if (isPretty_) put(' ');
  isAfterKey_ = true;
}

void JsonWriter::string(std::string_view text) {
  at_ = startValue(0);
  quote(text);
  endValue(at_);
}

void JsonWriter::escapedString(std::string_view text) {
  at_ = startValue(0);
  put('"');
  append(text);
  put('"');
  endValue(at_);
}

void JsonWriter::rawValue(std::string_view json) {
  at_ = startValue(0);
  append(json);
  endValue(at_);
}

void JsonWriter::number(float value) { writeFloat(value, "Float"); }
void JsonWriter::number(double value) { writeFloat(value, "Double"); }

void JsonWriter::number(std::int64_t value) {
  constexpr std::size_t kMax = 20;
  char *at = startValue(kMax);
  endValue(std::to_chars(at, at + kMax, value).ptr);
}

void JsonWriter::boolean(bool value) { rawValue(value ? "true" : "false"); }
void JsonWriter::null() { rawValue("null"); }

/// At least `size` free bytes of the buffer.
char *JsonWriter::room(std::size_t size) {
  if (static_cast<std::size_t>(buffer_.data() + buffer_.size() - at_) < size) flush();
  return at_;
}

void JsonWriter::flush() {
  out_.append(buffer_.data(), at_);
  at_ = buffer_.data();
}

/// Writes what stands between the text so far and the next value or key. The result, where that goes, has
/// room for `size` bytes.
char *JsonWriter::startValue(std::size_t size) {
  char *at = room(kSeparatorMax + size);
  if (isAfterKey_) {
    isAfterKey_ = false;
    return at;
  }
  if (!isFirst_) *at++ = ',';
  isFirst_ = false;
  return isPretty_ && depth_ > 0 ? breakLine(at) : at;
}

void JsonWriter::endValue(char *end) {
  at_ = end;
  if (depth_ == 0) flush();
}

void JsonWriter::begin(char bracket) {
  // The text is Foundation's.
  if (depth_ == kMaxDepth) throw JsonEncodingError("Unable to encode the given top-level value to JSON.");
  char *at = startValue(1);
  *at++ = bracket;
  at_ = at;
  ++depth_;
  isFirst_ = true;
}

void JsonWriter::end(char bracket) {
  char *at = room(kSeparatorMax);
  --depth_;
  if (isPretty_ && isFirst_) *at++ = '\n';
  if (isPretty_) at = breakLine(at);
  *at++ = bracket;
  isFirst_ = false;
  endValue(at);
}

/// Copies whole blocks, which is faster than an exact number of blanks.
char *JsonWriter::breakLine(char *at) const {
  *at++ = '\n';
  for (std::size_t i = 0; i < 2 * depth_; i += kBlanks.size())
    std::memcpy(at + i, kBlanks.data(), kBlanks.size());
  return at + 2 * depth_;
}

void JsonWriter::put(char c) {
  *room(1) = c;
  ++at_;
}

void JsonWriter::append(std::string_view text) {
  if (text.size() > buffer_.size()) {
    flush();
    out_ += text;
  } else {
    at_ = std::copy(text.begin(), text.end(), room(text.size()));
  }
}

void JsonWriter::quote(std::string_view text) {
  constexpr std::size_t kPiece = 1024;
  put('"');
  for (std::string_view rest = text; !rest.empty(); rest.remove_prefix(std::min(kPiece, rest.size())))
    at_ = writeEscaped(room(kEscapeMax * kPiece), rest.substr(0, kPiece));
  put('"');
}

template <typename Float>
void JsonWriter::writeFloat(Float value, const char *typeName) {
  if (std::isfinite(value)) return endValue(writeFloatJson(startValue(kFloatTextMax), value));
  std::string name(kFloatTextMax, '\0');
  name.resize(static_cast<std::size_t>(writeFloatDescription(name.data(), value) - name.data()));
  throw JsonEncodingError("Unable to encode " + std::string(typeName) + "." + name + " directly in JSON.");
}

}  // namespace vantorel
