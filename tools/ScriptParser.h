#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// Why a line of a script cannot be carried out. The message names no line; the caller knows it.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// One command and its arguments.
using Words = std::vector<std::string>;

/// Splits a line as a shell does: at blanks, with single and double quotes, \" and \\ inside double quotes,
/// and a comment from a # where a word could start. Nothing is expanded. Throws ScriptError for an open
/// quote.
Words splitWords(std::string_view line);

/// The word in a form that splitWords reads back.
std::string quotedWord(std::string_view word);

/// The words as one line of a script.
std::string scriptLine(const Words &words);

}  // namespace vantorel
