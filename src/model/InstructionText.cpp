#include "model/InstructionText.h"

namespace vantorel {

const char *instructionText(Instruction instruction) {
  switch (instruction) {
    case Instruction::moveCloseToWall:
      return "MoveCloseToWall";
    case Instruction::moveAwayFromWall:
      return "MoveAwayFromWall";
    case Instruction::slowDown:
      return "SlowDown";
    case Instruction::turnOnLight:
      return "TurnOnLight";
    case Instruction::normal:
      return "Normal";
    case Instruction::lowTexture:
      return "LowTexture";
    case Instruction::other:
      break;
  }
  return "None";
}

}  // namespace vantorel
