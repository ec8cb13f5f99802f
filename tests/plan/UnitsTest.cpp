#include "plan/Units.h"

#include <gtest/gtest.h>

namespace vantorel::plan {
namespace {

TEST(Units, SayLengthsAndAreas) {
  const std::pair<double, std::pair<const char *, const char *>> lengths[] = {
      {0, {"0", "0\""}},          {0.0254, {"0.03", "1\""}},
      {0.30, {"0.30", "1'-0\""}}, {3.625, {"3.63", "11'-11\""}},
      {-0.004, {"0", "0\""}},     {12.5, {"12.50", "41'-0\""}}};
  for (const auto &[metres, texts] : lengths) {
    EXPECT_EQ(lengthText(metres, Units::metric), texts.first);
    EXPECT_EQ(lengthText(metres, Units::feet), texts.second);
  }
  EXPECT_EQ(areaText(14.86, Units::metric), "14.9 m²");
  EXPECT_EQ(areaText(14.86, Units::feet), "160 sq ft");
}

TEST(Units, ChooseTheLargestUsualScaleThatFits) {
  EXPECT_EQ(scaleFor(5, 4, 1000, 780, Units::metric).name, "1:20");
  EXPECT_EQ(scaleFor(13, 8, 1000, 780, Units::metric).name, "1:50");
  EXPECT_EQ(scaleFor(12, 8, 1000, 780, Units::feet).name, "1/4\" = 1'-0\"");
  EXPECT_NEAR(scaleFor(13, 8, 1000, 780, Units::metric).pixelsPerMetre, 96 / 0.0254 / 50, 1e-9);
  EXPECT_GT(scaleFor(1e30, 1, 1000, 780, Units::metric).pixelsPerMetre, 0);
}

TEST(Units, DivideTheScaleBar) {
  const auto marks = scaleMarks(50, 330, Units::metric);
  ASSERT_EQ(marks.size(), 3U);
  EXPECT_EQ(marks[1].text, "2.5");
  EXPECT_EQ(marks[2].text, "5 m");
  EXPECT_EQ(scaleMarks(189, 330, Units::metric).back().text, "1 m");
}

}  // namespace
}  // namespace vantorel::plan
