#include "rooms/UsdText.h"

#include "base/Utf8.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace vantorel {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

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

void UsdText::attribute(std::string_view declaration, std::span<const int> values) {
  beginValue(declaration);
  list('[', values, ']', [this](int value) { integer(value); });
  endLine({});
}

void UsdText::attribute(std::string_view declaration, std::span<const Float3> values, Metadata metadata) {
  beginValue(declaration);
  list('[', values, ']', [this](Float3 value) { tuple(std::array{value.x, value.y, value.z}); });
  endLine(metadata);
}

void UsdText::transform(const Float4x4 &matrix) {
  const std::span<const float, 16> e = matrix.elements;
  beginValue("matrix4d xformOp:transform");
  // USD multiplies row vectors: its rows are the columns here.
  const std::array columns{e.subspan<0, 4>(), e.subspan<4, 4>(), e.subspan<8, 4>(), e.subspan<12, 4>()};
  list('(', columns, ')', [this](std::span<const float> column) { tuple(column); });
  endLine({});
  line("uniform token[] xformOpOrder = [\"xformOp:transform\"]");
}

void UsdText::indent() { out_.append(4 * depth_, ' '); }

void UsdText::beginValue(std::string_view declaration) {
  indent();
  out_.append(declaration).append(" = ");
}

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

void UsdText::integer(int value) {
  char text[12];
  out_.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

void UsdText::tuple(std::span<const float> values) {
  char text[kTupleMax * (kFloatTextMax + 2) + 2];
  char *end = text;
  std::string_view separator = "(";
  for (float value : values) {
    const CachedFloat &number = textOf(value);
    end = std::copy(separator.begin(), separator.end(), end);
    separator = ", ";
    std::memcpy(end, number.text.data(), kFloatTextMax);  // a constant size copies faster than the right one
    end += number.length;
  }
  *end++ = ')';
  out_.append(text, end);
}

const UsdText::CachedFloat &UsdText::textOf(float value) {
  const auto bits = std::bit_cast<std::uint32_t>(value);
  CachedFloat &recent = recentNumbers_[bits * 0x9e3779b1u >> 26];  // multiplicative hash to 6 bits
  if (recent.length > 0 && recent.bits == bits) return recent;
  if (!std::isfinite(value)) throw std::runtime_error("a number of the room is not finite");
  recent.bits = bits;
  recent.length = static_cast<std::uint8_t>(writeFloatJson(recent.text.data(), value) - recent.text.data());
  return recent;
}

template <typename Items, typename Write>
void UsdText::list(char open, const Items &items, char close, Write write) {
  out_ += open;
  for (const auto &item : items) {
    write(item);
    out_ += ", ";
  }
  if (!std::empty(items)) out_.resize(out_.size() - 2);
  out_ += close;
}

}  // namespace vantorel
