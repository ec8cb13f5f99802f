#include "base/JsonWriter.h"
#include "support/TestData.h"

#include <gtest/gtest.h>
#include <rapidjson/reader.h>

#include <cstdlib>
#include <functional>
#include <limits>

namespace vantorel {
namespace {

std::string written(const std::function<void(JsonWriter &)> &write, JsonStyle style = JsonStyle::pretty) {
  std::string text;
  JsonWriter writer(text, style);
  write(writer);
  return text;
}

/// Passes the events of a parsed text on to a writer. In a "float" document the numbers were 32-bit floats.
struct Rewriter : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Rewriter> {
  JsonWriter &writer;
  const bool areFloats, areDoubles;

  Rewriter(JsonWriter &target, const std::string &documentName)
      : writer(target),
        areFloats(documentName.starts_with("float")),
        areDoubles(documentName.starts_with("double")) {}

  bool RawNumber(const char *begin, rapidjson::SizeType size, bool) {
    const std::string text(begin, size);
    const std::int64_t integer = std::strtoll(begin, nullptr, 10);
    if (areFloats) {
      writer.number(std::strtof(text.c_str(), nullptr));
    } else if (areDoubles) {
      writer.number(std::strtod(text.c_str(), nullptr));
    } else if (std::to_string(integer) == text) {
      writer.number(integer);
    } else {
      writer.rawValue(text);  // above the signed range
    }
    return true;
  }
  bool Null() { return writer.null(), true; }
  bool Bool(bool value) { return writer.boolean(value), true; }
  bool String(const char *text, rapidjson::SizeType size, bool) { return writer.string({text, size}), true; }
  bool Key(const char *text, rapidjson::SizeType size, bool) { return writer.key({text, size}), true; }
  bool StartObject() { return writer.beginObject(), true; }
  bool EndObject(rapidjson::SizeType) { return writer.endObject(), true; }
  bool StartArray() { return writer.beginArray(), true; }
  bool EndArray(rapidjson::SizeType) { return writer.endArray(), true; }
};

std::string rewritten(const std::string &name, const std::string &json, JsonStyle style) {
  return written(
      [&](JsonWriter &writer) {
        Rewriter rewriter(writer, name);
        rapidjson::StringStream stream(json.c_str());
        rapidjson::Reader reader;
        EXPECT_TRUE(reader.Parse<rapidjson::kParseNumbersAsStringsFlag>(stream, rewriter)) << name;
      },
      style);
}

std::string withoutTableEscapes(const std::string &cell) {
  std::string text;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] != '\\') {
      text += cell[i];
    } else {
      text += cell[++i] == 'n' ? '\n' : cell[i];
    }
  }
  return text;
}

TEST(JsonWriter, WritesTheReferenceDocumentsInBothStyles) {
  const auto rows = testing::referenceRows("foundation_text.tsv");
  if (rows.empty()) GTEST_SKIP() << "the reference texts are not here";
  for (const auto &row : rows) {
    EXPECT_EQ(rewritten(row.at(0), row.at(1), JsonStyle::compact), row[1]) << row[0];
    EXPECT_EQ(rewritten(row[0], row[1], JsonStyle::pretty), withoutTableEscapes(row.at(2))) << row[0];
  }
}

void writeSample(JsonWriter &writer) {
  writer.beginObject();
  writer.key("a/\"");
  writer.beginArray();
  writer.number(0.1f);
  writer.string("\\\t\x1F\x7F\u00e9");
  writer.escapedString("x\\/y");
  writer.rawValue("{ }");
  writer.endArray();
  writer.key("b");
  writer.beginObject();
  writer.endObject();
  writer.key("c");
  writer.null();
  writer.endObject();
}

TEST(JsonWriter, LaysOutPrettyAndCompactText) {
  EXPECT_EQ(
      written(writeSample),
      "{\n  \"a\\/\\\"\" : [\n    0.1,\n    \"\\\\\\t\\u001f\x7F\u00e9\",\n    \"x\\/y\",\n    { }\n  ],\n"
      "  \"b\" : {\n\n  },\n  \"c\" : null\n}");
  EXPECT_EQ(written(writeSample, JsonStyle::compact),
            "{\"a\\/\\\"\":[0.1,\"\\\\\\t\\u001f\x7F\u00e9\",\"x\\/y\",{ }],\"b\":{},\"c\":null}");
}

TEST(JsonWriter, WritesManySmallPiecesDeepDown) {
  constexpr int kDepth = 300, kCount = 1000;
  const std::string text = written([&](JsonWriter &writer) {
    for (int i = 0; i < kDepth; ++i) writer.beginArray();
    for (int i = 0; i < kCount; ++i) writer.number(std::int64_t{i});
    for (int i = 0; i < kDepth; ++i) writer.endArray();
  });
  const auto lineBreak = [](int depth) {
    return "\n" + std::string(static_cast<std::size_t>(2 * depth), ' ');
  };
  std::string expected = "[";
  for (int i = 1; i < kDepth; ++i) expected += lineBreak(i) + "[";
  for (int i = 0; i < kCount; ++i) expected += (i ? "," : "") + lineBreak(kDepth) + std::to_string(i);
  for (int i = kDepth; i-- > 0;) expected += lineBreak(i) + "]";
  EXPECT_EQ(text, expected);
}

TEST(JsonWriter, KeepsTextsOfAnyLength) {
  for (std::size_t length : {1023, 1024, 1025, 8190, 8191, 8192, 8193, 100'000}) {
    const std::string plain(length, 'p'), control(length, '\x01');
    std::string escaped;
    for (std::size_t i = 0; i < length; ++i) escaped += "\\u0001";
    const auto write = [&](JsonWriter &writer) {
      writer.beginArray();
      writer.string(plain);
      writer.string(control);
      writer.escapedString(escaped);
      writer.rawValue(plain);
      writer.endArray();
    };
    std::string expected = "[";
    for (const std::string &text : {plain, escaped, escaped})
      expected.append("\"").append(text).append("\",");
    EXPECT_EQ(written(write, JsonStyle::compact), expected.append(plain).append("]"));
  }
}

template <typename Float>
std::string refusal(Float value) {
  try {
    written([&](JsonWriter &writer) { writer.number(value); });
  } catch (const JsonEncodingError &error) {
    return error.what();
  }
  return "written";
}

TEST(JsonWriter, RefusesWhatIsNoNumber) {
  EXPECT_EQ(refusal(std::numeric_limits<float>::quiet_NaN()), "Unable to encode Float.nan directly in JSON.");
  EXPECT_EQ(refusal(std::numeric_limits<float>::infinity()), "Unable to encode Float.inf directly in JSON.");
  EXPECT_EQ(refusal(-std::numeric_limits<double>::infinity()),
            "Unable to encode Double.-inf directly in JSON.");
}

TEST(JsonWriter, RefusesThe512thNestedContainer) {
  const auto nested = [](int depth) {
    return written([&](JsonWriter &writer) {
      for (int i = 0; i < depth; ++i) writer.beginArray();
      for (int i = 0; i < depth; ++i) writer.endArray();
    });
  };
  const std::string deepest = nested(511);
  EXPECT_NE(deepest.find("\n" + std::string(1020, ' ') + "[\n\n" + std::string(1020, ' ') + "]"),
            deepest.npos);
  EXPECT_THROW(nested(512), JsonEncodingError);
}

}  // namespace
}  // namespace vantorel
