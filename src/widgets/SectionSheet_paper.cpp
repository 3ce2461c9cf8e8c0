#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "widgets/SectionSheet_painter.h"

#include <QFontMetricsF>
#include <QLineF>
#include <algorithm>
#include <cmath>

// The paper around the section: axes, colour bar and texts.

namespace talvesk {
namespace {

constexpr double kTick = 6.0;
constexpr double kMinorTick = 3.0;
constexpr double kGap = 6.0;
constexpr double kBarWidth = 18.0;
constexpr double kBarGap = 16.0;
constexpr double kNumberSpacing = 90.0;     ///< between numbers along the line
constexpr double kElevationSpacing = 45.0;  ///< between numbers up the section

QString factorText(double factor, const QLocale& locale) {
  return locale.toString(factor, 'g', 4);
}

QStringList numbers(const AxisTicks& ticks, const QLocale& locale) {
  QStringList texts;
  for (const double value : ticks.major) {
    texts << locale.toString(value + 0.0, 'f', ticks.decimals);
  }
  return texts;
}

double widest(const QStringList& texts, const QFontMetricsF& metrics) {
  double width = 0.0;
  for (const QString& text : texts) width = std::max(width, metrics.horizontalAdvance(text));
  return width;
}

/// Marks at the colour bar: between the bands where each has room for its number.
AxisTicks barTicks(const SectionSheet& sheet, double height, double line) {
  const ValueRange& range = sheet.colors().range();
  const int most = std::max(static_cast<int>(height / (2.2 * line)), 1);
  AxisTicks ticks = axisTicks(range.min, range.max, most);
  ticks.minor.clear();
  if (sheet.scene()->fill != SectionFill::kBands) return ticks;
  const std::vector<double> levels = sheet.scene()->bandLevels();
  double least = range.span();
  for (std::size_t i = 1; i < levels.size(); ++i)
    least = std::min(least, levels[i] - levels[i - 1]);
  if (levels.empty() || least / range.span() * height < line) return ticks;
  ticks.major = levels;
  ticks.decimals = axisTicks(range.min, range.max, 20).decimals;
  const auto broken = [&ticks](double value) {
    const double power = std::pow(10.0, ticks.decimals);
    return std::abs(value * power - std::round(value * power)) > 1e-6;
  };
  if (ticks.decimals > 0 && std::any_of(levels.begin(), levels.end(), broken)) ++ticks.decimals;
  return ticks;
}

}  // namespace

SheetMargins sheetMargins(const SectionSheet& sheet, const QSizeF& size, const QFont& font) {
  const QFontMetricsF metrics(font);
  const double line = metrics.height();
  SheetMargins margins;
  if (sheet.scene() == nullptr) return margins;
  const bool small = size.height() < 14.0 * line;
  margins.legend = !small;
  margins.left =
      kGap + line + kGap + metrics.horizontalAdvance(QStringLiteral("-8888.8")) + 2.0 + kTick;
  margins.top = sheet.settings().title && !small ? 2.4 * line : 0.9 * line;
  margins.bottom = kTick + 2.0 + line + 2.0 + line + (small ? 2.0 : kGap + line + kGap);
  margins.right = 1.6 * line;
  margins.colorBar = sheet.settings().scalarBar && sheet.scene()->fill != SectionFill::kNone &&
                     size.width() > 26.0 * line;
  if (margins.colorBar) {
    const double height = size.height() - margins.top - margins.bottom;
    const QStringList texts = numbers(barTicks(sheet, height, line), QLocale());
    margins.right = kBarGap + kBarWidth + kTick + 3.0 + widest(texts, metrics) + kGap + line + kGap;
  }
  return margins;
}

void SheetPainter::paintMargins() {
  const QRectF all(QPointF(0, 0), mSize);
  mPainter.fillRect(QRectF(all.topLeft(), QPointF(all.right(), mPlot.top())), Qt::white);
  mPainter.fillRect(QRectF(QPointF(0, mPlot.bottom()), all.bottomRight()), Qt::white);
  mPainter.fillRect(QRectF(0, mPlot.top(), mPlot.left(), mPlot.height()), Qt::white);
  mPainter.fillRect(QRectF(mPlot.topRight(), QPointF(all.right(), mPlot.bottom())), Qt::white);
  mPainter.setPen(QPen(QColor(90, 90, 90), 1.0));
  mPainter.setBrush(Qt::NoBrush);
  mPainter.drawRect(mPlot.adjusted(-0.5, -0.5, 0.5, 0.5));
}

QRectF SheetPainter::visible() const {
  if (isTurned()) {
    return {QPointF(mExtent.first.x, mExtent.first.z), QPointF(mExtent.second.x, mExtent.second.z)};
  }
  return mMap.inverted().mapRect(mPlot);
}

AxisTicks SheetPainter::distanceTicks() const {
  const QRectF part = visible();
  const double length = QLineF(mMap.map(part.topLeft()), mMap.map(part.topRight())).length();
  return axisTicks(part.left(), part.right(),
                   std::max(static_cast<int>(length / kNumberSpacing), 1));
}

AxisTicks SheetPainter::elevationTicks() const {
  const QRectF part = visible();
  const double length = QLineF(mMap.map(part.topLeft()), mMap.map(part.bottomLeft())).length();
  return axisTicks(part.top(), part.bottom(),
                   std::max(static_cast<int>(length / kElevationSpacing), 1));
}

SheetPainter::Axis SheetPainter::distanceAxis() const {
  Axis axis;
  axis.ticks = distanceTicks();
  axis.title = tr("Distance [m]");
  axis.outward = {0.0, 1.0};
  const double low = mExtent.first.z;
  if (isTurned()) {
    axis.at = [this, low](double x) { return mMap.map(QPointF(x, low)); };
    axis.middle = axis.at(0.5 * (mExtent.first.x + mExtent.second.x));
    // Along a rising axis the numbers beside the title lie lower than those above it.
    const QFontMetricsF metrics(mPainter.font());
    const double reach = 0.5 * (metrics.horizontalAdvance(axis.title) +
                                widest(numbers(axis.ticks, mLocale), metrics));
    const QPointF along = axis.at(mExtent.second.x) - axis.at(mExtent.first.x);
    const double slope = along.x() > 0.0 ? std::abs(along.y() / along.x()) : 0.0;
    axis.titleDistance = reach * slope;
  } else {
    axis.at = [this](double x) {
      return QPointF(mMap.map(QPointF(x, mCamera.centre.z)).x(), mPlot.bottom());
    };
    axis.middle = {mPlot.center().x(), mPlot.bottom()};
  }
  axis.titleDistance += kTick + 4.0 + 1.5 * mLine;
  return axis;
}

SheetPainter::Axis SheetPainter::elevationAxis() const {
  Axis axis;
  axis.ticks = elevationTicks();
  axis.title = tr("Elevation [m]");
  axis.outward = {-1.0, 0.0};
  const double left = mExtent.first.x;
  if (isTurned()) {
    axis.at = [this, left](double z) { return mMap.map(QPointF(left, z)); };
    axis.middle = axis.at(0.5 * (mExtent.first.z + mExtent.second.z));
    const QFontMetricsF metrics(mPainter.font());
    axis.titleDistance = kTick + widest(numbers(axis.ticks, mLocale), metrics) + kGap + 0.6 * mLine;
  } else {
    axis.at = [this](double z) {
      return QPointF(mPlot.left(), mMap.map(QPointF(mCamera.centre.x, z)).y());
    };
    axis.middle = {mPlot.left(), mPlot.center().y()};
    axis.titleDistance = mPlot.left() - kGap - 0.5 * mLine;
  }
  return axis;
}

/// The plot with the margins where its axes are when it is not turned.
QRectF SheetPainter::axisRoom() const {
  return {QPointF(0.0, mPlot.top()),
          QPointF(mPlot.right(), mPlot.bottom() + kTick + 4.0 + 2.0 * mLine)};
}

void SheetPainter::paintAxis(const Axis& axis) {
  const bool below = axis.outward.y() > 0.0;
  for (const double value : axis.ticks.minor) {
    const QPointF at = axis.at(value);
    mPainter.drawLine(at, at + kMinorTick * axis.outward);
  }
  const QStringList texts = numbers(axis.ticks, mLocale);
  for (int i = 0; i < texts.size(); ++i) {
    const QPointF at = axis.at(axis.ticks.major[static_cast<std::size_t>(i)]);
    mPainter.drawLine(at, at + kTick * axis.outward);
    QRectF box(0, 0, 200.0, mLine);
    if (below) {
      box.moveCenter(at + QPointF(0, kTick + 2.0 + 0.5 * mLine));
    } else {
      box.moveCenter(at);
      box.moveRight(at.x() - kTick - 3.0);
    }
    mPainter.drawText(box, below ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignRight, texts[i]);
  }
  QPointF middle = axis.middle + axis.titleDistance * axis.outward;
  if (isTurned()) {
    const double half = 0.5 * QFontMetricsF(mPainter.font()).horizontalAdvance(axis.title);
    const QPointF reach = below ? QPointF(half, 0.5 * mLine) : QPointF(0.5 * mLine, half);
    const QRectF room = axisRoom();
    middle = {std::max(room.left() + reach.x(), std::min(middle.x(), room.right() - reach.x())),
              std::max(room.top() + reach.y(), std::min(middle.y(), room.bottom() - reach.y()))};
  }
  mPainter.save();
  mPainter.translate(middle);
  if (!below) mPainter.rotate(-90.0);
  mPainter.drawText(QRectF(-300.0, -mLine, 600.0, 2.0 * mLine), Qt::AlignCenter, axis.title);
  mPainter.restore();
}

void SheetPainter::paintAxes() {
  mPainter.save();
  mPainter.setPen(QPen(Qt::black, 1.0));
  if (isTurned()) {
    // The axes go with the section; where it reaches an edge, the margin takes their numbers.
    mPainter.setClipRect(axisRoom());
    mPainter.setRenderHint(QPainter::Antialiasing);
    mPainter.setBrush(Qt::NoBrush);
    mPainter.drawPolygon(mMap.map(QPolygonF(visible())));
  }
  paintAxis(distanceAxis());
  paintAxis(elevationAxis());
  mPainter.restore();
}

void SheetPainter::paintColorBar() {
  if (!mMargins.colorBar) return;
  const ColorTable& colors = mSheet.colors();
  const QRectF bar(mPlot.right() + kBarGap, mPlot.top(), kBarWidth, mPlot.height());
  const auto yOf = [&bar, &colors](double value) {
    return bar.bottom() - bar.height() * (value - colors.range().min) / colors.range().span();
  };
  mPainter.save();
  mPainter.setPen(Qt::NoPen);
  for (int i = 0; i < colors.size(); ++i) {
    // From the top down to the class's lower end: the classes above paint over it without a seam.
    const double low = yOf(colors.classRange(i).min);
    mPainter.fillRect(QRectF(bar.topLeft(), QPointF(bar.right(), low)), toColor(colors[i]));
  }
  mPainter.setPen(QPen(QColor(90, 90, 90), 1.0));
  mPainter.setBrush(Qt::NoBrush);
  mPainter.drawRect(bar.adjusted(-0.5, -0.5, 0.5, 0.5));
  mPainter.setPen(QPen(Qt::black, 1.0));
  const AxisTicks ticks = barTicks(mSheet, bar.height(), mLine);
  const QStringList texts = numbers(ticks, mLocale);
  for (int i = 0; i < texts.size(); ++i) {
    const QPointF at(bar.right() + 1.0, yOf(ticks.major[static_cast<std::size_t>(i)]));
    mPainter.drawLine(at, at + QPointF(kTick - 1.0, 0.0));
    mPainter.drawText(QRectF(at.x() + kTick + 2.0, at.y() - 0.5 * mLine, 200.0, mLine),
                      Qt::AlignVCenter | Qt::AlignLeft, texts[i]);
  }
  mPainter.translate(mSize.width() - kGap - 0.5 * mLine, bar.center().y());
  mPainter.rotate(-90.0);
  mPainter.drawText(QRectF(-300.0, -mLine, 600.0, 2.0 * mLine), Qt::AlignCenter,
                    FigureWords::quantityAxis(mScene.quantity));
  mPainter.restore();
}

void SheetPainter::paintTexts() {
  mPainter.save();
  mPainter.setPen(Qt::black);
  const QString exaggeration =
      tr("Vertical exaggeration %1\u00D7").arg(factorText(mCamera.exaggeration, mLocale));
  const QFontMetricsF metrics(mPainter.font());
  if (mMargins.legend) {
    const double y = mSize.height() - kGap - mLine;
    const double right = mSize.width() - kGap - metrics.horizontalAdvance(exaggeration);
    mPainter.drawText(QPointF(right, y + metrics.ascent()), exaggeration);
    paintLegend(mPlot.left(), right - kGap, y);
  } else if (mCamera.exaggeration != 1.0) {
    // A picture too small for a legend must say at least that it is not true to scale.
    mPainter.drawText(QRectF(QPointF(0, 0), mSize).adjusted(0, 2, -kGap, 0),
                      Qt::AlignRight | Qt::AlignTop, exaggeration);
  }
  if (mSheet.settings().title && mMargins.top > 2.0 * mLine) {
    QFont font = mPainter.font();
    font.setBold(true);
    font.setPointSizeF(1.25 * font.pointSizeF());
    mPainter.setFont(font);
    QString title = QString::fromStdString(mScene.title).simplified();
    if (title.isEmpty() && mScene.fill != SectionFill::kNone) {
      title = FigureWords::quantityAxis(mScene.quantity);
    }
    title = QFontMetricsF(font).elidedText(title, Qt::ElideRight, mSize.width() - 2.0 * kGap);
    mPainter.drawText(QRectF(0.0, 0.0, mSize.width(), mPlot.top()), Qt::AlignCenter, title);
  }
  mPainter.restore();
}

}  // namespace talvesk
