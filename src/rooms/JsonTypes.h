// The JSON forms of plain C++ types, and of structures by tables of their keys.
#pragma once

#include "base/Geometry.h"
#include "base/Uuid.h"
#include "rooms/JsonBinding.h"
#include "rooms/NumberText.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vantorel::json {

// ---- Values ----

template <typename T>
T &at(void *target) {
  return *static_cast<T *>(target);
}

template <typename T>
T inRange(std::optional<T> value, std::string_view text, const char *problem) {
  if (!value) throw JsonMismatch(std::string(text.substr(0, 40)) + problem);
  return *value;
}

inline void setFloat(void *target, std::string_view text) {
  at<float>(target) = inRange(floatOf(text), text, " does not fit a 32-bit float");
}

inline void setDouble(void *target, std::string_view text) {
  at<double>(target) = inRange(doubleOf(text), text, " does not fit a 64-bit float");
}

inline void setInteger(void *target, std::string_view text) {
  at<std::int64_t>(target) = inRange(integerOf(text), text, " is not a whole number of 64 bits");
}

inline void setUuid(void *target, std::string_view text) {
  auto uuid = Uuid::parse(text);
  if (!uuid) throw JsonMismatch("expected a UUID such as 6B1F0E52-93C4-4D0A-8F7E-2A5C9D3E1B40");
  at<Uuid>(target) = *uuid;
}

/// A text to be kept. Escapes may have hidden half of a surrogate pair, which begins with ED A0 to ED BF and
/// which UTF-8 forbids.
inline std::string_view wellFormed(std::string_view text) {
  for (auto i = text.find('\xED'); i != text.npos; i = text.find('\xED', i + 1))
    if (static_cast<unsigned char>(text[i + 1]) >= 0xA0)
      throw JsonMismatch("half of a surrogate pair in a string");
  return text;
}

inline void setString(void *target, std::string_view text) { at<std::string>(target) = wellFormed(text); }
inline void setBool(void *target, bool value) { at<bool>(target) = value; }
inline void setWritten(void *target, std::string_view text) { at<std::string_view>(target) = text; }

/// The JSON type of a C++ type.
template <typename T>
constexpr JsonType typeOf = [] {
  static_assert(sizeof(T) == 0, "this type has no JSON form yet");
  return JsonType{};
}();
template <>
inline constexpr JsonType typeOf<float>{.name = "a number", .number = setFloat};
template <>
inline constexpr JsonType typeOf<double>{.name = "a number", .number = setDouble};
template <>
inline constexpr JsonType typeOf<std::int64_t>{.name = "a whole number", .number = setInteger};
template <>
inline constexpr JsonType typeOf<bool>{.name = "true or false", .boolean = setBool};
template <>
inline constexpr JsonType typeOf<std::string>{.name = "a string", .string = setString};
template <>
inline constexpr JsonType typeOf<std::string_view>{.name = "a string", .writtenString = setWritten};
template <>
inline constexpr JsonType typeOf<Uuid>{.name = "a UUID", .string = setUuid};

/// Takes anything and keeps nothing.
inline constexpr JsonType kIgnored{.name = "anything",
                                   .null = [](void *) {},
                                   .boolean = [](void *, bool) {},
                                   .number = [](void *, std::string_view) {},
                                   .string = [](void *, std::string_view) {},
                                   .element = [](JsonFrame &array) { return array.slot; },
                                   .member =
                                       [](JsonFrame &) {
                                         return JsonSlot{&kIgnored, nullptr};
                                       }};

// ---- Optional values: null leaves them empty; the outer of two remembers that there was a null ----

template <typename T>
constexpr JsonType typeOf<std::optional<T>>{
    .name = typeOf<T>.name,
    .inside =
        [](void *target) {
          return JsonSlot{&typeOf<T>, &at<std::optional<T>>(target).emplace()};
        },
    .null = [](void *target) { at<std::optional<T>>(target).reset(); }};

template <typename T>
constexpr JsonType typeOf<std::optional<std::optional<T>>>{
    .name = typeOf<T>.name,
    .inside =
        [](void *target) {
          return JsonSlot{&typeOf<T>, &at<std::optional<std::optional<T>>>(target).emplace().emplace()};
        },
    .null = [](void *target) { at<std::optional<std::optional<T>>>(target).emplace(); }};

// ---- Arrays ----

template <typename T>
constexpr JsonType typeOf<std::vector<T>>{
    .name = "an array", .element = [](JsonFrame &array) {
      return JsonSlot{&typeOf<T>, &at<std::vector<T>>(array.slot.target).emplace_back()};
    }};

inline float *component(Float3 &vector, std::size_t i) {
  return i == 0 ? &vector.x : i == 1 ? &vector.y : &vector.z;
}
inline float *component(Float4x4 &matrix, std::size_t i) { return &matrix.elements[i]; }
inline float *component(std::array<float, 2> &point, std::size_t i) { return &point[i]; }

/// An array of exactly so many floats.
template <typename T, std::size_t kCount>
constexpr JsonType numbers(const char *name) {
  return {.name = name,
          .element =
              [](JsonFrame &array) {
                if (array.index == kCount)
                  throw JsonMismatch("expected " + std::to_string(kCount) + " numbers, got more");
                return JsonSlot{&typeOf<float>, component(at<T>(array.slot.target), array.index)};
              },
          .end =
              [](JsonFrame &array, std::string_view) {
                if (array.index < kCount)
                  throw JsonMismatch("expected " + std::to_string(kCount) + " numbers, got " +
                                     std::to_string(array.index));
              }};
}
template <>
inline constexpr JsonType typeOf<Float3> = numbers<Float3, 3>("3 numbers");
template <>
inline constexpr JsonType typeOf<Float4x4> = numbers<Float4x4, 16>("16 numbers");
template <>
inline constexpr JsonType typeOf<std::array<float, 2>> = numbers<std::array<float, 2>, 2>("2 numbers");

// ---- Objects with known keys: others are ignored, the first of equal keys counts ----

struct Field {
  std::string_view key;
  const JsonType *type;
  void *(*of)(void *object);
  bool required;
};

template <typename T>
constexpr bool kIsOptional = false;
template <typename T>
constexpr bool kIsOptional<std::optional<T>> = true;

template <typename Object, auto kMember>
constexpr Field field(std::string_view key) {
  using Value = std::remove_reference_t<decltype(std::declval<Object &>().*kMember)>;
  return {key, &typeOf<Value>, [](void *object) -> void * { return &(at<Object>(object).*kMember); },
          !kIsOptional<Value>};
}

template <const auto &kFields>
JsonSlot memberOf(JsonFrame &object) {
  for (std::size_t i = 0; i < std::size(kFields); ++i) {
    if (kFields[i].key != object.key) continue;
    bool again = object.seen >> i & 1;
    object.seen |= std::uint64_t{1} << i;
    if (again) break;
    return {kFields[i].type, kFields[i].of(object.slot.target)};
  }
  return {&kIgnored, nullptr};
}

template <const auto &kFields>
void requireFields(JsonFrame &object, std::string_view) {
  for (std::size_t i = 0; i < std::size(kFields); ++i)
    if (kFields[i].required && !(object.seen >> i & 1))
      throw JsonMismatch("the key \"" + std::string(kFields[i].key) + "\" is missing");
}

template <const auto &kFields>
constexpr JsonType objectOf(const char *name) {
  return {.name = name, .member = memberOf<kFields>, .end = requireFields<kFields>};
}

}  // namespace vantorel::json
