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

TEST(UsdText, MakesStemsThatANumberKeepsApart) {
  EXPECT_EQ(usdNameStem("room1", "section"), "room");
  EXPECT_EQ(usdNameStem("room", "section"), "room");
  EXPECT_EQ(usdNameStem("4 2", "section"), "section");
  EXPECT_EQ(usdNameStem("2b2", "section"), "_2b");
}

TEST(UsdText, QuotesWhatWouldBreakTheLayer) {
  EXPECT_EQ(usdQuoted("Door(Isopen: True)"), "\"Door(Isopen: True)\"");
  EXPECT_EQ(usdQuoted("a\"b\\c\nd\x7f"), R"("a\x22b\x5cc\x0ad\x7f")");
  EXPECT_EQ(usdQuoted(std::string("\0f", 2)), R"("\x00f")");
  EXPECT_EQ(usdQuoted("\xc3\xa4\xff"), "\"\xc3\xa4\xef\xbf\xbd\"");
}

TEST(UsdText, NestsPrimsAndTurnsColumnsIntoRows) {
  std::string out;
  UsdText usd(out, "root");
  out.clear();
  usd.beginPrim("Xform", "root", {"kind = \"group\""});
  usd.beginPrim("Mesh", "box");
  EXPECT_EQ(usd.path(), "/root/box");
  usd.transform({{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 2.5f, -0.0f, 1e-7f, 1}});
  usd.beginAttribute("normal3f[] normals") += "[(0, 0, 1)]";
  usd.endAttribute({"interpolation = \"vertex\""});
  usd.endPrim();
  usd.endPrim();
  EXPECT_EQ(out, R"(def Xform "root" (
    kind = "group"
)
{
    def Mesh "box"
    {
        matrix4d xformOp:transform = ((1, 0, 0, 0), (0, 1, 0, 0), (0, 0, 1, 0), (2.5, -0, 1e-07, 1))
        uniform token[] xformOpOrder = ["xformOp:transform"]
        normal3f[] normals = [(0, 0, 1)] (
            interpolation = "vertex"
        )
    }
}
)");
}

}  // namespace
}  // namespace vantorel
