#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr const char *kBad = "\uFFFD";

std::string bad(int count) {
  std::string text;
  while (count-- > 0) text += kBad;
  return text;
}

TEST(Utf8, KeepsWellFormedText) {
  using namespace std::string_view_literals;
  for (std::string_view text : {""sv, "plain"sv, "\0\x7F"sv, "\u0080\u07FF\u0800\uD7FF\uE000\uFFFF"sv,
                                "\U00010000\U0010FFFF"sv, "e\u0301 \U0001F600"sv})
    EXPECT_EQ(repairedUtf8(text), text);
}

TEST(Utf8, ReplacesEveryMaximalIllFormedPart) {
  struct Case {
    std::string broken, repaired;
  };
  const Case cases[] = {
      {"a\x80z", "a" + bad(1) + "z"},                // a continuation alone
      {"a\xC3", "a" + bad(1)},                       // cut off at the end
      {"\xE2\x82", bad(1)},                          // two of three bytes are one part
      {"\xF0\x9F\x98z", bad(1) + "z"},               // three of four as well
      {"\xE2\x82\xC3\xA9", bad(1) + "\u00E9"},       // the next character survives
      {"\xC0\xAF\xC1\xBF", bad(4)},                  // overlong, 2 bytes
      {"\xE0\x80\xAF\xE0\x9F\xBF", bad(6)},          // overlong, 3 bytes
      {"\xF0\x80\x80\xAF\xF0\x8F\xBF\xBF", bad(8)},  // overlong, 4 bytes
      {"\xED\xA0\x80\xED\xBF\xBF", bad(6)},          // surrogates
      {"\xF4\x90\x80\x80\xF5\x80\xFF", bad(7)},      // above U+10FFFF
      {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42", bad(5) + "A" + bad(2) + "B"},
      {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", bad(4) + "A"},
  };
  for (const Case &test : cases) EXPECT_EQ(repairedUtf8(test.broken), test.repaired);
}

}  // namespace
}  // namespace vantorel
