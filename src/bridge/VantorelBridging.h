// Texts and flags across the C border.
#pragma once

#include "vantorel/vantorel.h"

#include "base/Utf8.h"

#include <string>

namespace vantorel {

/// The host's text, copied and repaired; the pointer is not kept.
inline std::string textFromHost(const char *text) { return repairedUtf8(text); }

/// Only bit 0 of a host's Boolean counts.
inline bool flagFromHost(vantorelBool value) { return (value & 1) != 0; }

inline vantorelBool flagForHost(bool value) { return value ? 1 : 0; }

}  // namespace vantorel
