#pragma once

#include "model/Annotations.h"

#include <QColor>

class QPainter;
class QPointF;
class QPolygonF;
class QRectF;

namespace talvesk {

/// Fills a polygon with the signs of a lithology: dots for sand, pebbles for gravel, dashes for
/// clay, dashes and dots for silt, crosses for rock, strokes crossed for fill, waves for water.
/// Only whole signs inside the polygon are painted, so that no clipping is needed, which not every
/// file format has. \param canvas that is seen; nothing is painted beyond it \param origin a point
/// of the sheet that the signs keep their place to
void paintLithology(QPainter& painter, const QPolygonF& area, Lithology pattern,
                    const QColor& color, const QRectF& canvas, const QPointF& origin);

}  // namespace talvesk
