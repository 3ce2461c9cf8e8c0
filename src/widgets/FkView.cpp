#include "widgets/FkView.h"

#include "figures/ShownLength.h"
#include "view/AxisTicks.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMark = 5.0;     ///< length of a mark, pixels
constexpr double kGap = 4.0;      ///< between marks and numbers
constexpr double kBar = 14.0;     ///< width of the colour bar
constexpr double kGrab = 8.0;     ///< pixels beside a side of the wedge that take hold of it
constexpr double kDim = 0.35;     ///< of the colours of what goes
constexpr double kNoLimit = 1e5;  ///< m/s; faster is as fast as can be

/// From dark to light, evenly in lightness, so that it reads without hues as well.
QRgb rampColor(double part) {
  static constexpr int kStops[][3] = {{13, 8, 60},    {70, 30, 130},  {160, 45, 120},
                                      {230, 100, 70}, {250, 180, 60}, {252, 250, 190}};
  constexpr int kLast = 5;
  const double at = std::clamp(part, 0.0, 1.0) * kLast;
  const int below = std::min(static_cast<int>(at), kLast - 1);
  const double rest = at - below;
  const auto mix = [&](int c) {
    return static_cast<int>(kStops[below][c] + rest * (kStops[below + 1][c] - kStops[below][c]));
  };
  return qRgb(mix(0), mix(1), mix(2));
}

double partOf(double amplitude) {
  if (!(amplitude > 0.0)) return 0.0;
  return 1.0 - 20.0 * std::log10(amplitude) / FkView::kQuietest;
}

QRgb dimmed(QRgb color, double part) {
  return qRgb(static_cast<int>(part * qRed(color)), static_cast<int>(part * qGreen(color)),
              static_cast<int>(part * qBlue(color)));
}

}  // namespace

FkView::FkView(QWidget* parent) : QWidget(parent) {
  setAccessibleName(tr("Spectrum over wavenumber and frequency"));
  setMouseTracking(true);
}

void FkView::setSpectrum(FkSpectrum spectrum) {
  mSpectrum = std::move(spectrum);
  place();
}

void FkView::setFilter(const VelocityFilter& filter) {
  mFilter = filter;
  place();
}

void FkView::setFiltered(bool filtered) {
  mFiltered = filtered;
  place();
}

double FkView::highest() const {
  return mSpectrum.frequencies.size() > 1 ? mSpectrum.frequencies.back() : 1.0;
}

double FkView::widest() const {
  return mSpectrum.empty() ? 1.0 : -mSpectrum.wavenumbers.front();
}

QPointF FkView::pointOf(double wavenumber, double frequency) const {
  return {mPlot.center().x() + 0.5 * mPlot.width() * wavenumber / widest(),
          mPlot.bottom() - mPlot.height() * frequency / highest()};
}

void FkView::place() {
  const QFontMetricsF metrics(font());
  const double left = 2.0 * metrics.height() + metrics.horizontalAdvance(QStringLiteral("0000"));
  const double right = kBar + 5.0 * kGap + metrics.horizontalAdvance(QStringLiteral("-00 dB"));
  const double below = 2.0 * metrics.height() + kMark + 2.0 * kGap;
  mPlot = QRectF(rect()).adjusted(left, kGap + 0.5 * metrics.height(), -right, -below);
  mImage = drawn();
  update();
}

/// Nearest bins: what is interpolated would look finer than it is known.
QImage FkView::drawn() const {
  const QSize size = (mPlot.size() * devicePixelRatioF()).toSize();
  if (mSpectrum.empty() || size.isEmpty()) return {};
  QImage image(size, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatioF());
  const auto columns = static_cast<int>(mSpectrum.wavenumbers.size());
  const auto rows = static_cast<int>(mSpectrum.frequencies.size());
  for (int y = 0; y < size.height(); ++y) {
    const double up = 1.0 - (y + 0.5) / size.height();
    const int row = std::clamp(static_cast<int>(std::lround(up * (rows - 1))), 0, rows - 1);
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < size.width(); ++x) {
      const int column =
          std::min(static_cast<int>((x + 0.5) / size.width() * columns), columns - 1);
      const auto at = static_cast<std::size_t>(row) * mSpectrum.wavenumbers.size() +
                      static_cast<std::size_t>(column);
      const double weight = weightOf(mFilter, mSpectrum.frequencies[static_cast<std::size_t>(row)],
                                     mSpectrum.wavenumbers[static_cast<std::size_t>(column)]);
      const double amplitude = static_cast<double>(mSpectrum.amplitudes[at]);
      line[x] = mFiltered ? rampColor(partOf(amplitude * weight))
                          : dimmed(rampColor(partOf(amplitude)), kDim + (1.0 - kDim) * weight);
    }
  }
  return image;
}

void FkView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (mImage.isNull()) {
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("No spectrum"));
    return;
  }
  painter.drawImage(mPlot.topLeft(), mImage);
  painter.setRenderHint(QPainter::Antialiasing);
  paintWedge(painter);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawRect(mPlot);
  paintAxes(painter);
  paintBar(painter);
}

