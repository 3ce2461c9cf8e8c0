#pragma once

#include "model/Parameters.h"

namespace talvesk::parameters {

// Rows of the table for how the traces of a shot are drawn.

inline constexpr Parameter<double> kReduction = {
    "reduce",
    1500.0,
    {10.0, 100000.0, 0},
    "m/s",
    "Velocity of reduced time: every trace is drawn earlier by its offset over it"};
inline constexpr Parameter<double> kTimeGain = {
    "time-gain",
    1.0,
    {0.0, 3.0, 2},
    "",
    "Exponent n of the gain t^n that wiggles are drawn with, 0 for none"};

}  // namespace talvesk::parameters
