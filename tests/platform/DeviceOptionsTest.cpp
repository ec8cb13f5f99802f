#include "platform/PlatformError.h"
#include "platform/simulated/DeviceOptions.h"
#include "platform/simulated/Faults.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr const char *kMatrix = "1 0 0 0  0 1 0 0  0 0 1 0  -1.5 2e-3 4 1";

TEST(DeviceOptions, TakesTheWordsOfTheCommandLine) {
  DeviceOptions options;
  for (const auto &[name, value] :
       {std::pair("ios", "16.4"), std::pair("lidar", "off"), std::pair("torch", "refused"),
        std::pair("window", "bare"), std::pair("coaching", "0"), std::pair("tracking", "limited"),
        std::pair("map", "none"), std::pair("camera", kMatrix)})
    EXPECT_EQ(options.set(name, value), std::nullopt) << name;
  const auto traits = options.get();
  EXPECT_EQ(traits.systemMajor, 16);
  EXPECT_FALSE(traits.hasLidar || traits.hasWorldMap);
  EXPECT_EQ(traits.torch, DeviceTraits::Torch::refused);
  EXPECT_EQ(traits.window, DeviceTraits::Window::bare);
  EXPECT_EQ(traits.coachingSubviews, 0);
  EXPECT_EQ(traits.tracking, DeviceTraits::Tracking::limited);
  EXPECT_EQ(traits.camera->at(3, 0), -1.5F);
  EXPECT_EQ(traits.camera->at(3, 1), 2e-3F);
  options.forgetFrame();
  EXPECT_FALSE(options.get().camera);
  options.reset();
  EXPECT_EQ(options.get().systemMajor, 18);
}

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

TEST(Faults, HitTheCallsAfterTheSkippedOnes) {
  Faults faults;
  EXPECT_FALSE(faults.hits("writeFile"));
  EXPECT_EQ(faults.plan("writeFile", 2, 1), std::nullopt);
  const auto three = {faults.hits("writeFile"), faults.hits("writeFile"), faults.hits("writeFile")};
  EXPECT_TRUE(std::equal(three.begin(), three.end(), std::begin({false, true, true})));
  EXPECT_FALSE(faults.hits("writeFile"));
  EXPECT_EQ(faults.plan("exportRoom", 1, 0), std::nullopt);
  EXPECT_FALSE(faults.hits("encodeRoom"));
  EXPECT_THROW(faults.check("exportRoom"), PlatformError);
  EXPECT_EQ(faults.plan("exportRoom", 9, 0), std::nullopt);
  faults.reset();
  EXPECT_NO_THROW(faults.check("exportRoom"));
  EXPECT_EQ(faults.plan("WriteFile", 1, 0), "no platform call is named \"WriteFile\"");
}

}  // namespace
}  // namespace vantorel
