#pragma once

#include <array>
#include <cstddef>

namespace talvesk {

/// A number that users choose: where it starts, how far it goes and what it is called. The records
/// of the engine, dialogs, the options of talvesk-batch with its manual page and the checks of
/// files take it from here; tests/app/guide.py holds the user guide against it.
template <typename Number>
struct Parameter {
  struct Limits {
    Number least;
    Number most;
    int decimals = 0;  ///< that a field shows
  };
  const char* key;   ///< the option of talvesk-batch is "--" + key; the guide names it so, too
  Number initial;    ///< unless the user says otherwise
  Limits limits;     ///< within which users choose
  const char* unit;  ///< in words; empty without one
  const char* help;  ///< what it is, in English, without a point at its end
};

/// A number that users are told of and cannot change.
struct FixedNumber {
  const char* key;
  double value;
};

/// One of several words.
template <std::size_t kCount>
struct Choice {
  const char* key;
  int initial;  ///< index of a word
  std::array<const char*, kCount> words;
};

/// The rows of the table: nothing but plain numbers and texts stands in them.
namespace parameters {

// The grid. Where a depth and a cell size start depends on the line.
inline constexpr Parameter<double> kCellSize = {
    "cell-size", 0.5, {0.1, 1e6, 3}, "metres", "Side of the square cells"};
inline constexpr Parameter<double> kDepth = {
    "depth", 0.0, {0.0, 1e6, 3}, "metres", "Depth of the grid below the surface"};
inline constexpr Parameter<int> kNodes = {"nodes", 6, {6, 1000}, "", "Nodes per cell side"};
inline constexpr FixedNumber kManyNodes = {"many-nodes", 15};  ///< beyond them a dialog warns

// A layer of the starting model.
inline constexpr Parameter<double> kLayerDepth = {
    "layer-depth", 0.0, {0.0, 999.99, 2}, "metres", "Depth of a layer's top or bottom"};
inline constexpr Parameter<double> kLayerVelocity = {
    "layer-velocity", 0.0, {1.0, 999999.0}, "m/s", "Velocity at a layer's top or bottom"};

/// Of layers that are graded into the grid, by the layer dialog or from a layered profile.
inline constexpr Parameter<double> kGrading = {
    "grading",
    2.0,
    {0.01, 1000.0, 2},
    "metres",
    "Thickness over which the jump from layer to layer is spread"};

// An inversion.
inline constexpr Parameter<int> kIterations = {
    "iterations", 10, {1, 999999999}, "", "External iterations, each with new rays"};
inline constexpr Parameter<int> kSolverIterations = {
    "solver-iterations",
    20,
    {1, 999999999},
    "",
    "Solver iterations on the rays of one external iteration"};
inline constexpr Parameter<int> kSmoothing = {
    "smoothing", 5, {1, 999999999}, "cells", "Smoothing radius"};
/// The words are in the order of SmoothingType.
inline constexpr Choice<4> kSmoothingType = {
    "smoothing-type", 3, {"uniform", "linear", "gaussian", "ray"}};
/// Height over width of a smoothing that is not symmetric.
inline constexpr FixedNumber kFlatness = {"flatness", 0.7};
inline constexpr Parameter<double> kMinVelocity = {
    "min-velocity", 250.0, {1.0, 999999999.0}, "m/s", "Least velocity of a cell"};
inline constexpr Parameter<double> kMaxVelocity = {
    "max-velocity", 3500.0, {1.0, 999999999.0}, "m/s", "Greatest velocity of a cell"};

// Errors of picks that state none.
inline constexpr Parameter<double> kErrorFloor = {
    "error-floor", 0.5, {0.01, 1000.0, 2}, "ms", "Least error of a pick"};
inline constexpr Parameter<double> kErrorShare = {
    "error-share", 3.0, {0.0, 100.0, 1}, "percent", "Error of a pick as a share of its time"};

// A resolution test.
inline constexpr Parameter<double> kPatternSize = {
    "pattern-size", 5.0, {0.1, 1e6, 2}, "metres", "Size of a pattern's squares or layers"};
inline constexpr Parameter<double> kPatternStrength = {
    "pattern-strength", 10.0, {0.1, 90.0, 1}, "percent", "Strength of a pattern in the velocity"};
// How sure a section is.
inline constexpr Parameter<int> kMembers = {
    "certainty", 24, {2, 1000}, "", "Sections that are compared to see how sure the section is"};
inline constexpr Parameter<int> kSeed = {
    "seed", 1, {0, 999999999}, "", "Number that the errors of the compared sections come from"};

// Filters of traces.
inline constexpr Parameter<double> kLowPass = {
    "low", 150.0, {1e-6, 1e6, 2}, "Hz", "Low-pass: keep what is below this frequency"};
inline constexpr Parameter<double> kHighPass = {
    "high", 10.0, {1e-6, 1e6, 2}, "Hz", "High-pass: keep what is above this frequency"};
inline constexpr Parameter<int> kFilterOrder = {
    "order", 1, {1, 100}, "", "Order of the Butterworth filter"};
/// Where the dialog starts, whose users see the spectrum.
inline constexpr FixedNumber kProposedOrder = {"proposed-order", 2};
/// What the noise reduction keeps, Hz.
inline constexpr FixedNumber kHushelLow = {"hushel-low", 85.0};
inline constexpr FixedNumber kHushelHigh = {"hushel-high", 14.0};

// Apparent velocities of the picks that the screening keeps, m/s.
inline constexpr FixedNumber kSlowestPick = {"slowest-pick", 200.0};
inline constexpr FixedNumber kFastestPick = {"fastest-pick", 4500.0};

// The picker of whole gathers.
inline constexpr Parameter<double> kSlowestJoint = {
    "slowest", 140.0, {10.0, 20000.0}, "m/s", "Least apparent velocity of a first arrival"};
inline constexpr Parameter<double> kFastestJoint = {
    "fastest", 7000.0, {10.0, 20000.0}, "m/s", "Greatest apparent velocity of a first arrival"};
inline constexpr Parameter<double> kWorstPick = {
    "worst-error", 6.0, {0.5, 1000.0, 1}, "ms", "Error beyond which a pick is left out"};
/// Up to this a pick is good, ms.
inline constexpr FixedNumber kGoodPick = {"good-pick", 2.5};

/// How sure a proposal to mend a recording must be, to be carried out unless the user says
/// otherwise.
inline constexpr Parameter<double> kSureMend = {
    "sure", 80.0, {0.0, 100.0}, "percent", "How sure a proposal must be to be carried out"};

// The layered interpretation.
inline constexpr Parameter<int> kXY = {
    "xy",
    0,
    {-4, 4},
    "whole metres",
    "Half the distance between the points at which forward and reverse arrivals are taken"};
inline constexpr Parameter<int> kBounds = {
    "bounds", 100, {2, 1000}, "", "Interpretations of moved picks that error bands come from"};

// Velocities of a layer that are taken for real, m/s.
inline constexpr FixedNumber kSlowestLayer = {"slowest-layer", 50.0};
inline constexpr FixedNumber kFastestLayer = {"fastest-layer", 12000.0};

// The look of a section.
inline constexpr Parameter<int> kContours = {
    "contours", 10, {1, 1000}, "", "Number of contour lines of velocity"};
inline constexpr Parameter<int> kLabelEvery = {
    "label-every", 1, {0, 1000}, "", "Every how many contour lines one carries its value"};
inline constexpr Parameter<int> kLabelSize = {
    "label-size", 12, {4, 96}, "points", "Size of the values at contour lines"};
inline constexpr Parameter<int> kColors = {
    "colours", 64, {1, 4096}, "", "Colours of a palette that a section is shown in"};
inline constexpr Parameter<double> kExaggeration = {
    "exaggeration", 1.0, {0.01, 100.0, 2}, "", "Height of a metre over its width"};

}  // namespace parameters
}  // namespace talvesk
