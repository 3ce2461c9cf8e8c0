#include "figures/ShownScale.h"

#include "base/LengthUnit.h"

#include <QLatin1String>
#include <QRegularExpression>
#include <cmath>
#include <utility>

#include <qwt_plot.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

class Engine : public QwtLinearScaleEngine {
 public:
  Engine(const QwtPlot& plot, int axis) : mPlot(plot), mAxis(axis) {}

  QwtScaleDiv divideScale(double from, double to, int majors, int minors,
                          double step) const override {
    if (!namesFeet(mPlot.axisTitle(mAxis).text())) {
      return QwtLinearScaleEngine::divideScale(from, to, majors, minors, step);
    }
    QwtScaleDiv scale =
        QwtLinearScaleEngine::divideScale(shownLength(from), shownLength(to), majors, minors, step);
    // An end that is a mark stays one in spite of rounding.
    const double least = 1e-9 * std::abs(to - from);
    for (int kind = 0; kind < QwtScaleDiv::NTickTypes; ++kind) {
      QList<double> ticks = scale.ticks(kind);
      for (double& tick : ticks) {
        tick = metresOf(tick);
        for (const double end : {from, to}) {
          if (std::abs(tick - end) < least) tick = end;
        }
      }
      scale.setTicks(kind, ticks);
    }
    scale.setInterval(from, to);
    return scale;
  }

 private:
  const QwtPlot& mPlot;
  int mAxis;
};

class Draw : public QwtScaleDraw {
 public:
  Draw(const QwtPlot& plot, int axis, std::function<QString(double)> number)
      : mPlot(plot), mAxis(axis), mNumber(std::move(number)) {}

  QwtText label(double value) const override {
    const double span = std::abs(scaleDiv().range());
    const bool feet = namesFeet(mPlot.axisTitle(mAxis).text());
    // A tick at zero may come as the remainder of a division into ticks.
    if ((feet || mNumber) && std::abs(value) < 1e-9 * span) value = 0.0;
    if (feet) value = shownLength(value);
    return mNumber ? QwtText(mNumber(value)) : QwtScaleDraw::label(value);
  }

 private:
  const QwtPlot& mPlot;
  int mAxis;
  std::function<QString(double)> mNumber;
};

}  // namespace

bool namesFeet(const QString& title) {
  static const QRegularExpression kFeet(QStringLiteral("\\bft\\b"));
  return lengthUnit() == LengthUnit::kFoot && title.contains(kFeet);
}

void setShownScale(QwtPlot& plot, int axis, std::function<QString(double)> number) {
  plot.setAxisScaleEngine(axis, new Engine(plot, axis));
  plot.setAxisScaleDraw(axis, new Draw(plot, axis, std::move(number)));
}

}  // namespace talvesk
