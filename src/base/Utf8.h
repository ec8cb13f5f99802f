#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// The text with every maximal ill-formed subsequence replaced by U+FFFD (Unicode 15, section 3.9, "U+FFFD
/// Substitution of Maximal Subparts"). Well-formed text comes back unchanged.
std::string repairedUtf8(std::string_view text);

}  // namespace vantorel
