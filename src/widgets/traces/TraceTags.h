#pragma once

#include "widgets/traces/TraceColors.h"

#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

namespace talvesk {

/// A number as the user writes it, without separators of groups.
QString screenNumber(double value, int decimals);

/// The exponent of a gain, with as many decimals as it has, two at most.
QString exponentText(double exponent);

/// Words on a plate, kept within bounds. \param corner upper left where it fits
void paintTag(QPainter& painter, const TraceColors& colors, const QPointF& corner,
              const QString& text, const QRectF& bounds);

}  // namespace talvesk
