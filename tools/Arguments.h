// How the words of a command become values. All of these throw ScriptError with what was expected.
#pragma once

#include "vantorel/vantorel.h"

#include "ScriptParser.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace vantorel {

/// Refuses a command whose first word is its name and whose number of further words is not in the range.
void expectArguments(const Words &words, std::size_t least, std::size_t most);

/// true, false or 0 to 255, passed on as that byte.
vantorelBool booleanArgument(const std::string &word);

/// The word itself, or for @FILE that file's text.
std::string textArgument(const std::string &word);

/// A finite decimal number, at least `least`.
double numberArgument(const std::string &word, double least);

/// 0 to 4294967295.
std::uint32_t countArgument(const std::string &word);

}  // namespace vantorel
