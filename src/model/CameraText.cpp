#include "model/CameraText.h"

#include "base/FloatText.h"

namespace vantorel {
namespace {

std::string listText(const std::array<float, 16> &elements) {
  std::string text = "[";
  for (float element : elements) {
    char digits[kFloatTextMax];
    if (text.size() > 1) text += ", ";
    text.append(digits, writeFloatDescription(digits, element));
  }
  return text += "]";
}

}  // namespace

std::string cameraPoseText(const Float4x4 &m) {
  return listText({-m.at(0, 0), -m.at(1, 0), -m.at(2, 0), m.at(3, 0),  //
                   -m.at(0, 1), -m.at(1, 1), -m.at(2, 1), m.at(3, 1),  //
                   m.at(0, 2), m.at(1, 2), m.at(2, 2), -m.at(3, 2),    //
                   m.at(0, 3), m.at(1, 3), m.at(2, 3), m.at(3, 3)});
}

std::string cameraProjectionText(const Float4x4 &m) {
  return listText({m.at(1, 0), -m.at(0, 0), m.at(2, 0), m.at(3, 0),  //
                   m.at(1, 1), m.at(0, 1), m.at(2, 1), m.at(3, 1),   //
                   m.at(1, 2), m.at(0, 2), m.at(2, 2), m.at(3, 2),   //
                   m.at(1, 3), m.at(0, 3), m.at(2, 3), m.at(3, 3)});
}

}  // namespace vantorel
