#include "media/FreePath.h"

namespace vantorel {

std::string freePath(FileManager &files, const std::string &folder, std::string_view name,
                     std::string_view extension) {
  const std::string beginning = folder + '/' + std::string(name) + '-', end = '.' + std::string(extension);
  int number = 1;
  while (files.fileExists(beginning + std::to_string(number) + end)) ++number;
  return beginning + std::to_string(number) + end;
}

}  // namespace vantorel
