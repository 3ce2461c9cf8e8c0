#include "widgets/traces/TraceColors.h"

#include <QPalette>

namespace talvesk {
namespace {

QColor mixed(const QColor& a, const QColor& b, double partOfA) {
  const auto mix = [partOfA](int x, int y) {
    return static_cast<int>(partOfA * x + (1.0 - partOfA) * y);
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QColor translucent(QColor color, double alpha) {
  color.setAlphaF(alpha);
  return color;
}

}  // namespace

TraceColors traceColors(const QPalette& palette, bool twoColors) {
  TraceColors colors;
  colors.background = palette.color(QPalette::Base);
  colors.text = palette.color(QPalette::Text);
  const bool dark = colors.background.lightness() < 128;
  const auto choose = [dark](const char* onLight, const char* onDark) {
    return QColor(QLatin1String(dark ? onDark : onLight));
  };
  colors.faint = mixed(colors.text, colors.background, 0.16);
  colors.wiggle = mixed(colors.text, colors.background, 0.85);
  colors.positive =
      twoColors ? choose("#2f6fc4", "#5b9bef") : mixed(colors.text, colors.background, 0.62);
  colors.negative = choose("#e0952b", "#d98a26");
  colors.pick = choose("#e0003c", "#ff5c7c");
  colors.doubtful = choose("#9a5b00", "#ffc24d");
  colors.halo = colors.background;
  colors.otherPicks = choose("#7a3fbf", "#c3a0ff");
  colors.computed = choose("#00853e", "#4fdc8c");
  colors.reciprocal = choose("#8f5600", "#ffd75e");
  colors.airWave = choose("#0077a8", "#5ccbf2");
  colors.ruler = choose("#a04400", "#ffb066");
  const QColor highlight = palette.color(QPalette::Highlight);
  colors.current = translucent(highlight, dark ? 0.30 : 0.16);
  colors.selection = translucent(highlight, dark ? 0.22 : 0.12);
  colors.focus = highlight;
  return colors;
}

}  // namespace talvesk
