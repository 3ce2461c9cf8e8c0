#pragma once

#include "base/Point2D.h"
#include "model/RefractionDataStructure.h"
#include "refraction/Profile.h"

#include <QColor>
#include <cstdint>
#include <vector>

class QString;
class QwtPlotItem;

namespace talvesk {

class TomoDocument;

/// The section of layers as it is drawn, positions in metres, elevations upward.
struct RefractionScene {
  std::vector<Point2D> surface;    ///< of the line, ascending x
  std::vector<Point2D> geophones;  ///< ascending x, each place once
  std::vector<Point2D> shots;      ///< ascending x
  std::vector<ProfileBoundary> boundaries;
  double v1 = 0.0;                 ///< m/s; not a number, or 0, when not known
  std::vector<double> velocities;  ///< median of each refractor, m/s, top down; 0 without one

  bool isEmpty() const { return boundaries.empty(); }
  /// Of everything drawn, boundaries included; equal points without anything.
  Point2D lowerLeft() const;
  Point2D upperRight() const;
};

RefractionScene refractionScene(const TomoDocument& document,
                                const refractionDataStructure::processingData& results);

/// The colour that stands for a layer (1 to 3) everywhere; grey for none. Told apart by those, too,
/// who see red and green alike.
QColor layerColor(std::uint32_t layer);
/// The same for lines and points on any paper: brighter where that is dark.
QColor layerColor(std::uint32_t layer, const QColor& paper);

/// The layers of a section on a plot with distance below and elevation at the left. The scene must
/// outlive the plot; changes show when the plot is painted next.
namespace refraction_items {

/// The ground from the surface, or the top of a refractor, down. \param name in the legend
QwtPlotItem* layer(const RefractionScene& scene, std::uint32_t layer, const QString& name);
QwtPlotItem* surface(const RefractionScene& scene, const QColor& color = Qt::black);

}  // namespace refraction_items
}  // namespace talvesk
