#include "tools/Printer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vantorel {
namespace {

template <typename Kind>
std::string printed(const Event &event) {
  std::ostringstream out;
  Kind(out).print(event);
  return out.str();
}

TEST(Printer, WritesOneObjectALine) {
  EXPECT_EQ(
      printed<JsonPrinter>({0.1, "main", "callback", "VTLDidStart", EventValue::null()}),
      "{\"time\":0.1,\"thread\":\"main\",\"event\":\"callback\",\"name\":\"VTLDidStart\",\"value\":null}\n");
  EXPECT_EQ(printed<JsonPrinter>(
                {2, "delegate", "console", std::nullopt, EventValue::text("a \"b\"\n\x01/\xFF\xC3\xA9")}),
            "{\"time\":2,\"thread\":\"delegate\",\"event\":\"console\",\"name\":null,"
            "\"value\":\"a \\\"b\\\"\\n\\u0001/\xEF\xBF\xBD\xC3\xA9\"}\n");
  EXPECT_EQ(
      printed<JsonPrinter>({0, "main", "return", "VantorelSupport", EventValue::boolean(true)}),
      "{\"time\":0,\"thread\":\"main\",\"event\":\"return\",\"name\":\"VantorelSupport\",\"value\":true}\n");
}

TEST(Printer, KeepsReadableLinesShortAndOnOneLine) {
  const std::string snapshot = "{\n" + std::string(97, ' ') + "\xC3\xA9 and so on";
  const std::string line =
      printed<ReadablePrinter>({1.5, "main", "callback", "VTLRoomSnapshot", EventValue::text(snapshot)});
  EXPECT_EQ(line.find('\n'), line.size() - 1);
  EXPECT_LT(line.size(), 170U);
  EXPECT_NE(line.find("(" + std::to_string(snapshot.size()) + " bytes)"), std::string::npos) << line;
  EXPECT_EQ(printed<ReadablePrinter>({0, "main", "callback", "VTLDidEnd", EventValue::null()}),
            "0       main       callback VTLDidEnd\n");
  EXPECT_EQ(printed<ReadablePrinter>({0, "main", "state", "delegate", EventValue::null()}),
            "0       main       state    delegate null\n");
}

TEST(Printer, GivesARoomAsItsCounts) {
  const std::string room =
      R"({"version":2,"doors":[],"objects":[],"openings":[],"walls":[],"windows":[],"floors":[],)"
      R"("sections":[{"center":[0,0,0],"label":"kitchen","story":0}]})";
  EXPECT_EQ(
      printed<ReadablePrinter>({0, "main", "callback", "VTLRoomSnapshot", EventValue::text(room)}),
      "0       main       callback VTLRoomSnapshot 1 section, " + std::to_string(room.size()) + " bytes\n");
}

TEST(Printer, GivesSecondsInTheFewestDigits) {
  const std::pair<double, const char *> table[] = {
      {0, "0"},
      {0.1, "0.1"},
      {1.5, "1.5"},
      {10, "10"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333"},
      {1e-9, "0.000000001"},
      {1e9, "1000000000"},
      {599.999999999, "599.999999999"},
  };
  for (const auto &[seconds, text] : table) EXPECT_EQ(secondsText(seconds), text);
}

}  // namespace
}  // namespace vantorel
