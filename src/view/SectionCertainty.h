#pragma once

#include "base/Point2D.h"
#include "grid/GridGeometry.h"
#include "model/Certainty.h"
#include "view/ColorPalette.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// What a section shows of how sure it is. See docs/certainty.md.

namespace talvesk {

class TomoDocument;

/// Up to this spread (Certainty::spread(), percent) ground that is asked to fade keeps its colour,
inline constexpr double kSureSpread = 10.0;
/// and from this one on it has as good as none.
inline constexpr double kUnsureSpread = 40.0;

/// Certainty::spread() per cell; not a number where no ray of a member passes: what the members
/// agree in there is their models, not the picks.
std::vector<double> certaintySpreads(const Certainty& certainty);

/// How much of the paper shows through each cell, 0 to 0.9: none up to kSureSpread, all of it from
/// kUnsureSpread on and where no ray of a member passes. In steps, so that neighbours join.
std::vector<double> fadingOf(const Certainty& certainty);
inline constexpr int kFadingSteps = 16;
inline constexpr double kMostFading = 0.9;

/// Between which depths the members of an ensemble reach a velocity, survey positions.
struct DepthBand {
  double velocity = 0.0;                      ///< m/s
  std::vector<std::vector<Point2D>> shallow;  ///< 16 % of the members do above; pieces
  std::vector<std::vector<Point2D>> deep;     ///< 84 % do
  std::vector<std::vector<Point2D>> areas;    ///< outlines of the ground between, where both are
  bool empty() const { return shallow.empty() && deep.empty(); }
};

/// The depths at which a velocity is reached from above: those that were asked of the members, else
/// where the velocities that 84, 50 and 16 % of them stay below reach it, which is the same where
/// velocity grows with depth.
Quantiles depthsOfVelocity(const Certainty& certainty, const GridGeometry& geometry,
                           double velocity);

/// That band where rays of members pass at its depth. \param xOffset added to survey x to get grid
/// x, metres
DepthBand depthBandOf(const Certainty& certainty, const GridGeometry& geometry, double xOffset,
                      double velocity);

/// What must be said beside a certainty: of what it is, and whether it is that of the section.
struct CertaintyNote {
  int members = 0;
  int leftOut = 0;
  bool picksChanged = false;   ///< since it was found out
  double percentBeyond = 0.0;  ///< Certainty::percentBeyond() of the section
  bool fits() const { return percentBeyond <= Certainty::kMostBeyond; }
};

/// Of a document that has a certainty and its grid.
CertaintyNote certaintyNoteOf(const TomoDocument& document);

/// From pale for sure to dark for unsure. Its lightness falls all the way, so that it reads without
/// telling hues apart and in print, and no palette of velocities looks like it.
/// \param colors how many
ColorPalette certaintyPalette(int colors);

/// How many velocities have their band drawn at once.
inline constexpr std::size_t kMostDepthBands = 5;

/// Whether bands of these can be drawn: numbers above 0, at most kMostDepthBands.
bool areBandVelocities(const std::vector<double>& velocities);

/// Velocities that a user has typed, between blanks, commas or semicolons: ascending, each once;
/// none for an empty text. No value where one is no number above 0 or there are more than
/// kMostDepthBands.
std::optional<std::vector<double>> bandVelocitiesIn(const std::string& text);

}  // namespace talvesk
