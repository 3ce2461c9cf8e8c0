#pragma once

#include "base/Point2D.h"
#include "view/ColorPalette.h"

#include <vector>

class QPainter;
class QPainterPath;
class QPolygonF;
class QTransform;
class QColor;
class QString;
class QwtPlotItem;
class QwtScaleMap;

namespace talvesk {

struct ContourStyle;
struct SectionScene;
enum class GeophoneMarkers;

/// The layers of a section on a plot with distance below and elevation at the left. The plot that
/// they are attached to owns them; scene and colours must outlive it.
namespace section_items {

/// The drawn cells, each in the colour of its class and without an outline; or, where the scene is
/// filled so, the bands between its contour levels.
QwtPlotItem* cells(const SectionScene& scene, const ColorTable& colors);

/// The values blended between the corners of the cells, each in the colour of its class. A picture
/// of pixels, even in a vector file.
QwtPlotItem* smoothCells(const SectionScene& scene, const ColorTable& colors);

/// Lines over the canvas at the numbers of both axes.
QwtPlotItem* gridLines();

/// The iso-lines with their values written into them.
QwtPlotItem* contours(const SectionScene& scene, const ContourStyle& style);

struct LineStyle {
  double width = 1.0;  ///< points of 1/96 inch
  bool dashed = false;
};

/// Polylines of one colour, with `name` in the legend. Points that lie on the line between their
/// neighbours, as far as an eye can see, are left out.
QwtPlotItem* lines(const std::vector<std::vector<Point2D>>& polylines, const QString& name,
                   const QColor& color, const LineStyle& style);

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
