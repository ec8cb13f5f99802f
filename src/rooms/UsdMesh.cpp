#include "rooms/UsdMesh.h"

#include "base/FloatText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string>

namespace vantorel {
namespace {

constexpr std::string_view kSeparator = ", ";

/// Appends what `write` writes to a pointer: at most `most` characters. It returns the end.
template <typename Write>
void appendAtMost(std::string &out, std::size_t most, Write write) {
  const std::size_t size = out.size();
  out.resize(size + most);
  out.resize(static_cast<std::size_t>(write(out.data() + size) - out.data()));
}

char *put(char *out, std::string_view text) {
  std::memcpy(out, text.data(), text.size());
  return out + text.size();
}

/// "a, b, c" in brackets.
template <typename Items, typename Write>
void appendList(std::string &out, const Items &items, std::size_t mostOfEach, Write write) {
  appendAtMost(out, 2 + items.size() * (mostOfEach + kSeparator.size()), [&](char *end) {
    *end++ = '[';
    for (const auto &item : items) end = put(write(end, item), kSeparator);
    if (!items.empty()) end -= kSeparator.size();
    *end++ = ']';
    return end;
  });
}

constexpr std::size_t kPointMax = 3 * kMicrometresTextMax + 2 * kSeparator.size() + 2;

char *writePoint(char *out, const MicroPoint &point) {
  *out++ = '(';
  out = put(writeMicrometres(out, point.x), kSeparator);
  out = put(writeMicrometres(out, point.y), kSeparator);
  out = writeMicrometres(out, point.z);
  *out++ = ')';
  return out;
}

/// All numbers of three digits, one after the other.
constexpr std::array<char, 3000> kThreeDigits = [] {
  std::array<char, 3000> digits{};
  for (std::size_t i = 0; i < 1000; ++i) {
    digits[3 * i] = static_cast<char>('0' + i / 100);
    digits[3 * i + 1] = static_cast<char>('0' + i / 10 % 10);
    digits[3 * i + 2] = static_cast<char>('0' + i % 10);
  }
  return digits;
}();

char *putThreeDigits(char *out, std::size_t value) { return put(out, {&kThreeDigits[3 * value], 3}); }

constexpr std::size_t kIndexMax = 10;

char *writeIndex(char *out, int index) {
  if (index >= 1000) return std::to_chars(out, out + kIndexMax, index).ptr;
  const std::size_t leadingZeros = index < 10 ? 2 : index < 100 ? 1 : 0;
  return put(out,
             std::string_view(&kThreeDigits[3 * static_cast<std::size_t>(index)], 3).substr(leadingZeros));
}

char *writeTriangle(char *out, const std::array<int, 3> &triangle) {
  out = put(writeIndex(out, triangle[0]), kSeparator);
  out = put(writeIndex(out, triangle[1]), kSeparator);
  return writeIndex(out, triangle[2]);
}

constexpr std::size_t kNormalMax = 3 * kFloatTextMax + 2 * kSeparator.size() + 2;

/// Most are level or upright.
char *writeUnit(char *out, float value) {
  if (value == 0) return put(out, "0");
  if (value == 1) return put(out, "1");
  return writeFloatJson(out, value);
}

char *writeNormal(char *out, const Float3 &normal) {
  *out++ = '(';
  out = put(writeUnit(out, normal.x), kSeparator);
  out = put(writeUnit(out, normal.y), kSeparator);
  out = writeUnit(out, normal.z);
  *out++ = ')';
  return out;
}

/// Each patch's text as often as it has points.
void appendNormals(std::string &out, const Mesh &mesh) {
  out += '[';
  for (const Mesh::Patch &patch : mesh.patches) {
    char text[kNormalMax + kSeparator.size()];
    const auto size = static_cast<std::size_t>(put(writeNormal(text, patch.normal), kSeparator) - text);
    appendAtMost(out, patch.size * size, [&](char *end) {
      for (std::size_t i = 0; i < patch.size; ++i) end = put(end, {text, size});
      return end;
    });
  }
  out.resize(out.size() - kSeparator.size());
  out += ']';
}

void appendCounts(std::string &out, std::size_t triangles) {
  appendAtMost(out, 2 + 3 * triangles, [triangles](char *end) {
    *end++ = '[';
    for (std::size_t i = 0; i < triangles; ++i) end = put(end, "3, ");
    end -= kSeparator.size();
    *end++ = ']';
    return end;
  });
}

}  // namespace

char *writeMicrometres(char *out, std::int32_t micrometres) {
  if (micrometres < 0) *out++ = '-';
  const std::uint32_t size = micrometres < 0 ? 0u - static_cast<std::uint32_t>(micrometres)
                                             : static_cast<std::uint32_t>(micrometres);
  const std::uint32_t metres = size / 1'000'000, rest = size % 1'000'000;
  if (metres < 10) {
    *out++ = static_cast<char>('0' + metres);
  } else {
    out = std::to_chars(out, out + 4, metres).ptr;
  }
  if (rest == 0) return out;
  *out++ = '.';
  out = putThreeDigits(putThreeDigits(out, rest / 1000), rest % 1000);
  while (out[-1] == '0') --out;
  return out;
}

void writeUsdMesh(UsdText &usd, const Mesh &mesh) {
  const MeshBounds bounds = boundsOf(mesh.points);
  const std::size_t mostDigits = mesh.points.size() <= 1000 ? 3 : kIndexMax;
  appendList(usd.beginAttribute("float3[] extent"), std::array{bounds.low, bounds.high}, kPointMax,
             writePoint);
  usd.endAttribute();
  appendCounts(usd.beginAttribute("int[] faceVertexCounts"), mesh.triangles.size());
  usd.endAttribute();
  appendList(usd.beginAttribute("int[] faceVertexIndices"), mesh.triangles,
             3 * (mostDigits + kSeparator.size()), writeTriangle);
  usd.endAttribute();
  appendNormals(usd.beginAttribute("normal3f[] normals"), mesh);
  usd.endAttribute({"interpolation = \"vertex\""});
  appendList(usd.beginAttribute("point3f[] points"), mesh.points, kPointMax, writePoint);
  usd.endAttribute();
  usd.line("uniform token subdivisionScheme = \"none\"");
}

}  // namespace vantorel
