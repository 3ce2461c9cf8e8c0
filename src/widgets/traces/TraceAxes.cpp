#include "widgets/traces/TraceAxes.h"

#include "figures/ShownLength.h"
#include "view/AxisTicks.h"
#include "widgets/traces/TraceGuides.h"
#include "widgets/traces/TraceTags.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kMajor = 6.0;  ///< length of a mark, pixels
constexpr double kMinor = 3.0;
constexpr double kGap = 3.0;  ///< between marks and numbers

AxisTicks timeTicks(const TraceMapping& mapping, double lineHeight) {
  const int most = std::clamp(static_cast<int>(mapping.plot.height() / (2.2 * lineHeight)), 2, 20);
  return axisTicks(1e3 * mapping.window.top, 1e3 * mapping.window.bottom, most);
}

class Axes {
  Q_DECLARE_TR_FUNCTIONS(talvesk::TraceAxes)

 public:
  Axes(QPainter& painter, const TraceMapping& mapping, const ShotTraces& traces,
       const TraceLayout& layout)
      : mPainter(painter),
        mMapping(mapping),
        mTraces(traces),
        mLayout(layout),
        mMetrics(painter.fontMetrics()),
        mPlot(mapping.plot) {}

  void paint() {
    paintTimes();
    const double upper = mPlot.top() - kMajor - kGap - 2.0 * mMetrics.height();
    const double lower = upper + mMetrics.height();
    if (!mLayout.isByChannel()) {
      paintPositions(lower, 0.0);
      paintAtTraces(upper, true);
      title(lower, positionTitle());
      title(upper, tr("Channel"));
    } else {
      paintPositions(lower, 1.0);
      title(lower, tr("Channel"));
      if (paintAtTraces(upper, false)) title(upper, tr("x (%1)").arg(lengthUnitText()));
    }
    paintShot();
    mPainter.drawRect(mPlot);
  }

 private:
  void title(double top, const QString& text) {
    const QRectF corner(0.0, top, mPlot.left() - kGap - 2.0, mMetrics.height());
    mPainter.drawText(corner, Qt::AlignRight | Qt::AlignVCenter,
                      mMetrics.elidedText(text, Qt::ElideRight, corner.width()));
  }

  QString positionTitle() const {
    const QString unit = lengthUnitText();
    switch (mLayout.offsetOrder()) {
      case OffsetOrder::kSigned:
        return tr("Offset (%1)").arg(unit);
      case OffsetOrder::kAbsolute:
        return tr("|x| (%1)", "absolute offset").arg(unit);
      case OffsetOrder::kNone:
        break;
    }
    return tr("x (%1)").arg(unit);
  }

  void paintTimes() {
    const AxisTicks ticks = timeTicks(mMapping, mMetrics.height());
    for (const double ms : ticks.minor) timeMark(1e-3 * ms, kMinor);
    for (const double ms : ticks.major) {
      const double y = timeMark(1e-3 * ms, kMajor);
      const QRectF cell(0.0, y - 0.5 * mMetrics.height(), mPlot.left() - kMajor - kGap,
                        mMetrics.height());
      mPainter.drawText(cell, Qt::AlignRight | Qt::AlignVCenter, screenNumber(ms, ticks.decimals));
    }
    mPainter.save();
    mPainter.translate(mMetrics.height(), mPlot.center().y());
    mPainter.rotate(-90.0);
    mPainter.drawText(
        QRectF(-0.5 * mPlot.height(), -mMetrics.height(), mPlot.height(), mMetrics.height()),
        Qt::AlignCenter, timeTitle());
    mPainter.restore();
  }

  QString timeTitle() const {
    const GatherManner& manner = mTraces.mapping().manner();
    const QString time = manner.reduction > 0.0
                             ? tr("Reduced time (ms), t - |x|/%1 %2")
                                   .arg(screenNumber(shownLength(manner.reduction), 0),
                                        QLatin1String(velocityUnitName()))
                             : tr("Time (ms)");
    if (!(manner.timeGain > 0.0)) return time;
    return tr("%1, gain t^%2", "time axis, exponent").arg(time, exponentText(manner.timeGain));
  }

  double timeMark(double time, double length) {
    const double y = mMapping.y(time);
    mPainter.drawLine(QPointF(mPlot.left() - length, y), QPointF(mPlot.left(), y));
    return y;
  }

  double positionMark(double position, double length) {
    const double x = mMapping.x(position);
    mPainter.drawLine(QPointF(x, mPlot.top() - length), QPointF(x, mPlot.top()));
    return x;
  }

  bool label(double x, double top, const QString& text, double& rightEnd) {
    const double half = 0.5 * mMetrics.horizontalAdvance(text);
    if (x - half < rightEnd || x < mPlot.left() || x > mPlot.right()) return false;
    mPainter.drawText(QRectF(x - half - 2.0, top, 2.0 * half + 4.0, mMetrics.height()),
                      Qt::AlignCenter, text);
    rightEnd = x + half + mMetrics.averageCharWidth();
    return true;
  }

