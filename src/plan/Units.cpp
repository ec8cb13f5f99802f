#include "plan/Units.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace vantorel::plan {
namespace {

constexpr double kSquareFeetPerSquareMetre = 1 / (kMetresPerFoot * kMetresPerFoot);
constexpr double kPixelsPerMetreOfPaper = kPixelsPerInch / 0.0254;

/// How many times smaller than life.
struct UsualScale {
  double factor;
  std::string name;
};

std::vector<UsualScale> usualScales(Units units) {
  std::vector<UsualScale> scales;
  if (units == Units::feet)
    for (const auto &[factor, inches] : {std::pair{24.0, "1/2"},
                                         {32, "3/8"},
                                         {48, "1/4"},
                                         {64, "3/16"},
                                         {96, "1/8"},
                                         {192, "1/16"},
                                         {384, "1/32"}})
      scales.push_back({factor, inches + std::string(R"(" = 1'-0")")});
  else
    for (const double factor : {20, 25, 50, 75, 100, 150, 200, 250})
      scales.push_back({factor, "1:" + fixedText(factor, 0)});
  for (double power = 500; power < 1e9; power *= 10)
    for (const double factor : {power, 2 * power, 4 * power})
      scales.push_back({factor, "1:" + fixedText(factor, 0)});
  return scales;
}

}  // namespace

std::string fixedText(double value, int digits) {
  constexpr double kPowers[] = {1, 10, 100, 1000};
  const double scaled = std::round(std::clamp(value, -1e15, 1e15) * kPowers[digits]);
  if (!(scaled < 0 || scaled > 0)) return "0";
  std::string text = std::to_string(static_cast<std::int64_t>(std::abs(scaled)));
  const auto places = static_cast<std::size_t>(digits);
  if (text.size() <= places) text.insert(0, places + 1 - text.size(), '0');
  if (places > 0) text.insert(text.size() - places, ".");
  return (scaled < 0 ? "-" : "") + text;
}

std::string lengthText(double metres, Units units) {
  if (units == Units::metric) return fixedText(metres, 2);
  const auto inches = static_cast<std::int64_t>(std::round(metres / kMetresPerFoot * 12));
  const std::string rest = std::to_string(inches % 12) + '"';
  return inches < 12 ? rest : std::to_string(inches / 12) + "'-" + rest;
}

std::string areaText(double squareMetres, Units units) {
  if (units == Units::feet) return fixedText(squareMetres * kSquareFeetPerSquareMetre, 0) + " sq ft";
  return fixedText(squareMetres, 1) + " m²";
}

Scale scaleFor(double metresWide, double metresHigh, double pixelsWide, double pixelsHigh, Units units) {
  const std::vector<UsualScale> scales = usualScales(units);
  const auto fits = [&](const UsualScale &scale) {
    const double pixels = kPixelsPerMetreOfPaper / scale.factor;
    return metresWide * pixels <= pixelsWide && metresHigh * pixels <= pixelsHigh;
  };
  const auto found = std::ranges::find_if(scales, fits);
  const UsualScale &scale = found == scales.end() ? scales.back() : *found;
  return {kPixelsPerMetreOfPaper / scale.factor, scale.name};
}

std::vector<ScaleMark> scaleMarks(double pixelsPerMetre, double most, Units units) {
  const double unit = units == Units::feet ? kMetresPerFoot : 1;
  const std::string symbol = units == Units::feet ? " ft" : " m";
  double total = 1;
  for (double power = 1; power < 1e9; power *= 10)
    for (const double count : {power, 2 * power, 5 * power})
      if (count * unit * pixelsPerMetre <= most) total = count;
  std::vector<ScaleMark> marks{{0, "0"}};
  if (total > 1) marks.push_back({total / 2 * unit, fixedText(total / 2, std::fmod(total, 2) == 0 ? 0 : 1)});
  marks.push_back({total * unit, fixedText(total, 0) + symbol});
  return marks;
}

}  // namespace vantorel::plan
