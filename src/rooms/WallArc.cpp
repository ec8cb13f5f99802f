#include "rooms/WallArc.h"

#include "rooms/WallDepth.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace vantorel {
namespace {

constexpr double kPi = 3.14159265358979323846;

struct Bearing {
  double cosine, sine;
};

Bearing twice(const Bearing &d) { return {d.cosine * d.cosine - d.sine * d.sine, 2 * d.sine * d.cosine}; }

/// By their series, because no two C libraries agree on the last digit.
Bearing bearingOf(double angle) {
  int halvings = 0;
  for (; std::abs(angle) > 0.125; ++halvings) angle /= 2;
  const double square = angle * angle;
  double cosine = 1, sine = 1;
  for (int k = 12; k > 0; k -= 2) {
    cosine = 1 - cosine * square / (k * (k - 1));
    sine = 1 - sine * square / (k * (k + 1));
  }
  Bearing direction{cosine, sine * angle};
  for (; halvings > 0; --halvings) direction = twice(direction);
  return direction;
}

/// Between -pi and pi; 0 for no direction at all.
double angleOf(double cosine, double sine) {
  const double length = std::sqrt(cosine * cosine + sine * sine);
  if (length == 0) return 0;
  if (cosine <= -length) return kPi;
  double tangent = sine / (length + cosine);  // of half the angle
  double factor = 2;
  for (; std::abs(tangent) > 0.125; factor *= 2) tangent /= 1 + std::sqrt(1 + tangent * tangent);
  const double square = tangent * tangent;
  double series = 0;
  for (int k = 13; k > 0; k -= 2) series = 1.0 / k - square * series;
  return factor * tangent * series;
}

double radians(const Curve::Angle &angle) {
  const double value = (angle.value * angle.coefficient + angle.constant) * (kPi / 180);
  if (!std::isfinite(value)) throw std::runtime_error("an angle of the room is not a finite number");
  return value;
}

}  // namespace

std::optional<WallArc> WallArc::of(const Curve &curve) {
  constexpr double kLeastRadius = 0.35, kMostReach = 64, kMostSweep = 350 * kPi / 180, kMostAngle = 100;
  const double from = radians(curve.startAngle), to = radians(curve.endAngle);
  const std::array<float, 2> center = curve.center.value_or(std::array<float, 2>{});
  WallArc arc;
  arc.radius_ = curve.radius;
  arc.centerX_ = center[0];
  arc.centerZ_ = center[1];
  const double reach = arc.radius_ + std::abs(arc.centerX_) + std::abs(arc.centerZ_);
  if (!std::isfinite(reach)) throw std::runtime_error("a curve of the room is not finite");
  const double sweep = std::abs(to - from);
  if (arc.radius_ < kLeastRadius || reach > kMostReach || sweep > kMostSweep || std::abs(from) > kMostAngle)
    return std::nullopt;
  const bool roomInside = bearingOf((from + to) / 2).sine < 0;
  arc.start_ = roomInside ? std::min(from, to) : std::max(from, to);
  arc.sweep_ = roomInside ? sweep : -sweep;
  arc.length_ = toLattice(arc.radius_ * sweep);
  if (arc.length_ < kLeastSize || arc.length_ == kFarthest) return std::nullopt;
  return arc;
}

std::vector<Lattice> WallArc::joints() const {
  constexpr double kChordError = 0.001;
  const double stepAngle = std::sqrt(8 * kChordError / (radius_ + kWallDepth));
  const Lattice count = static_cast<Lattice>(std::abs(sweep_) / stepAngle) + 1;
  std::vector<Lattice> joints;
  for (Lattice i = 0; i <= count; ++i) joints.push_back(length_ * i / count);
  return joints;
}

double WallArc::along(double x, double z) const {
  const Bearing middle = bearingOf(start_ + sweep_ / 2);
  const double outX = x - centerX_, outZ = z - centerZ_;
  const double turn =
      angleOf(outX * middle.cosine + outZ * middle.sine, outZ * middle.cosine - outX * middle.sine);
  return (std::abs(sweep_) / 2 + (sweep_ < 0 ? -turn : turn)) * radius_;
}

Column WallArc::columnAt(Lattice along, double thickness) const {
  const double share = static_cast<double>(along) / static_cast<double>(length_);
  const Bearing out = bearingOf(start_ + sweep_ * share);
  const auto place = [](double center, double distance) {
    return static_cast<std::int32_t>(nearest((center + distance) * 1e6));
  };
  const double behind = radius_ + (sweep_ < 0 ? -thickness : thickness);
  return {place(centerX_, radius_ * out.cosine), place(centerZ_, radius_ * out.sine),
          place(centerX_, behind * out.cosine), place(centerZ_, behind * out.sine)};
}

}  // namespace vantorel
