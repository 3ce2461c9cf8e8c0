#pragma once

#include "base/Status.h"
#include "view/SectionScene.h"

#include <vector>

namespace talvesk {

class TomoDocument;
struct ColorPalette;
struct SectionViewSettings;

/// What goes into drawings and maps of a survey beside its ground, geophones and shots.
struct DrawingOptions {
  std::vector<double> isovalues;        ///< velocities that become lines, m/s
  std::vector<SectionLine> refractors;  ///< of the layered profile, with their names
};

/// The lines of a survey: isolines of velocity through the drawn cells, and what else a section
/// shows, without what is known of the ground from elsewhere. Without a grid the refractors under
/// the geophones. Points that are no numbers are left out. Fails as buildSectionScene() does, and
/// for a survey with neither a grid nor geophones.
Status buildDrawing(const TomoDocument& document, const DrawingOptions& options, SectionScene& out);

/// Where along the line an isovalue is reached, and how deep.
struct IsovalueDepth {
  double x = 0.0;         ///< survey abscissa of the middle of a column of the grid, metres
  double surface = 0.0;   ///< elevation of the surface there, metres
  double velocity = 0.0;  ///< m/s
  double depth = 0.0;     ///< of its shallowest line below the surface, metres
};

/// Of all isolines of a drawing, ascending by velocity, then along the line; columns that a line
/// does not cross are left out.
std::vector<IsovalueDepth> isovalueDepths(const SectionScene& drawing);

/// The isovalues to begin with: the contours of velocity that the settings show, else round values
/// over the velocities of the section. None without a section.
std::vector<double> proposedIsovalues(const TomoDocument& document,
                                      const SectionViewSettings& settings,
                                      const ColorPalette& palette);

}  // namespace talvesk
