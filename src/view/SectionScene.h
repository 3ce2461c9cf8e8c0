#pragma once

#include "base/Point2D.h"
#include "base/Status.h"
#include "model/ChiSquare.h"
#include "model/InversionRecord.h"
#include "model/Parameters.h"
#include "view/ColorPalette.h"
#include "view/ContourBands.h"
#include "view/ContourLines.h"
#include "view/KnownMarks.h"
#include "view/SectionAnnotations.h"
#include "view/SectionCertainty.h"

#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The quantity that colours the cells of a section.
enum class SectionQuantity {
  kVelocity,            ///< m/s
  kVerticalGradient,    ///< dv/dz over depth, 1/s, positive where velocity grows downward
  kLaplacian,           ///< second derivatives of velocity along the line and over depth, 1/(m s)
  kInformationDensity,  ///< of the last inversion, as it comes
  kCertainty,           ///< Certainty::spread() where rays pass, percent
};

/// How the values fill the section.
enum class SectionFill {
  kNone,    ///< not at all: surface, markers, rays and refractors only
  kCells,   ///< every cell in its colour
  kSmooth,  ///< blended from corner to corner
  kBands,   ///< in steps between the contour levels
};

/// A line of the layered interpretation, in pieces: it is broken where nothing is known of it.
struct SectionLine {
  std::string name;                          ///< for the legend, UTF-8; empty: by its number
  std::vector<std::vector<Point2D>> pieces;  ///< survey positions, two at least in each
};

/// Values of the cells that are of no quantity which a survey has, such as a comparison.
struct CellValues {
  Message name;                ///< as that of a quantity
  std::string unit;            ///< may be empty
  std::vector<double> values;  ///< per cell; not a number where there is none
};

struct SectionSceneOptions {
  SectionQuantity quantity = SectionQuantity::kVelocity;
  SectionFill fill = SectionFill::kCells;
  /// To colour and contour; default: niceRange() of what is drawn.
  std::optional<ValueRange> range;
  std::vector<double> contourValues;  ///< drawn in addition to the equally spaced ones
  int equallySpacedContours = 0;      ///< how many values divide the range into equal parts
  static constexpr std::size_t kMaxContours = parameters::kContours.limits.most;  ///< altogether
  bool contourLines = true;  ///< false: levels for the bands only
  bool rays = false;
  bool coverageLimit = true;
  bool known = true;                    ///< what is known of the ground from elsewhere
  bool annotations = true;              ///< what the user has drawn
  std::optional<CellValues> values;     ///< shown in place of the quantity
  std::vector<SectionLine> refractors;  ///< shown as they are
  bool fadeUncertain = false;           ///< the velocity section, where its certainty is known
  std::vector<double> bandVelocities;   ///< m/s, the first kMostDepthBands; the same
};

/// What a section shows, without a word on how it is drawn: every program and every output takes
/// its picture from here, so that screen, file and report agree. All positions are survey
/// positions: x along the line as surveyed, elevation positive upward, metres.
struct SectionScene {
  std::string title;
  SectionQuantity quantity = SectionQuantity::kVelocity;
  std::optional<CellValues> values;  ///< in place of the quantity
  SectionFill fill = SectionFill::kCells;
  SectionMesh mesh;                   ///< a cell counts as drawn when it has a value, too
  std::vector<double> cellValues;     ///< per cell, drawn or not; not a number where undefined
  std::vector<double> velocities;     ///< per cell, m/s, whatever the quantity
  std::vector<double> cornerValues;   ///< cornerMeans() of them
  ValueRange dataRange;               ///< of the drawn cells
  ValueRange range;                   ///< to colour with
  std::vector<double> contourLevels;  ///< ascending, each once
  std::vector<ContourLine> contours;
  ContourBands bands;  ///< between bandLevels(); filled for SectionFill::kBands only
  std::vector<std::vector<Point2D>> rays;  ///< of picks; empty when not asked for
  std::vector<Point2D> coverageLimit;      ///< a curve; empty when there is none
  std::vector<SectionLine> refractors;
  std::vector<double> fading;              ///< fadingOf() per cell; empty: none
  std::vector<DepthBand> depthBands;       ///< in the order of their velocities
  std::optional<CertaintyNote> certainty;  ///< where anything shown comes from it
  KnownMarks known;                        ///< empty when it is not asked for
  SectionAnnotations annotations;          ///< empty when they are not asked for
  std::vector<Point2D> surface;            ///< top line of the grid, left to right
  std::vector<Point2D> geophones;          ///< of all strings, ascending x, each place once
  std::vector<Point2D> shots;              ///< of all records, ascending x, each place once
  SectionMisfit misfit;                    ///< of an inverted section; count 0: none
  ChiSquare fit;                           ///< the same by the errors of the picks
  bool picksChanged = false;               ///< since the inversion, which knew others
  bool smoothed = false;                   ///< since the inversion
  double lastPassPercent = -1.0;  ///< relative RMS of the solver's last pass; negative: none

  /// Lower left and upper right of the drawn cells, geophones and shots; without a grid, of the
  /// refractors instead of the cells.
  Point2D lowerLeft() const;
  Point2D upperRight() const;

  /// The contour levels that lie inside the range: the edges of the bands.
  std::vector<double> bandLevels() const;
};

/// Whether its colours are those of Certainty::spread().
bool showsSpread(const SectionScene& scene);

/// Puts together what the section of a document shows. Fails, with `out` unchanged, when the
/// document has no grid, when no cell is drawn or has a value (unless the section is not filled),
/// and for a range that is empty or not finite.
Status buildSectionScene(const TomoDocument& document, const SectionSceneOptions& options,
                         SectionScene& out);

/// What there is to show before a survey has a grid: the layered profile under the geophones.
SectionScene sceneWithoutGrid(const TomoDocument& document, std::vector<SectionLine> refractors);

/// The colours that fill a section, and the bar beside it. How sure a section is has a palette of
/// its own.
ColorTable sectionColors(const SectionScene& scene, const ColorPalette& palette);

/// "Velocity", "Vertical gradient of velocity", ...
Message quantityName(SectionQuantity quantity);
/// "m/s", "1/s", ...; empty for a quantity without a unit.
std::string quantityUnit(SectionQuantity quantity);

/// How opaque each of `count` rays is drawn, 0 to 1: the more there are the lighter, so that they
/// do not hide the section.
double rayOpacity(std::size_t count);

/// The smallest range around `range` whose ends are multiples of 1, 2 or 5 times a power of ten, in
/// steps of about a thirtieth of it. Never empty: a single value gets a range around it.
ValueRange niceRange(const ValueRange& range);

}  // namespace talvesk
