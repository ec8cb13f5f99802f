#include "platform/simulated/InstructionNames.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// In the order of the cases.
constexpr std::array<std::string_view, 7> kNames = {
    "moveCloseToWall", "moveAwayFromWall", "slowDown", "turnOnLight", "normal", "lowTexture", "other"};

/// Whether they differ by no more than a capital at the beginning.
bool isSameWord(std::string_view word, std::string_view name) {
  return word.size() == name.size() && (word[0] | 0x20) == name[0] && word.substr(1) == name.substr(1);
}

}  // namespace

Instruction instructionNamed(std::string_view name) {
  for (std::size_t i = 0; i < kNames.size(); ++i)
    if (isSameWord(name, kNames[i])) return static_cast<Instruction>(i);
  return Instruction::other;
}

std::string_view nameOf(Instruction instruction) { return kNames[static_cast<std::size_t>(instruction)]; }

}  // namespace vantorel
