// Any text either is refused or becomes a recording whose text reads back as the same recording.
#include "../support/RecordingText.h"
#include "platform/simulated/Recording.h"
#include "platform/simulated/RecordingWriter.h"
#include "rooms/RoomReader.h"

#include <cstdlib>
#include <optional>

namespace {

using namespace vantorel;

using testing::Runs;
using testing::written;

std::optional<Runs> readIfPossible(std::string_view text) {
  try {
    return readRecording(text);
  } catch (const RoomReadError &error) {
    if (error.line == 0 || error.column == 0) std::abort();
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  // A plus stands for the header, which takes long to find.
  std::string text(reinterpret_cast<const char *>(data), size);
  if (text.starts_with('+')) text.replace(0, 1, std::string(kRecordingHeader) + "\n");
  const auto runs = readIfPossible(text);
  if (!runs) return 0;
  const std::string again = written(*runs);
  if (written(readRecording(again)) != again) std::abort();
  return 0;
}
