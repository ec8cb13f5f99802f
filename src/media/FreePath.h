#pragma once

#include "platform/FileManager.h"

#include <string>
#include <string_view>

namespace vantorel {

/// The first of FOLDER/NAME-1.EXTENSION, FOLDER/NAME-2.EXTENSION, ... that is not there yet.
std::string freePath(FileManager &files, const std::string &folder, std::string_view name,
                     std::string_view extension);

}  // namespace vantorel
