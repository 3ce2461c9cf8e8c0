#pragma once

#include "base/Point2D.h"
#include "view/ColorPalette.h"

#include <vector>

class QPainter;
class QPainterPath;
class QPolygonF;
class QRectF;
class QTransform;
class QColor;
class QString;
class QwtPlotItem;
class QwtScaleMap;

namespace talvesk {

struct ContourStyle;
struct SectionScene;
enum class GeophoneMarkers;

/// What fills the plot of a section in a file, and the marks that several figures have in common.
/// `map` leads from survey positions (x, elevation) to the sheet, where lengths are points of 1/96
/// inch.
namespace section_items {

/// The drawn cells, each in the colour of its class and without an outline; or, where the scene is
/// filled so, the bands between its contour levels.
void paintCells(QPainter& painter, const SectionScene& scene, const ColorTable& colors,
                const QTransform& map);

/// The values blended between the corners of the cells, each in the colour of its class. A picture
/// of pixels, even in a vector file. \param canvas that it fills
void paintSmoothCells(QPainter& painter, const SectionScene& scene, const ColorTable& colors,
                      const QTransform& map, const QRectF& canvas);

/// The white of the paper over the drawn cells, as much of it as they fade. A picture of pixels in
/// a vector file. \param canvas that it fills
void paintFading(QPainter& painter, const SectionScene& scene, const QTransform& map,
                 const QRectF& canvas);

void paintRays(QPainter& painter, const SectionScene& scene, const QTransform& map);

/// The iso-lines without their values.
void paintContours(QPainter& painter, const SectionScene& scene, const ContourStyle& style,
                   const QTransform& map);

enum class Marker { kGeophone, kShot };

/// Symbols at points: a triangle that stands with its tip on a geophone, a star around a shot.
/// \param size of a geophone where neighbours leave room, points of 1/96 inch
QwtPlotItem* markers(const std::vector<Point2D>& points, const QString& name, Marker marker,
                     double size = 10.0);

// --- What the items share.

/// The symbol around, or for a geophone above, the origin. \param size points of 1/96 inch
QPainterPath symbol(Marker marker, double size);

/// The size that the user chose, points of 1/96 inch; 0 for none.
double markerSize(GeophoneMarkers markers);

/// As large as neighbours `spacing` apart leave room for, but half the chosen size at least.
double fittingMarkerSize(double size, double spacing);

/// Dress of a marker: its brush, and a pen that sets it off.
void setMarkerColors(QPainter& painter, Marker marker);

/// The colour of the coverage limit, and of refractor `index` from 0.
QColor coverageColor();
QColor refractorColor(std::size_t index);

/// Who paints over whom, the highest last.
enum Layer { kCellsLayer = 10, kRaysLayer = 20, kContoursLayer = 30, kMarkersLayer = 50 };

/// A line on the sheet without the points that no eye would miss.
QPolygonF thinned(const std::vector<Point2D>& points, const QwtScaleMap& xMap,
                  const QwtScaleMap& elevationMap);
QPolygonF thinned(const std::vector<Point2D>& points, const QTransform& map);

}  // namespace section_items
}  // namespace talvesk