  /// Round numbers along the positions.
  void paintPositions(double top, double added) {
    const int most =
        std::clamp(static_cast<int>(mPlot.width() / (5.0 * mMetrics.averageCharWidth())), 2, 60);
    const double from = mMapping.window.left + added;
    const double to = mMapping.window.right + added;
    const AxisTicks ticks =
        mLayout.isByChannel() ? axisTicks(from, to, most, true) : shownTicks(from, to, most, "m");
    double rightEnd = -HUGE_VAL;
    for (const double value : ticks.minor) positionMark(value - added, kMinor);
    for (const double value : ticks.major) {
      const double x = positionMark(value - added, kMajor);
      if (mLayout.isByChannel() && (value < 1.0 || value > mLayout.count())) continue;
      label(x, top, screenNumber(value * ticks.factor, ticks.decimals), rightEnd);
    }
  }

  /// The channel of a trace, and those of the other side of the shot that stand at its place.
  QString channelsAt(int trace) const {
    QString text = QString::number(trace + 1);
    if (mLayout.offsetOrder() != OffsetOrder::kAbsolute) return text;
    const double same = 0.02 * mLayout.spacing();
    for (int rank = mLayout.rank(trace) + 1; rank < mLayout.count(); ++rank) {
      const int other = mLayout.order()[static_cast<std::size_t>(rank)];
      if (mLayout.position(other) - mLayout.position(trace) > same) break;
      text += QLatin1Char('/') + QString::number(other + 1);
    }
    return text;
  }

  QString labelOf(int trace, bool channels) const {
    if (channels) return channelsAt(trace);
    const double x = shownLength(mTraces.receiverX(trace));
    if (!std::isfinite(x)) return {};
    return screenNumber(x, std::fabs(x - std::round(x)) < 0.005 ? 0 : 1);
  }

  /// Every how many traces there is room for a label.
  int labelStride(bool channels) const {
    double widest = 0.0;
    for (const int trace : mLayout.order()) {
      widest = std::max(widest, mMetrics.horizontalAdvance(labelOf(trace, channels)));
    }
    const double spacing = mMapping.x(mLayout.spacing()) - mMapping.x(0.0);
    for (int decade = 1; decade < 1000000; decade *= 10) {
      for (const int factor : {1, 2, 5}) {
        if (factor * decade * spacing >= widest + mMetrics.averageCharWidth()) {
          return factor * decade;
        }
      }
    }
    return 1000000;
  }

  /// The other numbering at the traces themselves, as many as have room.
  bool paintAtTraces(double top, bool channels) {
    const int stride = labelStride(channels);
    double rightEnd = -HUGE_VAL;
    bool any = false;
    for (const int trace : mLayout.order()) {
      // Channels 10, 20, 30; but distances from the first geophone on, which tend to be round.
      if ((channels ? trace + 1 : mLayout.rank(trace)) % stride != 0) continue;
      const QString text = labelOf(trace, channels);
      if (text.isEmpty()) continue;
      any = label(mMapping.x(mLayout.position(trace)), top, text, rightEnd) || any;
    }
    return any;
  }

  /// A triangle where the shot was, pointing away at the side where it lies out of sight.
  void paintShot() {
    const std::optional<double> place = shotPlace(mTraces, mLayout);
    if (!place || !std::isfinite(*place)) return;
    const double x = std::clamp(mMapping.x(*place), mPlot.left() - 1.0, mPlot.right() + 1.0);
    const double size = 0.38 * mMetrics.height();
    const double y = mPlot.top() - 1.0;
    QPainterPath arrow;
    if (x < mPlot.left()) {
      arrow.addPolygon(QPolygonF({{mPlot.left(), y},
                                  {mPlot.left() + 2 * size, y - size},
                                  {mPlot.left() + 2 * size, y + size}}));
    } else if (x > mPlot.right()) {
      arrow.addPolygon(QPolygonF({{mPlot.right(), y},
                                  {mPlot.right() - 2 * size, y - size},
                                  {mPlot.right() - 2 * size, y + size}}));
    } else {
      arrow.addPolygon(QPolygonF({{x, y + size}, {x - size, y - size}, {x + size, y - size}}));
    }
    arrow.closeSubpath();
    mPainter.save();
    mPainter.setRenderHint(QPainter::Antialiasing);
    mPainter.fillPath(arrow, mPainter.pen().color());
    mPainter.restore();
  }

  QPainter& mPainter;
  const TraceMapping& mMapping;
  const ShotTraces& mTraces;
  const TraceLayout& mLayout;
  QFontMetricsF mMetrics;
  QRectF mPlot;
};

}  // namespace

QMarginsF axisMargins(const QFontMetricsF& metrics) {
  const double numbers =
      std::max(metrics.horizontalAdvance(QStringLiteral("00000")),
               metrics.horizontalAdvance(Axes::tr("Channel")) - metrics.height());
  return {metrics.height() + 4.0 + numbers + kMajor + kGap,
          2.0 * metrics.height() + kMajor + kGap + 2.0, 1.0, 1.0};
}

void paintTimeLines(QPainter& painter, const TraceMapping& mapping, const TraceColors& colors) {
  painter.setPen(QPen(colors.faint, 0.0));
  const double height = QFontMetricsF(painter.font()).height();
  for (const double ms : timeTicks(mapping, height).major) {
    const double y = mapping.y(1e-3 * ms) - mapping.plot.top();
    painter.drawLine(QPointF(0.0, y), QPointF(mapping.plot.width(), y));
  }
}

void paintAxes(QPainter& painter, const TraceMapping& mapping, const ShotTraces& traces,
               const TraceLayout& layout, const QColor& text) {
  painter.setPen(QPen(text, 1.0));
  painter.setBrush(Qt::NoBrush);
  Axes(painter, mapping, traces, layout).paint();
}

}  // namespace talvesk
