#pragma once

#include "view/FenceFrame.h"

#include <functional>

class QPainter;
class QPointF;
class QSize;
class QString;

namespace talvesk {

class ColorTable;

/// A text on a ground that lets it be read. \param middle of it
void paintFenceName(QPainter& painter, const QString& text, const QPointF& middle);

/// Which way north is, in the upper left corner.
void paintFenceNorth(QPainter& painter, const FenceCamera& camera);

/// The scale of colours at the right edge. \param picture its size, pixels
void paintFenceBar(QPainter& painter, const ColorTable& colors, const QSize& picture);

/// Numbers and names of the axes of a frame, beside it. \param toPicture where a place is seen
void paintFenceAxes(QPainter& painter, const FenceFrame& frame,
                    const std::function<QPointF(const FencePoint&)>& toPicture);

}  // namespace talvesk
