#include "rooms/UsdText.h"

#include "base/Digits.h"
#include "base/FloatText.h"
#include "base/Utf8.h"

#include <cmath>
#include <stdexcept>

namespace vantorel {
namespace {

bool isNameCharacter(char c) {
  return isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

std::string nameCharacters(std::string_view text) {
  std::string kept;
  for (char c : text)
    if (isNameCharacter(c)) kept += c;
  return kept;
}

std::string completed(std::string_view name, std::string_view fallback) {
  if (name.empty()) return std::string(fallback);
  return std::string(isDigit(name[0]) ? "_" : "").append(name);
}

void appendNumber(std::string &out, float value) {
  if (!std::isfinite(value)) throw std::runtime_error("a number of the room is not finite");
  char text[kFloatTextMax];
  out.append(text, writeFloatJson(text, value));
}

}  // namespace

std::string usdQuoted(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string quoted = "\"";
  for (char c : repairedUtf8(text)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7f || c == '"' || c == '\\') {
      quoted += {'\\', 'x', kHex[byte >> 4], kHex[byte & 15]};
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

std::string usdName(std::string_view text, std::string_view fallback) {
  return completed(nameCharacters(text), fallback);
}

std::string usdNameStem(std::string_view text, std::string_view fallback) {
  std::string name = nameCharacters(text);
  while (!name.empty() && isDigit(name.back())) name.pop_back();
  return completed(name, fallback);
}

UsdText::UsdText(std::string &out, std::string_view root) : out_(out) {
  line("#usda 1.0");
  line("(");
  line("    defaultPrim = " + usdQuoted(root));
  line("    metersPerUnit = 1");
  line("    upAxis = \"Y\"");
  line(")");
}

void UsdText::beginPrim(std::string_view type, std::string_view name, Metadata metadata) {
  indent();
  out_.append("def ").append(type).append(" \"").append(name).append("\"");
  endLine(metadata);
  line("{");
  ++depth_;
  path_.append("/").append(name);
}

void UsdText::endPrim() {
  path_.erase(path_.rfind('/'));
  --depth_;
  line("}");
}

void UsdText::line(std::string_view text) {
  indent();
  out_.append(text).append("\n");
}

std::string &UsdText::beginAttribute(std::string_view declaration) {
  indent();
  return out_.append(declaration).append(" = ");
}

void UsdText::transform(const Float4x4 &matrix) {
  std::string &out = beginAttribute("matrix4d xformOp:transform");
  // USD multiplies row vectors: its rows are the columns here.
  for (int column = 0; column < 4; ++column)
    for (int row = 0; row < 4; ++row) {
      out += row > 0 ? ", " : column > 0 ? "), (" : "((";
      appendNumber(out, matrix.at(column, row));
    }
  out += "))";
  endAttribute();
  line("uniform token[] xformOpOrder = [\"xformOp:transform\"]");
}

void UsdText::indent() { out_.append(4 * depth_, ' '); }

void UsdText::endLine(Metadata metadata) {
  if (metadata.size() == 0) {
    out_ += '\n';
    return;
  }
  out_ += " (\n";
  ++depth_;
  for (std::string_view text : metadata) line(text);
  --depth_;
  line(")");
}

}  // namespace vantorel