void FkView::paintAxes(QPainter& painter) const {
  const QFontMetricsF metrics(font());
  const QLocale locale;
  const double line = metrics.height();
  const AxisTicks across = shownTicks(-widest(), widest(), 7, "1/m");
  for (const double k : across.major) {
    const QPointF at = pointOf(k, 0.0);
    painter.drawLine(at, at + QPointF(0.0, kMark));
    painter.drawText(QRectF(at.x() - 50.0, at.y() + kMark, 100.0, line), Qt::AlignCenter,
                     locale.toString(k * across.factor, 'f', across.decimals));
  }
  painter.drawText(QRectF(mPlot.left(), mPlot.bottom() + kMark + kGap + line, mPlot.width(), line),
                   Qt::AlignCenter, tr("Wavenumber along the line (1/%1)").arg(lengthUnitText()));
  const AxisTicks up = axisTicks(0.0, highest(), 8);
  for (const double f : up.major) {
    const double y = pointOf(0.0, f).y();
    painter.drawLine(QPointF(mPlot.left() - kMark, y), QPointF(mPlot.left(), y));
    painter.drawText(QRectF(0.0, y - 0.5 * line, mPlot.left() - kMark - kGap, line),
                     Qt::AlignRight | Qt::AlignVCenter, locale.toString(f, 'f', up.decimals));
  }
  painter.save();
  painter.translate(line, mPlot.center().y());
  painter.rotate(-90.0);
  painter.drawText(QRectF(-0.5 * mPlot.height(), -line, mPlot.height(), line), Qt::AlignCenter,
                   tr("Frequency (Hz)"));
  painter.restore();
}

void FkView::paintBar(QPainter& painter) const {
  const QFontMetricsF metrics(font());
  const QRectF bar(mPlot.right() + 3.0 * kGap, mPlot.top(), kBar, mPlot.height());
  for (double y = bar.top(); y < bar.bottom(); y += 1.0) {
    const QRectF row(bar.left(), y, kBar, std::min(1.5, bar.bottom() - y));
    painter.fillRect(row, QColor(rampColor(1.0 - (y - bar.top()) / bar.height())));
  }
  painter.drawRect(bar);
  for (double db = 0.0; db >= kQuietest; db -= 10.0) {
    const double y = bar.top() + bar.height() * db / kQuietest;
    painter.drawText(
        QRectF(bar.right() + kGap, y - 0.5 * metrics.height(), 200.0, metrics.height()),
        Qt::AlignLeft | Qt::AlignVCenter, tr("%1 dB").arg(QLocale().toString(db)));
  }
}

void FkView::paintWedge(QPainter& painter) const {
  const auto side = [&](double velocity, double way, Qt::PenStyle style) {
    const double most = velocity > 0.0 ? std::min(widest(), highest() / velocity) : 0.0;
    const double f = velocity > 0.0 ? most * velocity : highest();
    const QLineF line(pointOf(0.0, 0.0), pointOf(way * most, f));
    painter.setPen(QPen(Qt::black, 3.5));
    painter.drawLine(line);
    painter.setPen(QPen(Qt::white, 1.8, style));
    painter.drawLine(line);
  };
  for (const double way : {-1.0, 1.0}) {
    const bool forth = way > 0.0;
    if (mFilter.direction == VelocityFilter::Direction::kForth && !forth) continue;
    if (mFilter.direction == VelocityFilter::Direction::kBack && forth) continue;
    side(mFilter.slowest, way, Qt::SolidLine);
    side(mFilter.fastest, way, Qt::DashLine);
  }
}

double FkView::velocityAt(const QPointF& point) const {
  const double k = (point.x() - mPlot.center().x()) / (0.5 * mPlot.width()) * widest();
  const double f = (mPlot.bottom() - point.y()) / mPlot.height() * highest();
  const double velocity = std::max(f, 0.0) / std::fabs(k);
  return velocity < kNoLimit ? std::max(velocity, 1.0) : std::numeric_limits<double>::infinity();
}

FkView::Side FkView::sideNear(const QPointF& point) const {
  if (mImage.isNull() || !mPlot.contains(point)) return Side::kNone;
  const double half = std::fabs(point.x() - mPlot.center().x());
  const double f = (mPlot.bottom() - point.y()) / mPlot.height() * highest();
  // Pixels beside the line, at the height of the mouse.
  const auto away = [&](double velocity) {
    const double k = velocity > 0.0 ? f / velocity : 0.0;
    return std::fabs(half - 0.5 * mPlot.width() * k / widest());
  };
  const double slow = away(mFilter.slowest);
  const double fast = away(mFilter.fastest);
  if (std::min(slow, fast) > kGrab) return Side::kNone;
  return slow <= fast ? Side::kSlowest : Side::kFastest;
}

void FkView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) mDragged = sideNear(event->localPos());
}

void FkView::mouseMoveEvent(QMouseEvent* event) {
  if (mDragged == Side::kNone) {
    const bool near = sideNear(event->localPos()) != Side::kNone;
    setCursor(near ? Qt::SizeHorCursor : Qt::ArrowCursor);
    return;
  }
  const double velocity = velocityAt(event->localPos());
  if (mDragged == Side::kSlowest) {
    if (std::isfinite(velocity)) emit slowestDragged(velocity);
  } else {
    emit fastestDragged(std::isfinite(velocity) ? velocity : 0.0);
  }
}

void FkView::mouseReleaseEvent(QMouseEvent*) {
  mDragged = Side::kNone;
}

void FkView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  place();
}

void FkView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) {
    setAccessibleName(tr("Spectrum over wavenumber and frequency"));
  }
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) place();
}

QSize FkView::sizeHint() const {
  return {560, 420};
}

QSize FkView::minimumSizeHint() const {
  return {320, 220};
}

}  // namespace talvesk
