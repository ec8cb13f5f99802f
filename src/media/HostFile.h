#pragma once

#include "platform/Platform.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// The path in a host's text: the text itself, or of a file URL ("file:///a%20b") what it locates. A % without
/// two hexadecimal digits stays as it is, so that a prefix put before a plain path is understood too.
std::string pathIn(std::string_view text);

/// The path in the text if something is there. Otherwise prints one line, and there is none.
std::optional<std::string> existingFile(Platform &platform, std::string_view text);

}  // namespace vantorel
