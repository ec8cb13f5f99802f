// How large a scene may be. Merging refuses what goes beyond, a plan leaves it out.
#pragma once

namespace vantorel {

/// Metres from the origin; beyond, neighbouring 32-bit floats are more than 1 mm apart.
inline constexpr float kSceneReach = 16384;
/// Metres of one element.
inline constexpr float kLongestElement = 1000;

}  // namespace vantorel
