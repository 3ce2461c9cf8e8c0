#pragma once

#include "base/LengthUnit.h"

namespace talvesk::testing {

/// Lengths are shown in feet as long as it lives.
struct InFeet {
  InFeet() { setLengthUnit(LengthUnit::kFoot); }
  ~InFeet() { setLengthUnit(LengthUnit::kMetre); }
};

}  // namespace talvesk::testing
