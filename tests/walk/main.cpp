// vantorel_walk [--steps N] [--seed S]: walks of 100,000 steps each, from the start values S, S + 1, ...
#include "walk/Walk.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vantorel::walk;

constexpr std::uint64_t kStepsPerWalk = 100'000;

/// The number behind `name`, if it is there.
std::uint64_t option(int argc, char **argv, const char *name, std::uint64_t otherwise) {
  for (int i = 1; i + 1 < argc; i += 2)
    if (std::strcmp(argv[i], name) == 0) return std::strtoull(argv[i + 1], nullptr, 10);
  return otherwise;
}

/// False when library and model disagree, or a whole walk missed something.
bool walkFrom(std::uint64_t seed, std::uint64_t steps) {
  Coverage coverage;
  if (const auto failure = walk(seed, steps, coverage)) {
    std::printf("Start value %llu fails; shortened:\n%s", static_cast<unsigned long long>(seed),
                toText(shortened(*failure)).c_str());
    return false;
  }
  const std::string gaps = steps < kStepsPerWalk ? "" : coverage.gaps();
  if (!gaps.empty())
    std::printf("Start value %llu tried too rarely:\n%s", static_cast<unsigned long long>(seed),
                gaps.c_str());
  return gaps.empty();
}

}  // namespace

int main(int argc, char **argv) {
  const auto begin = std::chrono::steady_clock::now();
  const std::uint64_t steps = option(argc, argv, "--steps", kStepsPerWalk);
  std::uint64_t seed = option(argc, argv, "--seed", 1);
  for (std::uint64_t left = steps; left > 0; left -= std::min(left, kStepsPerWalk), ++seed)
    if (!walkFrom(seed, std::min(left, kStepsPerWalk))) return 1;
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
  std::printf("%llu steps in %.1f s: library and model agree\n", static_cast<unsigned long long>(steps),
              time.count());
  return 0;
}
