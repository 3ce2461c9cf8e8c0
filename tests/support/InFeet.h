#pragma once

#include "base/LengthUnit.h"

namespace talvesk::testing {

/// Feet are shown as long as it lives.
class InFeet {
 public:
  InFeet() { setLengthUnit(LengthUnit::kFoot); }
  ~InFeet() { setLengthUnit(LengthUnit::kMetre); }
  InFeet(const InFeet&) = delete;
  InFeet& operator=(const InFeet&) = delete;
};

}  // namespace talvesk::testing
