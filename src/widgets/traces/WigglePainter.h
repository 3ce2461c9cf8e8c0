#pragma once

#include "widgets/traces/ShotTraces.h"
#include "widgets/traces/TraceColors.h"
#include "widgets/traces/TraceLayout.h"
#include "widgets/traces/TraceMapping.h"
#include "widgets/traces/TraceViewOptions.h"

#include <QImage>
#include <QSizeF>

namespace talvesk {

/// All that wiggles are drawn from.
struct WiggleScene {
  const ShotTraces& traces;
  const TraceLayout& layout;
  const TraceViewOptions& options;
  const TraceColors& colors;
};

/// An image for wiggles, filled. \param size pixels of the widget \param ratio device pixels in
/// each \return null for an empty size
QImage wiggleCanvas(const QSizeF& size, double ratio, const QColor& background);

/// Draws the wiggles over a canvas that covers the mapping's plot. Each trace is reduced to its
/// extremes per row of device pixels, so no spike is lost however long the record, and the time
/// taken goes with the samples in sight and the pixels covered.
void paintWiggles(const WiggleScene& scene, const TraceMapping& mapping, QImage& canvas);

/// Deflection of a full-scale sample at gain 1, in trace spacings.
inline constexpr double kFullScale = 0.9;

}  // namespace talvesk
