#include "rooms/UsdText.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(UsdText, MakesNamesOfAnyText) {
  EXPECT_EQ(usdName("RoomPlan-2025-12-16T07:29:35Z-temp", "scan"), "RoomPlan20251216T072935Ztemp");
  EXPECT_EQ(usdName("2nd floor", "scan"), "_2ndfloor");
  EXPECT_EQ(usdName("K\xc3\xbc"
                    "che_1",
                    "scan"),
            "Kche_1");
  EXPECT_EQ(usdName("", "scan"), "scan");
  EXPECT_EQ(usdName("../\"\n", "scan"), "scan");
}

TEST(UsdText, QuotesWhatWouldBreakTheLayer) {
  EXPECT_EQ(usdQuoted("Door(Isopen: True)"), "\"Door(Isopen: True)\"");
  EXPECT_EQ(usdQuoted("a\"b\\c\nd\x7f"), R"("a\x22b\x5cc\x0ad\x7f")");
  EXPECT_EQ(usdQuoted(std::string("\0f", 2)), R"("\x00f")");
  EXPECT_EQ(usdQuoted("\xc3\xa4\xff"), "\"\xc3\xa4\xef\xbf\xbd\"");
}

}  // namespace
}  // namespace vantorel
