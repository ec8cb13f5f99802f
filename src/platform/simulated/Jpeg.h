#pragma once

#include "platform/simulated/Canvas.h"

#include <string>

namespace vantorel {

/// Throws PlatformError.
std::string jpegOf(const Picture &picture);

}  // namespace vantorel
