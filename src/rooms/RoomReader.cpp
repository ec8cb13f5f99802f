#include "rooms/RoomReader.h"

#include "base/Utf8.h"
#include "rooms/JsonReading.h"
#include "rooms/RoomTypes.h"

#include <rapidjson/reader.h>

#include <algorithm>
#include <cstring>

namespace vantorel {
namespace {

/// RapidJSON's stream for parsing in place, with a quicker way over the indentation of pretty texts.
struct RoomStream : rapidjson::InsituStringStream {
  using GenericInsituStringStream::GenericInsituStringStream;
};

}  // namespace
}  // namespace vantorel

/// Lets the parser work on a copy of the stream that fits into registers.
template <>
struct rapidjson::StreamTraits<vantorel::RoomStream> {
  enum { copyOptimization = 1 };
};

namespace vantorel {
namespace {

/// Found by RapidJSON through its argument. The padding of the text makes reading 8 bytes safe.
inline void SkipWhitespace(RoomStream &stream) {
  constexpr std::uint64_t kEightSpaces = 0x2020202020202020;
  static_assert(sizeof kEightSpaces <= CutText::kPadding);
  const char *c = stream.src_;
  if (*c > ' ') return;
  for (std::uint64_t next = 0;; c += sizeof next) {
    while (*c == '\n' || *c == '\r' || *c == '\t') ++c;
    std::memcpy(&next, c, sizeof next);
    if (next != kEightSpaces) break;
  }
  while (*c == ' ' || *c == '\n' || *c == '\r' || *c == '\t') ++c;
  stream.src_ += c - stream.src_;
}

/// RapidJSON's name for what it calls; hands everything to the binder, with its place.
class Events {
 public:
  using Ch = char;

  Events(JsonBinder &binder, RoomStream &stream) : binder_(binder), stream_(stream) {}

  bool Null() { return binder_.null(stream_.Tell() - 4), true; }
  bool Bool(bool value) { return binder_.boolean(stream_.Tell() - (value ? 4 : 5), value), true; }
  bool RawNumber(const Ch *text, rapidjson::SizeType size, bool) {
    return binder_.number(offsetOf(text), {text, size}), true;
  }
  bool String(const Ch *text, rapidjson::SizeType size, bool) {
    return binder_.string(offsetOf(text) - 1, {text, size}), true;
  }
  bool Key(const Ch *text, rapidjson::SizeType size, bool) {
    return binder_.key(offsetOf(text) - 1, {text, size}), true;
  }
  bool StartObject() { return binder_.begin(stream_.Tell() - 1, false), true; }
  bool EndObject(rapidjson::SizeType) { return binder_.end(stream_.Tell() - 1), true; }
  bool StartArray() { return binder_.begin(stream_.Tell() - 1, true), true; }
  bool EndArray(rapidjson::SizeType) { return binder_.end(stream_.Tell() - 1), true; }

  // Never called: numbers come as texts.
  bool Int(int) { return false; }
  bool Uint(unsigned) { return false; }
  bool Int64(std::int64_t) { return false; }
  bool Uint64(std::uint64_t) { return false; }
  bool Double(double) { return false; }

 private:
  std::size_t offsetOf(const Ch *text) const { return static_cast<std::size_t>(text - stream_.head_); }

