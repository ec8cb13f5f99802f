#pragma once

#include <iosfwd>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// What an event carries: a text, or JSON that is written as it stands (numbers, Booleans, arrays, null).
struct EventValue {
  static EventValue text(std::string_view text) { return {std::string(text), false}; }
  static EventValue json(std::string_view json) { return {std::string(json), true}; }
  static EventValue null() { return json("null"); }
  static EventValue boolean(bool value) { return json(value ? "true" : "false"); }

  std::string content;
  bool isJson;
};

/// Something that came back from the library or the host.
struct Event {
  double seconds;           ///< of the device's clock
  std::string_view thread;  ///< the device's name for it
  std::string_view kind;    ///< callback, console, return, state, file, present or error
  std::optional<std::string_view> name;
  EventValue value;
};

/// Takes events from every thread of the device.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual void print(const Event &event) = 0;
  /// False once what it writes to takes no more.
  virtual bool isGood() const { return true; }
};

/// Writes one line an event and flushes it.
class LinePrinter : public Printer {
 public:
  explicit LinePrinter(std::ostream &out) : out_(out) {}
  void print(const Event &event) final;
  bool isGood() const final;

 private:
  virtual std::string line(const Event &event) const = 0;

  mutable std::mutex mutex_;
  std::ostream &out_;
};

/// {"time":…,"thread":…,"event":…,"name":…,"value":…}
class JsonPrinter final : public LinePrinter {
 public:
  using LinePrinter::LinePrinter;

 private:
  std::string line(const Event &event) const override;
};

/// Aligned columns for people: long values shortened, a room as its counts.
class ReadablePrinter final : public LinePrinter {
 public:
  using LinePrinter::LinePrinter;

 private:
  std::string line(const Event &event) const override;
};

/// The text as a JSON string with its quotes; ill-formed UTF-8 is repaired.
std::string jsonString(std::string_view text);

/// Seconds in the fewest digits: 0, 0.1, 1.5; nothing below a nanosecond.
std::string secondsText(double seconds);

}  // namespace vantorel
