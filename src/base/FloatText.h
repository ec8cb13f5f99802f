// Decimal text of floats, in the one place that knows how. The digits are the shortest that read back to the
// same value of that width; no locale, no floating-point std::to_chars (which iOS 16.0 lacks).
#pragma once

#include <cstddef>

namespace vantorel {

/// Room enough for any value in either style.
inline constexpr std::size_t kFloatTextMax = 40;

/// Swift's description, as in "[1.0, -0.0, 1e-05, nan]": always with a fraction or an exponent. Writes at
/// `out` without a NUL and returns the end.
char *writeFloatDescription(char *out, float value);
char *writeFloatDescription(char *out, double value);

/// Foundation's JSON number: the description without a trailing ".0". The value must be finite.
char *writeFloatJson(char *out, float value);
char *writeFloatJson(char *out, double value);

}  // namespace vantorel
