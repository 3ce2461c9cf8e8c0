#pragma once

#include "model/Parameters.h"

namespace talvesk {

/// How the velocities of a section are smoothed. The numbers stand in projects.
enum class SmoothingType : int { kUniform = 0, kLinear = 1, kGaussian = 2, kRayBased = 3 };

inline constexpr auto kUsualSmoothing =
    static_cast<SmoothingType>(parameters::kSmoothingType.initial);

/// Any number but 1, 2 and 3 means uniform.
inline constexpr SmoothingType smoothingTypeOf(int type) {
  return type >= 1 && type <= 3 ? static_cast<SmoothingType>(type) : SmoothingType::kUniform;
}

/// Height over width of the smoothing window. Ground is layered: unless the user asks for a
/// symmetric window it is flatter than wide.
inline constexpr double verticalRatio(bool symmetric) {
  return symmetric ? 1.0 : parameters::kFlatness.value;
}

}  // namespace talvesk
