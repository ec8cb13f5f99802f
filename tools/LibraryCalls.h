#pragma once

#include "ScriptParser.h"

namespace vantorel {

/// Calls the exported function that the first word names and prints its result, if it has one; false if there
/// is no such function. A callback setter registers a callback that prints. Throws ScriptError for wrong
/// arguments, before anything is called.
bool callLibrary(const Words &words);

/// All ten callbacks print.
void registerCallbacks();

}  // namespace vantorel
