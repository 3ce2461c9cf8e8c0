#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigureNumbers.h"
#include "view/DepthProfile.h"

#include <QFont>
#include <QLocale>
#include <string>

class QPainter;
class QRectF;

namespace talvesk {

/// How a profile against depth is dressed.
struct DepthProfileDress {
  QFont font;
  QLocale locale = figureLocale();  ///< of numbers
};

/// Paints velocity, its gradient and how sure it is against depth, side by side with one axis of
/// depth; the scales are those of the whole section, so that places can be compared. Certainty is
/// left out where the section has none. White paper, whatever is below.
/// \param sheet in the units of the painter, logical pixels
void paintDepthProfile(QPainter& painter, const QRectF& sheet, const DepthProfile& profile,
                       const DepthProfiles& section, const DepthProfileDress& dress);

/// The same for who paints it himself. Fails where there is no section.
Status prepareDepthProfileFigure(const DepthProfile& profile, const DepthProfiles& section,
                                 double widthMm, double heightMm, FigureDrawing& drawing);

/// The same as a file of 180 x 140 mm, whose suffix decides between PNG, SVG and PDF.
Status writeDepthProfile(const std::string& path, const DepthProfile& profile,
                         const DepthProfiles& section);

}  // namespace talvesk
