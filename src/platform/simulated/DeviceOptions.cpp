#include "platform/simulated/DeviceOptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

constexpr int kSubviewLimit = 1000;

/// Stores the value of the word, or names the words that there are.
template <typename Value>
std::optional<std::string> chooseWord(std::string_view word, Value &out,
                                      const std::vector<std::pair<std::string_view, Value>> &choices) {
  std::string expected;
  for (const auto &[name, value] : choices) {
    if (name == word) {
      out = value;
      return std::nullopt;
    }
    expected += (expected.empty() ? "" : ", ") + std::string(name);
  }
  return "expected one of " + expected + ", got \"" + std::string(word) + "\"";
}

/// A whole number from 0 to `limit` that is all of the text.
std::optional<int> wholeNumber(std::string_view text, int limit) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < 0 || value > limit)
    return std::nullopt;
  return value;
}

/// As 16.4 or 17.0.1; only the first number matters to anybody.
std::optional<std::string> setSystem(DeviceTraits &traits, std::string_view text) {
  std::vector<int> numbers;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('.', begin), text.size());
    const auto number = wholeNumber(text.substr(begin, end - begin), 999);
    numbers.push_back(number.value_or(-1));
    begin = end + 1;
  }
  const bool isVersion =
      numbers.size() <= 3 && std::find(numbers.begin(), numbers.end(), -1) == numbers.end();
  if (!isVersion || numbers[0] < 16)
    return "expected a version from 16.0 on, as 16.4, got \"" + std::string(text) + "\"";
  traits.systemMajor = numbers[0];
  return std::nullopt;
}

std::optional<std::string> setCoaching(DeviceTraits &traits, std::string_view text) {
  const auto count = wholeNumber(text, kSubviewLimit);
  if (!count) return "expected a number from 0 to 1000, got \"" + std::string(text) + "\"";
  traits.coachingSubviews = *count;
  return std::nullopt;
}

std::optional<std::string> setMatrix(std::optional<Float4x4> &matrix, std::string_view text) {
  std::istringstream numbers{std::string(text)};
  numbers.imbue(std::locale::classic());
  Float4x4 read;
  std::size_t count = 0;
  for (float number; numbers >> number && std::isfinite(number); ++count)
    if (count < read.elements.size()) read.elements[count] = number;
  if (count != read.elements.size() || !numbers.eof())
    return "expected 16 numbers separated by blanks, got \"" + std::string(text) + "\"";
  matrix = read;
  return std::nullopt;
}

std::optional<std::string> setTrait(DeviceTraits &traits, std::string_view name, std::string_view value) {
  using Torch = DeviceTraits::Torch;
  using Window = DeviceTraits::Window;
  using Tracking = DeviceTraits::Tracking;
  if (name == "ios") return setSystem(traits, value);
  if (name == "lidar") return chooseWord<bool>(value, traits.hasLidar, {{"on", true}, {"off", false}});
  if (name == "torch")
    return chooseWord<Torch>(value, traits.torch,
                             {{"present", Torch::present},
                              {"absent", Torch::absent},
                              {"refused", Torch::refused},
                              {"nodevice", Torch::noDevice}});
  if (name == "window")
    return chooseWord<Window>(
        value, traits.window,
        {{"full", Window::full}, {"bare", Window::bare}, {"empty", Window::empty}, {"none", Window::none}});
  if (name == "coaching") return setCoaching(traits, value);
  if (name == "tracking")
    return chooseWord<Tracking>(value, traits.tracking,
                                {{"normal", Tracking::normal},
                                 {"limited", Tracking::limited},
                                 {"unavailable", Tracking::unavailable},
                                 {"auto", Tracking::automatic}});
  if (name == "map") return chooseWord<bool>(value, traits.hasWorldMap, {{"present", true}, {"none", false}});
  if (name == "camera") return setMatrix(traits.camera, value);
  if (name == "projection") return setMatrix(traits.projection, value);
  return "the device has no such option; it has ios, lidar, torch, window, coaching, tracking, map, camera "
         "and projection";
}

}  // namespace

DeviceTraits DeviceOptions::get() const {
  std::lock_guard lock(mutex_);
  return traits_;
}

std::optional<std::string> DeviceOptions::set(std::string_view name, std::string_view value) {
  std::lock_guard lock(mutex_);
  const auto refusal = setTrait(traits_, name, value);
  if (!refusal) return std::nullopt;
  return "device " + std::string(name) + ": " + *refusal;
}

void DeviceOptions::forgetFrame() {
  std::lock_guard lock(mutex_);
  traits_.camera.reset();
  traits_.projection.reset();
}

void DeviceOptions::reset() {
  std::lock_guard lock(mutex_);
  traits_ = {};
}

}  // namespace vantorel
