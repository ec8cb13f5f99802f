#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantorel {

/// Thrown for a value that has no JSON form (NaN, infinity, more than 511 nested containers). The text
/// written so far is to be thrown away.
struct JsonEncodingError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

enum class JsonStyle { pretty, compact };

/// Appends JSON to a string exactly as Foundation's JSONEncoder lays it out: two spaces a level, " : "
/// between key and value, one element a line, "[", an empty line and "]" for an empty array, "/" escaped,
/// floats by FloatText. Knows no schema: the caller opens and closes containers, writes keys in the order it
/// wants, and keeps them unique. The string is complete once the outermost value is.
class JsonWriter {
 public:
  explicit JsonWriter(std::string &out, JsonStyle style = JsonStyle::pretty);
  JsonWriter(const JsonWriter &) = delete;

  void beginObject();
  void endObject();
  void beginArray();
  void endArray();

  /// Keys and strings must be well-formed UTF-8.
  void key(std::string_view text);
  void string(std::string_view text);
  /// A string that is already escaped, without its quotes; copied as it is.
  void escapedString(std::string_view text);
  /// A whole value that is already JSON; copied as it is.
  void rawValue(std::string_view json);
  void number(float value);
  void number(double value);
  void number(std::int64_t value);
  void boolean(bool value);
  void null();

 private:
  char *room(std::size_t size);
  void flush();
  char *startValue(std::size_t size);
  void endValue(char *end);
  void begin(char bracket);
  void end(char bracket);
  char *breakLine(char *at) const;
  void put(char c);
  void append(std::string_view text);
  void quote(std::string_view text);
  template <typename Float>
  void writeFloat(Float value, const char *typeName);

  std::string &out_;
  const bool isPretty_;
  bool isFirst_ = true;  // nothing in the current container yet
  bool isAfterKey_ = false;
  std::size_t depth_ = 0;          // open containers
  std::array<char, 8192> buffer_;  // collects the small pieces; what is left of it starts at at_
  char *at_ = buffer_.data();
};

}  // namespace vantorel
