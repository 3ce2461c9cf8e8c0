#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace talvesk {

/// Something the user should know about an interpretation.
struct RefractionWarning {
  enum class Kind {
    // Those of the method, each shown in a box of its own.
    kNoShotPair,        ///< of the first refractor: nothing is built
    kVelocityNegative,  ///< velocities became one constant
    kStrongVariation,   ///< velocities became one constant
    kTgNegative,        ///< depths became 0 somewhere
    // What keeps a layer from being complete.
    kNoShotPairBelow,  ///< of the second refractor
    kFewForward,       ///< fewer than two usable picks of the shot at the start
    kFewReverse,       ///< of the shot at the end
    kFewCommon,        ///< curves with fewer than two receivers in common
    kNoFirstLayer,     ///< no branch of layer 1, so no depths
    kBadFirstLayer,    ///< its velocity is none of any ground, so no depths
    kBadVelocity,      ///< that at `count` of `total` receivers is none of any ground
    kSlowRefractor,    ///< depths are not numbers at `count` of `total` receivers
    kOutsideUpper,     ///< `count` of `total` receivers lie beyond the refractor above
    kTooDeep           ///< at `count` of `total` receivers it is deeper than the line is long
  };

  Kind kind = Kind::kNoShotPair;
  std::uint32_t layer = 0;  ///< 1 to 3
  std::size_t count = 0;
  std::size_t total = 0;

  bool ofTheMethod() const { return kind <= Kind::kTgNegative; }
  std::string text() const;  ///< English, says which layer and why
};

}  // namespace talvesk
