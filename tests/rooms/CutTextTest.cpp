#include "rooms/CutText.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

std::string shortened(std::string_view text) {
  CutText cut = CutText::withoutCoreModel(text);
  return cut.shortened.substr(0, cut.size());
}

TEST(CutText, TakesOutTheCharactersOfTheFirstPlainString) {
  EXPECT_EQ(shortened(R"({"coreModel":"QUJD\/+=","a":1})"), R"({"coreModel":"","a":1})");
  EXPECT_EQ(shortened("{\"a\":1,\"coreModel\" :\n\t\"QUJD\"}"), "{\"a\":1,\"coreModel\" :\n\t\"\"}");
  EXPECT_EQ(shortened(R"({"coreModel":""})"), R"({"coreModel":""})");
  EXPECT_EQ(shortened(R"({"coreModel":"\n","x":{"coreModel":"QUJD"}})"),
            R"({"coreModel":"\n","x":{"coreModel":""}})");
}

TEST(CutText, LeavesEverythingElseToTheParser) {
  for (std::string_view text :
       {R"({"coreModel":"a\"b"})", R"({"coreModel":"a\\/b"})", R"({"coreModel":"a\u0041"})",
        "{\"coreModel\":\"a\x01\"}", "{\"coreModel\":\"\xC3\xA9\"}", R"({"coreModel":null})",
        R"({"coreModel":"cut off)", R"({"coreModel":)", R"({"coreModel")", R"({"a":"coreModel","b":"c"})",
        R"({"coreModels":"QUJD"})", ""})
    EXPECT_EQ(shortened(text), text);
}

TEST(CutText, KnowsThePlacesInTheWholeText) {
  constexpr std::string_view kText = R"({"coreModel":"QUJD","a":{"b":1}})";
  CutText cut = CutText::withoutCoreModel(kText);
  EXPECT_EQ(cut.writtenString(cut.shortened.find("\"\"") + 1), "QUJD");
  EXPECT_EQ(cut.writtenString(cut.shortened.find('b')), "b");
  EXPECT_EQ(cut.wholeOffset(1), 1u);
  EXPECT_EQ(cut.wholeOffset(cut.shortened.find("\"a\"")), kText.find("\"a\""));
  EXPECT_EQ(cut.written(0, cut.size()), kText);
  EXPECT_EQ(cut.written(cut.shortened.find("{\"b"), cut.size() - 1), R"({"b":1})");
}

}  // namespace
}  // namespace vantorel
