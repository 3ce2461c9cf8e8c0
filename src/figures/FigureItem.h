#pragma once

#include <functional>

class QColor;
class QPainter;
class QRectF;
class QSizeF;
class QString;
class QwtPlotItem;
class QwtScaleMap;

namespace talvesk {

struct RgbColor;

/// Paints a layer of a plot; the maps lead from values to the sheet. The painter's state is
/// restored afterwards.
using PaintItem = std::function<void(QPainter&, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                                     const QRectF& canvas)>;
/// Paints the little picture in the legend.
using PaintIcon = std::function<void(QPainter&, const QSizeF&)>;

/// A layer of a plot, made of functions. \param name in the legend; an item without a name is not
/// in it \param z who paints over whom, the highest last
QwtPlotItem* figureItem(const QString& name, double z, PaintItem paint, PaintIcon icon = {});

QColor toColor(const RgbColor& color);

/// Whether a painter writes shapes into a file, where each costs bytes, and not pixels.
bool paintsVectors(const QPainter& painter);

}  // namespace talvesk
