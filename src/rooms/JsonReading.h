// Reads a JSON text with at most one room in it, and quickly past that room's coreModel.
#pragma once

#include "rooms/JsonBinding.h"
#include "rooms/RoomReader.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace vantorel {

/// A text and what messages call it.
struct JsonSource {
  std::string_view text;
  std::string what;      ///< "room"
  std::size_t line = 1;  ///< the number of its first line
};

/// The text to parse. Throws RoomReadError when it is not UTF-8 or too long.
CutText cutText(const JsonSource &source);

/// Fills the root's values from the source's text after cutText. Throws RoomReadError.
void parseJson(const JsonSource &source, CutText text, JsonSlot root);

/// Fills a new Reading, for which there are slotOf and writtenCoreModelOf. Throws RoomReadError.
template <typename Reading>
Reading readJson(const JsonSource &source) {
  const auto read = [&source](CutText text) {
    Reading reading;
    parseJson(source, std::move(text), slotOf(reading));
    return reading;
  };
  CutText cut = cutText(source);
  const char *cutFrom = cut.at == CutText::kNothing ? nullptr : source.text.data() + cut.at;
  Reading reading = read(std::move(cut));
  const auto written = writtenCoreModelOf(reading);
  // What was cut was no coreModel of the room but some other string: read it where it stands.
  if (cutFrom && (!written || written->data() != cutFrom)) return read(CutText::uncut(source.text));
  return reading;
}

}  // namespace vantorel
