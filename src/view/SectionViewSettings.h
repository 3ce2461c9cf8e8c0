#pragma once

#include "model/Parameters.h"
#include "view/ColorPalette.h"
#include "view/SectionScene.h"

#include <vector>

namespace talvesk {

/// How many round values a list of contours gets at most.
inline constexpr int kMostRoundContours = 15;

/// What the user chose about contours. Each quantity has a list of values of its own, for one of
/// velocities says nothing about a gradient; all else is common to them.
struct ContourSettings {
  bool customized = false;  ///< the lists of values instead of equally spaced ones
  int numberOfValues = parameters::kContours.initial;  ///< of the equally spaced ones, 1 or more
  std::vector<double> customValues;     ///< velocities, m/s; ascending, as the other two
  std::vector<double> gradientValues;   ///< vertical gradients of velocity, 1/s
  std::vector<double> laplacianValues;  ///< Laplacians of velocity, 1/(m s)
  int labelEvery = parameters::kLabelEvery.initial;  ///< every how many lines carry a label; 0 none
  int labelSize = parameters::kLabelSize.initial;    ///< points
  RgbColor color;
  bool onProfile = false;           ///< lines over the velocity section
  bool filled = false;              ///< bands between the values instead of cells
  bool onLaplacian = false;         ///< lines over the Laplacian
  bool onVerticalGradient = false;  ///< lines over the vertical gradient

  bool operator==(const ContourSettings& other) const;
  bool operator!=(const ContourSettings& other) const { return !(*this == other); }
};

/// The quantity whose contours are meant where one is shown: information density and uncertainty
/// have none, and who asks for contours there means those of velocity.
SectionQuantity contouredQuantity(SectionQuantity shown);

/// Which list holds the custom values of a quantity: `settings.*contourList(quantity)`.
std::vector<double> ContourSettings::*contourList(SectionQuantity quantity);

/// The values of a quantity to contour: the n that divide the range into n + 1 equal parts, or the
/// custom ones that lie within the range, its ends included; ascending, each once. At most
/// SectionSceneOptions::kMaxContours; none for a range that is empty or not finite.
std::vector<double> contourValues(const ContourSettings& settings, SectionQuantity quantity,
                                  const ValueRange& range);

/// Whether any of the switches draws contours of that quantity, lines or bands.
bool showsContours(const ContourSettings& settings, SectionQuantity quantity);

/// Whether any of the switches is on, for whatever quantity.
bool showsAnyContours(const ContourSettings& settings);

/// What to propose to who asks for contours of a quantity: where it has none, those switched on,
/// the first time by a list; and round values as that list where none of its values lies in the
/// range.
ContourSettings proposedContours(ContourSettings settings, SectionQuantity quantity,
                                 const ValueRange& range);

/// Size of the geophone markers on the section.
enum class GeophoneMarkers { kNone, kSmall, kNormal, kLarge };

/// What the user chose about the section. Saved with the project.
struct SectionViewSettings {
  bool profile = true;  ///< the section itself; false leaves geophones, rays and refractors
  bool smooth = false;  ///< smooth view instead of cells
  SectionQuantity quantity = SectionQuantity::kVelocity;
  bool rays = false;
  bool refraction = false;  ///< the layered profile over the section
  bool known = true;        ///< what is known of the ground from elsewhere
  bool annotations = true;  ///< marked isolines and what else the user has drawn
  bool scalarBar = true;
  bool title = true;
  bool gridLines = false;
  GeophoneMarkers geophones = GeophoneMarkers::kNormal;
  double verticalExaggeration = parameters::kExaggeration.initial;
  bool fadeUncertain = false;          ///< the velocity section, where it is not sure
  std::vector<double> bandVelocities;  ///< m/s, whose band of depths is drawn; ascending
  bool lockRange = false;              ///< the palette's range stays when another line is shown
  ContourSettings contours;

  bool operator==(const SectionViewSettings& other) const;
};

/// The scene that these settings ask for. The palette's scale is the range of velocities, unless it
/// is empty or upside down; other quantities take their own range.
SectionSceneOptions sceneOptions(const SectionViewSettings& settings, const ColorPalette& palette);

/// Puts together what the section of a document shows with these settings. Fails as
/// buildSectionScene() does, with `out` unchanged, but needs no grid to show the layered profile.
/// \param refractors the layered profile, shown when the settings ask for it
Status buildSectionScene(const TomoDocument& document, const SectionViewSettings& settings,
                         const ColorPalette& palette, const std::vector<SectionLine>& refractors,
                         SectionScene& out);

}  // namespace talvesk
