#pragma once

#include <string>

namespace vantorel {

/// Prints one value of the controller or the device as a state event. Throws ScriptError for an unknown name.
void hearProperty(const std::string &name);

/// Prints the controller's properties in their order.
void hearProperties();

}  // namespace vantorel
