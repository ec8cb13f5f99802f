// How the words of a command become values. All of these throw ArgumentError with what was expected.
#pragma once

#include "vantorel/vantorel.h"

#include "ScriptParser.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

namespace vantorel {

/// A word that is not what its command takes. The message does not name the command; the caller knows it.
struct ArgumentError : ScriptError {
  using ScriptError::ScriptError;
};

/// Numbers from `least` to `most`.
struct NumberRange {
  double least, most;
};

constexpr NumberRange kAnyNumber{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
constexpr NumberRange kFromZero{0, kAnyNumber.most};

/// Refuses a command whose first word is its name and whose number of further words is not in the range.
void expectArguments(const Words &words, std::size_t least, std::size_t most);

/// true, false or 0 to 255, passed on as that byte.
vantorelBool booleanArgument(const std::string &word);

/// The word itself, or for @FILE that file's text; std::runtime_error if that cannot be read.
std::string textArgument(const std::string &word);

/// A decimal number in the range.
double numberArgument(const std::string &word, NumberRange range);

/// 0 to 4294967295.
std::uint32_t countArgument(const std::string &word);

}  // namespace vantorel
