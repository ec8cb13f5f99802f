#pragma once

#include "Printer.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace vantorel {

/// A text as a template argument.
template <std::size_t size>
struct LiteralText {
  char characters[size];
  constexpr LiteralText(const char (&text)[size]) { std::copy_n(text, size, characters); }
};

/// While it lives, what the library calls back, prints and shows goes to a printer, from every thread. The
/// library's callbacks carry no context, so only one can live at a time.
class Listening {
 public:
  explicit Listening(Printer &printer);
  /// Ends with a power cycle: what the device still had to do is dropped, and nothing of it is heard.
  ~Listening();
  Listening(const Listening &) = delete;
  Listening &operator=(const Listening &) = delete;

  /// Prints an event at the device's present time, from the thread that calls.
  static void hear(std::string_view kind, std::optional<std::string_view> name, const EventValue &value);

  /// The function for one slot of the library, with or without a text.
  template <LiteralText slot>
  static void callback() {
    hear("callback", slot.characters, EventValue::null());
  }
  template <LiteralText slot>
  static void callback(const char *text) {
    hearText(slot.characters, text);
  }

 private:
  /// Frees the text.
  static void hearText(std::string_view slot, const char *text);
};

}  // namespace vantorel
