#pragma once

#include "model/Parameters.h"

namespace talvesk::parameters {

// Rows of the table for the filters that work over several traces or against hum.

inline constexpr Parameter<double> kNotch = {
    "notch", 50.0, {1.0, 1000.0, 2}, "Hz", "Frequency of the power line whose hum is taken out"};
inline constexpr Parameter<int> kNotchHarmonics = {
    "notch-harmonics",
    5,
    {1, 10},
    "",
    "Multiples that are taken out, the frequency itself among them"};
inline constexpr Parameter<double> kNotchQuality = {
    "notch-quality", 50.0, {5.0, 500.0, 1}, "", "Frequency over the width of every notch"};
inline constexpr Parameter<double> kSlowest = {
    "slowest", 600.0, {1.0, 100000.0, 0}, "m/s", "Least apparent velocity of the velocity filter"};
inline constexpr Parameter<double> kFastest = {
    "fastest",
    0.0,
    {0.0, 100000.0, 0},
    "m/s",
    "Greatest apparent velocity of the velocity filter, 0 for no limit"};
inline constexpr Parameter<double> kVelocityTaper = {
    "velocity-taper",
    20.0,
    {0.0, 90.0, 0},
    "percent",
    "How gradually the velocity filter sets in beside its range"};

}  // namespace talvesk::parameters
