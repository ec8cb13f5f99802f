#include "rooms/WallCorners.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

/// A wall that a room to its left, seen from above with z downward, has from one place to another.
Surface wallFrom(double x, double z, double toX, double toZ, float y = 0) {
  const double length = std::hypot(toX - x, toZ - z);
  const float ax = float((toX - x) / length), az = float((toZ - z) / length);
  Surface wall;
  wall.dimensions = {float(length), 2.5f, 0};
  wall.transform = {{ax, 0, az, 0, 0, 1, 0, 0, -az, 0, ax, 0, float(x + toX) / 2, y, float(z + toZ) / 2, 1}};
  return wall;
}

/// "+" for a wall with a post.
std::string postsOf(const std::vector<Surface> &walls) {
  std::string posts;
  for (const std::optional<Turn> &turn : convexCorners(walls)) posts += turn ? '+' : '-';
  return posts;
}

TEST(WallCorners, AreWhereTheRoomTurnsInward) {
  // An L: five convex corners and a reflex one, after the third wall.
  EXPECT_EQ(postsOf({wallFrom(0, 0, 4, 0), wallFrom(4, 0, 4, 2), wallFrom(4, 2, 2, 2), wallFrom(2, 2, 2, 4),
                     wallFrom(2, 4, 0, 4), wallFrom(0, 4, 0, 0)}),
            "++-+++");
  const std::vector<std::optional<Turn>> turns =
      convexCorners({wallFrom(0, 0, 4, 0), wallFrom(4, 0, 5, std::sqrt(3.0))});
  ASSERT_TRUE(turns[0]);
  EXPECT_NEAR(turns[0]->sine, std::sqrt(3.0) / 2, 1e-6);
  EXPECT_NEAR(turns[0]->cosine, 0.5, 1e-6);
}

TEST(WallCorners, NeedExactlyOneWallThatStartsThere) {
  const Surface wall = wallFrom(0, 0, 4, 0), next = wallFrom(4, 0, 4, 2);
  EXPECT_EQ(postsOf({wall}), "-");
  EXPECT_EQ(postsOf({wall, next}), "+-");
  EXPECT_EQ(postsOf({wall, next, wallFrom(4, 0, 6, 2)}), "---") << "two start there";
  EXPECT_EQ(postsOf({wall, next, wallFrom(4, -2, 4, 0)}), "+--") << "another ends there";
  EXPECT_EQ(postsOf({wall, wallFrom(4.01, 0, 4.01, 2)}), "--") << "1 cm away";
  EXPECT_EQ(postsOf({wall, wallFrom(4, 2, 4, 0)}), "--") << "it ends there";
  EXPECT_EQ(postsOf({wall, wallFrom(4, 0, 6, 0)}), "--") << "straight on";
  EXPECT_EQ(postsOf({wall, wallFrom(4, 0, 2, 0.5)}), "--") << "almost back";
  EXPECT_EQ(postsOf({wall, wallFrom(4, 0, 4, 2, 2.6f)}), "--") << "a storey higher";
  EXPECT_EQ(postsOf({wall, next, wallFrom(4, 0, 6, 2, 2.6f)}), "+--") << "the second is a storey higher";
}

TEST(WallCorners, AreLeftOutOfWallsThatTheyDoNotFit) {
  const Surface wall = wallFrom(0, 0, 4, 0);
  Surface curved = wallFrom(4, 0, 4, 2), leaning = curved, flat = curved, overturned = curved;
  curved.curve.emplace(Curve{});
  leaning.transform.elements[5] = 0.5f;
  flat.transform = {};
  overturned.transform.elements[5] = -1;
  EXPECT_EQ(postsOf({wall, curved}), "--");
  EXPECT_EQ(postsOf({wall, leaning}), "--");
  EXPECT_EQ(postsOf({wall, flat}), "--");
  EXPECT_EQ(postsOf({wall, overturned}), "--");
}

}  // namespace
}  // namespace vantorel
