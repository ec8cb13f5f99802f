#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorel {

// Values of JSON number texts, whatever the locale. Nothing is returned for a value that the type cannot
// hold: too large, or a text that is not zero rounding to zero. The text must match JSON's number grammar.

/// Rounded once, to nearest, ties to even.
std::optional<float> floatOf(std::string_view text);
std::optional<double> doubleOf(std::string_view text);

/// Whole values only, in any notation: 5, 5.0 and 50e-1 are one number.
std::optional<std::int64_t> integerOf(std::string_view text);

}  // namespace vantorel
