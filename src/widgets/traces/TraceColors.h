#pragma once

#include <QColor>

class QPalette;

namespace talvesk {

/// The colours of the trace view, from those of the desktop. Told apart by lightness as well as by
/// hue, on light and dark palettes.
struct TraceColors {
  QColor background;
  QColor text;
  QColor faint;     ///< grid lines
  QColor wiggle;    ///< line of a trace
  QColor positive;  ///< filled lobes
  QColor negative;  ///< filled lobes of the other sign, in two colours
  QColor pick;
  QColor doubtful;  ///< error bar of a pick that is not sure
  QColor halo;      ///< around picks, so that they show on filled lobes
  QColor otherPicks;
  QColor computed;
  QColor reciprocal;
  QColor airWave;
  QColor ruler;
  QColor current;    ///< band of the current trace, translucent
  QColor selection;  ///< band of selected traces, translucent
  QColor focus;
};

/// \param twoColors positive and negative lobes have colours of their own
TraceColors traceColors(const QPalette& palette, bool twoColors);

}  // namespace talvesk
