#pragma once

#include "base/Point2D.h"
#include "figures/BoundaryLook.h"
#include "model/RefractionDataStructure.h"
#include "refraction/Profile.h"

#include <QColor>
#include <QLocale>
#include <cstdint>
#include <vector>

class QwtPlotItem;

namespace talvesk {

class TomoDocument;
struct ProfileErrors;

/// The section of layers as it is drawn, positions in metres, elevations upward.
struct RefractionScene {
  std::vector<Point2D> surface;    ///< of the line, ascending x
  std::vector<Point2D> geophones;  ///< ascending x, each place once
  std::vector<Point2D> shots;      ///< ascending x
  std::vector<ProfileBoundary> boundaries;
  std::vector<BoundaryLook> looks;     ///< of the boundaries
  double v1 = 0.0;                     ///< m/s; not a number, or 0, when not known
  double v1Error = 0.0;                ///< likewise
  bool v1IsMean = false;               ///< of a first layer that was fitted along the line
  bool v1Grows = false;                ///< and whose velocity grows with depth
  std::vector<double> velocities;      ///< median of each refractor, m/s, top down; 0 without one
  std::vector<double> velocityErrors;  ///< of these; 0, or not a number, when not known

  bool isEmpty() const { return boundaries.empty(); }
  bool hasUncarried() const;  ///< a line is dashed
  bool hasBands() const;
  /// Of everything drawn, boundaries included; equal points without anything.
  Point2D lowerLeft() const;
  Point2D upperRight() const;
};

/// \param interpretation as it was built for the document
/// \param errors of its profile; null for none
RefractionScene refractionScene(const TomoDocument& document,
                                const refractionDataStructure::Interpretation& interpretation,
                                const ProfileErrors* errors = nullptr);

/// The colour that stands for a layer (1 to 3) everywhere; grey for none. Told apart by those, too,
/// who see red and green alike.
QColor layerColor(std::uint32_t layer);
/// The same for lines and points on any paper: brighter where that is dark.
QColor layerColor(std::uint32_t layer, const QColor& paper);

/// The layers of a section on a plot with distance below and elevation at the left. The scene must
/// outlive the plot; changes show when the plot is painted next.
namespace refraction_items {

/// All of it: grounds, error bands and tops of refractors, with what a legend needs, from the scene
/// as it is now.
std::vector<QwtPlotItem*> layers(const RefractionScene& scene, const QLocale& locale);
QwtPlotItem* surface(const RefractionScene& scene, const QColor& color = Qt::black);

}  // namespace refraction_items
}  // namespace talvesk
