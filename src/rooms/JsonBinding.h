// Fills C++ values from the events of a JSON parser. What goes where is said by types: constant tables of
// functions, one table for each C++ type that has a JSON form.
#pragma once

#include "rooms/CutText.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

struct JsonType;

/// Where a JSON value goes.
struct JsonSlot {
  const JsonType *type;
  void *target;
};

/// A container that is being read.
struct JsonFrame {
  JsonSlot slot;
  std::size_t begin;  ///< offset of its bracket
  bool isArray;
  std::size_t index = 0;   ///< of the element or member being read
  std::uint64_t seen = 0;  ///< of a table's keys, a bit each
  std::string_view key{};  ///< of the member being read
};

/// A value that does not fit its slot.
struct JsonMismatch : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What a slot does with a value. A form of JSON without a function here is a mismatch. All may throw
/// JsonMismatch.
struct JsonType {
  const char *name;                            ///< "a number", as messages say it
  JsonSlot (*inside)(void *target) = nullptr;  ///< for optionals: makes room for a value that is not null
  void (*null)(void *target) = nullptr;
  void (*boolean)(void *target, bool) = nullptr;
  void (*number)(void *target, std::string_view text) = nullptr;
  void (*string)(void *target, std::string_view text) = nullptr;         ///< unescaped
  void (*writtenString)(void *target, std::string_view text) = nullptr;  ///< instead: as it was written
  JsonSlot (*element)(JsonFrame &array) = nullptr;                       ///< the slot of element `index`
  JsonSlot (*member)(JsonFrame &object) = nullptr;                       ///< the slot of member `key`
  void (*end)(JsonFrame &container, std::string_view written) = nullptr;
};

/// Receives a parser's events; offsets are places in the shortened text.
class JsonBinder {
 public:
  /// Foundation's limit.
  static constexpr std::size_t kDeepest = 512;

  JsonBinder(JsonSlot root, const CutText &text) : text_(text), next_(root) { frames_.reserve(16); }

  void null(std::size_t offset);
  void boolean(std::size_t offset, bool value);
  void number(std::size_t offset, std::string_view value);
  void string(std::size_t offset, std::string_view value);
  void key(std::size_t offset, std::string_view value);
  void begin(std::size_t offset, bool isArray);
  void end(std::size_t offset);

  /// The value that was read last: where it starts and the keys that lead to it, of which long paths lack the middle.
  std::size_t offset() const { return offset_; }
  std::string keyPath() const;

 private:
  /// The slot of the value at `offset`, which is not null.
  JsonSlot slot(std::size_t offset);
  JsonSlot slotOrOptional(std::size_t offset);
  void done();

  const CutText &text_;
  JsonSlot next_;  ///< of the root, or of the member whose key was read
  std::vector<JsonFrame> frames_;
  std::size_t offset_ = 0;
};

}  // namespace vantorel
