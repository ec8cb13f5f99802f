// Lengths, areas and scales as a plan says them.
#pragma once

#include <string>
#include <vector>

namespace vantorel::plan {

enum class Units { metric, feet };

/// The sheet's unit is a CSS pixel, 1/96 inch.
inline constexpr double kPixelsPerInch = 96;
inline constexpr double kMetresPerFoot = 0.3048;

/// "3.62", or to the nearest inch `11'-10"`.
std::string lengthText(double metres, Units units);
/// "14.9 m²" or "160 sq ft".
std::string areaText(double squareMetres, Units units);
/// `digits` after the decimal point, rounded half away from zero; any locale. At most 1e15 in size.
std::string fixedText(double value, int digits);

struct Scale {
  double pixelsPerMetre;
  std::string name;  ///< "1:50" or `1/4" = 1'-0"`
};

/// The largest usual scale at which so many metres fit into so many pixels.
Scale scaleFor(double metresWide, double metresHigh, double pixelsWide, double pixelsHigh, Units units);

/// A bar of a round length of at most `most` pixels: ends and the parts between, in metres, with their texts.
struct ScaleMark {
  double metres;
  std::string text;
};
std::vector<ScaleMark> scaleMarks(double pixelsPerMetre, double most, Units units);

}  // namespace vantorel::plan
