#include "Arguments.h"

#include "Files.h"
#include "Printer.h"

#include <charconv>
#include <cstdlib>

namespace vantorel {
namespace {

template <typename Integer>
Integer integerArgument(const std::string &word, const std::string &expected) {
  Integer value{};
  const char *end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, value);
  if (error != std::errc() || stop != end)
    throw ArgumentError("expected " + expected + ", got " + quotedWord(word));
  return value;
}

std::string rangeText(std::size_t least, std::size_t most) {
  if (most == 0) return "no argument";
  const std::string range = std::to_string(most) + (most == 1 ? " argument" : " arguments");
  return least == most ? range : std::to_string(least) + " to " + range;
}

std::string rangeText(NumberRange range) {
  if (range.least == kAnyNumber.least) return "";
  const bool hasMost = range.most < kAnyNumber.most;
  return " from " + secondsText(range.least) + (hasMost ? " to " + secondsText(range.most) : "");
}

}  // namespace

void expectArguments(const Words &words, std::size_t least, std::size_t most) {
  const std::size_t count = words.size() - 1;
  if (count < least || count > most)
    throw ArgumentError("expected " + rangeText(least, most) + ", got " + std::to_string(count));
}

vantorelBool booleanArgument(const std::string &word) {
  if (word == "true") return 1;
  if (word == "false") return 0;
  return integerArgument<vantorelBool>(word, "true, false or 0 to 255");
}

std::string textArgument(const std::string &word) {
  if (word == "@") throw ArgumentError("expected the name of a file after @");
  return word.starts_with('@') ? readFile(word.substr(1)) : word;
}

double numberArgument(const std::string &word, NumberRange range) {
  const bool isDecimal = !word.empty() && word.find_first_not_of("+-.0123456789eE") == std::string::npos;
  char *end = nullptr;
  const double value = isDecimal ? std::strtod(word.c_str(), &end) : 0;
  if (end != word.c_str() + word.size() || value < range.least || value > range.most)
    throw ArgumentError("expected a number" + rangeText(range) + ", got " + quotedWord(word));
  return value;
}

std::uint32_t countArgument(const std::string &word) {
  return integerArgument<std::uint32_t>(word, "a count");
}

}  // namespace vantorel
