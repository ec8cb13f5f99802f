#include "platform/simulated/SimulatedFiles.h"

#include "base/Utf8Path.h"

#include <filesystem>
#include <system_error>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// Without links, ".." and a slash at the end. The folder need not exist.
fs::path resolved(const std::string &text) {
  std::error_code error;
  const fs::path absolute = fs::absolute(pathOf(text), error);
  const fs::path path = error ? absolute : fs::weakly_canonical(absolute, error);
  if (error) throw fileError("find", text, error);
  return path.has_filename() ? path : path.parent_path();
}

}  // namespace

std::string SimulatedFiles::documentsDirectory() {
  faults_.check("documentsDirectory");
  if (auto chosen = documents_.load(); !chosen.empty()) return chosen;
  std::error_code error;
  const fs::path here = fs::current_path(error);
  if (error) throw PlatformError("no working directory: " + error.message());
  return textOf(here);
}

std::string SimulatedFiles::temporaryDirectory() {
  std::error_code error;
  const fs::path folder = fs::temp_directory_path(error);
  if (error) throw PlatformError("no folder for temporary files: " + error.message());
  return textOf(folder.has_filename() ? folder : folder.parent_path());
}

bool SimulatedFiles::fileExists(const std::string &path) { return store_.load()->exists(path); }

void SimulatedFiles::createDirectory(const std::string &path) {
  faults_.check("createDirectory");
  store_.load()->createDirectories(path);
}

std::string SimulatedFiles::readFile(const std::string &path) {
  faults_.check("readFile");
  return store_.load()->read(path);
}

void SimulatedFiles::removeItem(const std::string &path) {
  faults_.check("removeFile");
  store_.load()->remove(path);
}

void SimulatedFiles::writeFile(const std::string &path, std::string_view bytes) {
  faults_.check("writeFile");
  store_.load()->write(path, bytes);
}

void SimulatedFiles::setDocumentsDirectory(const std::string &path) {
  if (path.empty()) throw PlatformError("the documents directory needs a path");
  const std::string folder = textOf(resolved(path));
  store_.load()->createDirectories(folder);
  documents_.store(folder);
}

}  // namespace vantorel
