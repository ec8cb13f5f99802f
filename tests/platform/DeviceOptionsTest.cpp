#include "platform/simulated/DeviceOptions.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(DeviceOptions, RefusesClearlyAndChangesNothing) {
  DeviceOptions options;
  struct Case {
    const char *name, *value, *message;
  };
  for (const auto &[name, value, message] :
       {Case{"ios", "15.8", "device ios: expected a version from 16.0 on, as 16.4, got \"15.8\""},
        Case{"ios", "17.", "got \"17.\""}, Case{"ios", "17.0.0.1", "got \"17.0.0.1\""},
        Case{"ios", "", "got \"\""}, Case{"lidar", "ON", "device lidar: expected one of on, off, got \"ON\""},
        Case{"torch", "broken", "expected one of present, absent, refused, nodevice"},
        Case{"window", "half", "full, bare, empty, none"}, Case{"coaching", "-1", "expected a number from 0"},
        Case{"coaching", "2x", "got \"2x\""}, Case{"coaching", "99999999999", "expected a number"},
        Case{"tracking", "", "normal, limited, unavailable, auto"}, Case{"map", "on", "present, none"},
        Case{"camera", "1 2 3", "device camera: expected 16 numbers"}, Case{"camera", "", "16 numbers"},
        Case{"camera", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1 1", "16 numbers"},
        Case{"projection", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 x", "16 numbers"},
        Case{"projection", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1e99", "16 numbers"},
        Case{"colour", "blue", "no such option"}}) {
    const auto refusal = options.set(name, value);
    ASSERT_TRUE(refusal) << name << " " << value;
    EXPECT_NE(refusal->find(message), std::string::npos) << *refusal;
  }
  const auto traits = options.get();
  EXPECT_EQ(traits.systemMajor, 18);
  EXPECT_EQ(traits.coachingSubviews, 2);
  EXPECT_FALSE(traits.camera || traits.projection);
}

}  // namespace
}  // namespace vantorel