  JsonBinder &binder_;
  RoomStream &stream_;
};

const char *describe(rapidjson::ParseErrorCode code) {
  switch (code) {
    case rapidjson::kParseErrorObjectMissName:
      return "expected a key in quotes";
    case rapidjson::kParseErrorObjectMissColon:
      return "expected a colon after the key";
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
      return "expected a comma or }";
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
      return "expected a comma or ]";
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
      return "expected four hexadecimal digits after \\u";
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
      return "half of a surrogate pair in a string";
    case rapidjson::kParseErrorStringEscapeInvalid:
      return "unknown escape or control character in a string";
    case rapidjson::kParseErrorStringMissQuotationMark:
      return "a NUL character in a string";
    case rapidjson::kParseErrorNumberTooBig:
      return "a number too large for any float";
    case rapidjson::kParseErrorNumberMissFraction:
      return "expected a digit after the decimal point";
    case rapidjson::kParseErrorNumberMissExponent:
      return "expected a digit in the exponent";
    default:
      return "expected a JSON value";
  }
}

std::string describe(rapidjson::ParseErrorCode code, const JsonSource &source) {
  if (code != rapidjson::kParseErrorDocumentRootNotSingular) return describe(code);
  return "there is more text after the " + source.what + "'s end";
}

RoomReadError errorAt(const JsonSource &source, std::size_t offset, std::string keyPath,
                      const std::string &reason) {
  std::string_view before = source.text.substr(0, offset);
  auto line = source.line + static_cast<std::size_t>(std::ranges::count(before, '\n'));
  std::size_t column = offset - (before.rfind('\n') + 1) + 1;  // npos + 1 is 0
  return {line, column, std::move(keyPath), reason};
}

bool isAscii(std::string_view text) {
  unsigned char all = 0;
  for (char c : text) all |= static_cast<unsigned char>(c);
  return all < 0x80;
}

void requireUtf8(const JsonSource &source) {
  std::string repaired = repairedUtf8(source.text);
  if (repaired == source.text) return;
  auto place = std::ranges::mismatch(source.text, repaired).in1 - source.text.begin();
  throw errorAt(source, static_cast<std::size_t>(place), "", "the text is not UTF-8");
}

static_assert(kLongestRoom < std::size_t{1} << 32U, "RapidJSON counts in 32 bits");

}  // namespace

RoomReadError::RoomReadError(std::size_t atLine, std::size_t atColumn, std::string path,
                             const std::string &reason)
    : std::runtime_error("line " + std::to_string(atLine) + ", column " + std::to_string(atColumn) +
                         (path.empty() ? "" : " (" + path + ")") + ": " + reason),
      line(atLine),
      column(atColumn),
      keyPath(std::move(path)) {}

CutText cutText(const JsonSource &source) {
  if (source.text.size() > kLongestRoom)
    throw RoomReadError(source.line, 1, "", "the text is longer than 1 GiB");
  CutText cut = CutText::withoutCoreModel(source.text);
  if (!isAscii(cut.shortened)) requireUtf8(source);
  return cut;
}

/// RapidJSON recurses; the binder ends that at kDeepest levels, which take little stack. Its iterative way is
/// slower.
void parseJson(const JsonSource &source, CutText text, JsonSlot root) {
  JsonBinder binder(root, text);
  auto fail = [&](std::size_t offset, const std::string &reason) {
    throw errorAt(source, text.wholeOffset(offset), binder.keyPath(), reason);
  };
  RoomStream stream(text.shortened.data());
  Events events(binder, stream);
  rapidjson::Reader reader;
  constexpr unsigned kFlags = rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag;
  try {
    auto result = reader.Parse<kFlags>(stream, events);
    const bool isAtEnd = stream.Tell() >= text.size();
    if (result.IsError() && isAtEnd) fail(text.size(), "the text ends before the " + source.what + " does");
    if (result.IsError()) fail(result.Offset(), describe(result.Code(), source));
    if (!isAtEnd) fail(stream.Tell(), "a NUL character after the " + source.what + "'s end");
  } catch (const JsonMismatch &mismatch) {
    fail(binder.offset(), mismatch.what());
  }
}

void keepCoreModel(RoomReading &room) {
  if (room.writtenCoreModel) room.coreModel = std::make_shared<const std::string>(*room.writtenCoreModel);
}

RoomDocument readRoom(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  auto room = readJson<RoomReading>({.text = text, .what = "room"});
  keepCoreModel(room);
  return room;
}

}  // namespace vantorel
