#include "figures/GatherPanels.h"

#include "base/LengthUnit.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/GatherScene.h"
#include "figures/SectionItems.h"
#include "view/AxisTicks.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

// Lengths on the sheet, in points of 1/96 inch.
constexpr double kPointsPerInch = 96.0;
constexpr double kMargin = 10.0;
constexpr double kGap = 12.0;  ///< between panels
constexpr double kTick = 4.0;
constexpr double kTopPadding = 12.0;  ///< the shot stands above the first sample
constexpr double kBottomPadding = 3.0;
constexpr double kSidePadding = 4.0;  ///< beyond the largest swing
constexpr double kStar = 10.0;        ///< of a geophone beside it
constexpr double kOneStar = 3.0;      ///< nearer ones share one
constexpr double kLeastWidth = 60.0;  ///< of the traces of a panel
constexpr double kLeastHeight = 50.0;
constexpr int kTitlePixels = 15;
constexpr int kHeadingPixels = 12;
constexpr int kNumberPixels = 11;
const QColor kGrid(0, 0, 0, 40);

QFont fontOf(int pixels, bool bold = false) {
  QFont font = figureFont(9.0, bold);
  font.setPixelSize(pixels);
  return font;
}

/// The plain measures of a sheet, in points.
struct Measures {
  double left = 0.0;  ///< of the traces of the first column
  double top = 0.0;   ///< of the heading of the first row
  double width = 0.0;
  double height = 0.0;
  double heading = 0.0;
  double numbers = 0.0;  ///< below the traces of every row
  double captionTop = 0.0;
};

class PanelPainter {
 public:
  PanelPainter(const GatherPanelSheet& sheet, const QSizeF& points)
      : mSheet(sheet),
        mPoints(points),
        mTitle(fontOf(kTitlePixels, true)),
        mHeading(fontOf(kHeadingPixels)),
        mNumber(fontOf(kNumberPixels)) {
    mLocale = sheet.locale;
    mLocale.setNumberOptions(QLocale::OmitGroupSeparator);
    measure();
  }

  bool fits() const { return mAt.width >= kLeastWidth && mAt.height >= kLeastHeight; }

  std::vector<GatherPanelPlace> places() const {
    const double mm = kMmPerInch / kPointsPerInch;
    std::vector<GatherPanelPlace> places;
    for (std::size_t i = 0; i < mSheet.panels.size(); ++i) {
      const QRectF canvas = canvasOf(i);
      const QwtScaleMap x = xMapOf(mSheet.panels[i], canvas);
      const QwtScaleMap time = timeMapOf(canvas);
      places.push_back({canvas.left() * mm, canvas.top() * mm, canvas.width() * mm,
                        canvas.height() * mm, x.s1(), x.s2(), time.s1(), time.s2()});
    }
    return places;
  }

  void paint(QPainter& painter) const {
    painter.fillRect(QRectF(QPointF(), mPoints), Qt::white);
    if (!fits()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    paintTexts(painter);
    for (std::size_t i = 0; i < mSheet.panels.size(); ++i) paintPanel(painter, i);
  }

 private:
  void measure() {
    const QFontMetricsF title(mTitle);
    const QFontMetricsF heading(mHeading);
    const QFontMetricsF number(mNumber);
    const QRectF wrapped =
        number.boundingRect(QRectF(0.0, 0.0, mPoints.width() - 2.0 * kMargin, 1e4),
                            Qt::AlignLeft | Qt::TextWordWrap, mSheet.caption);
    mAt.captionTop =
        mPoints.height() - kMargin - (mSheet.caption.isEmpty() ? 0.0 : wrapped.height());
    mAt.heading = heading.height() + 3.0;
    mAt.numbers = kTick + number.height();
    mAt.top = kMargin + (mSheet.title.isEmpty() ? 0.0 : title.height() + 4.0);
    const auto columns = static_cast<double>(mSheet.columns);
    const auto rows = static_cast<double>(mSheet.rows);
    const double bottom = mAt.captionTop - 4.0 - heading.height();  // the title of the axis
    mAt.height = (bottom - mAt.top - (rows - 1.0) * 0.5 * kGap) / std::max(rows, 1.0) -
                 mAt.heading - mAt.numbers;
    const int decimals = timeTicks(mAt.height).decimals;
    const double widest =
        std::max(number.horizontalAdvance(mLocale.toString(mSheet.window.endMs, 'f', decimals)),
                 number.horizontalAdvance(mLocale.toString(mSheet.window.beginMs, 'f', decimals)));
    mAt.left = kMargin + heading.height() + widest + kTick + 6.0;
    mAt.width =
        (mPoints.width() - kMargin - mAt.left - (columns - 1.0) * kGap) / std::max(columns, 1.0);
  }

  QRectF canvasOf(std::size_t panel) const {
    const auto column = static_cast<double>(panel % mSheet.columns);
    const std::size_t full = panel / mSheet.columns;  // rows above this one
    const auto row = static_cast<double>(full);
    const double step = mAt.heading + mAt.height + mAt.numbers + 0.5 * kGap;
    return {mAt.left + column * (mAt.width + kGap), mAt.top + row * step + mAt.heading, mAt.width,
            mAt.height};
  }

  /// The outer traces need room for their swings, which are counted in distances between traces.
  QwtScaleMap xMapOf(const GatherPanel& panel, const QRectF& canvas) const {
    double low = panel.layers.front().scene->low;
    double high = panel.layers.front().scene->high;
    double swing = 0.0;
    for (const GatherLayer& layer : panel.layers) {
      const GatherScene& scene = *layer.scene;
      low = std::min(low, scene.low);
      high = std::max(high, scene.high);
      swing =
          std::max(swing, layer.style.clip * scene.spacing * static_cast<double>(scene.traceStep));
    }
    const double room = std::max(canvas.width() - 2.0 * kSidePadding, 1.0);
    const double side = swing + kSidePadding * (high - low + 2.0 * swing) / room;
    QwtScaleMap map;
    map.setPaintInterval(canvas.left(), canvas.right());
    map.setScaleInterval(low - side, high + side);
    return map;
  }

  QwtScaleMap timeMapOf(const QRectF& canvas) const {
    const TimeWindow& window = mSheet.window;
    const double perPoint = (window.endMs - window.beginMs) /
                            std::max(canvas.height() - kTopPadding - kBottomPadding, 1.0);
    QwtScaleMap map;
    map.setPaintInterval(canvas.top(), canvas.bottom());
    map.setScaleInterval(window.beginMs - kTopPadding * perPoint,
                         window.endMs + kBottomPadding * perPoint);
    return map;
  }

  AxisTicks timeTicks(double height) const {
    const int most = std::max(static_cast<int>(height / 36.0), 2);
    return axisTicks(mSheet.window.beginMs, mSheet.window.endMs, most);
  }

  void paintTexts(QPainter& painter) const {
    const double width = mPoints.width() - 2.0 * kMargin;
    const QFontMetricsF title(mTitle);
    painter.setFont(mTitle);
    painter.drawText(QRectF(kMargin, kMargin, width, title.height()), Qt::AlignCenter,
                     title.elidedText(mSheet.title, Qt::ElideRight, width));
    painter.setFont(mNumber);
    painter.drawText(
        QRectF(kMargin, mAt.captionTop, width, mPoints.height() - kMargin - mAt.captionTop + 2.0),
        Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, mSheet.caption);
  }

  void paintPanel(QPainter& painter, std::size_t index) const {
    const GatherPanel& panel = mSheet.panels[index];
    const QRectF canvas = canvasOf(index);
    const QwtScaleMap x = xMapOf(panel, canvas);
    const QwtScaleMap time = timeMapOf(canvas);
    paintHeading(painter, panel, canvas);
    painter.save();
    painter.setClipRect(canvas, Qt::IntersectClip);
    painter.setPen(QPen(kGrid, 0.6));
    for (const double ms : timeTicks(canvas.height()).major) {
      const double y = time.transform(ms);
      painter.drawLine(QPointF(canvas.left(), y), QPointF(canvas.right(), y));
    }
    paintLayers(painter, panel, x, time, canvas);
    painter.restore();
    painter.save();
    paintFigureFrame(painter, canvas);
    painter.restore();
    if (index % mSheet.columns == 0) paintTimes(painter, panel, time, canvas);
    paintPlaces(painter, panel, x, canvas);
    const bool lowest = index + mSheet.columns >= mSheet.panels.size();
    if (lowest) paintPlaceTitle(painter, panel, canvas);
  }

  /// Picks of all layers over the traces of all.
  static void paintLayers(QPainter& painter, const GatherPanel& panel, const QwtScaleMap& x,
                          const QwtScaleMap& time, const QRectF& canvas) {
    const auto draw = [&](QwtPlotItem* made) {
      const std::unique_ptr<QwtPlotItem> item(made);
      item->draw(&painter, x, time, canvas);
    };
    for (const GatherLayer& layer : panel.layers) {
      draw(gather_items::wiggles(*layer.scene, layer.style));
    }
    for (const GatherLayer& layer : panel.layers) {
      if (layer.scene->hasPicks) draw(gather_items::picks(*layer.scene, layer.picks));
    }
    if (!panel.stars.empty()) return paintStars(painter, panel.stars, x, canvas);
    const GatherScene& first = *panel.layers.front().scene;
    if (!first.shotX) return;
    const double begin = time.invTransform(canvas.top() + kTopPadding);
    draw(section_items::markers({{*first.shotX, begin}}, {}, section_items::Marker::kShot));
  }

  /// Of those nearly at one place, a later one has the right half only: both are seen.
  static void paintStars(QPainter& painter, const std::vector<GatherStar>& stars,
                         const QwtScaleMap& x, const QRectF& canvas) {
    const QPainterPath star = section_items::symbol(section_items::Marker::kShot, kStar);
    const double y = canvas.top() + kTopPadding;
    for (std::size_t i = 0; i < stars.size(); ++i) {
      const double at = x.transform(stars[i].x);
      const bool shared = std::any_of(
          stars.begin(), stars.begin() + static_cast<std::ptrdiff_t>(i),
          [&](const GatherStar& other) { return std::fabs(x.transform(other.x) - at) < kOneStar; });
      painter.save();
      section_items::setMarkerColors(painter, section_items::Marker::kShot);
      painter.setBrush(stars[i].color);
      if (shared) {
        painter.setClipRect(QRectF(at, canvas.top(), canvas.right() - at, canvas.height()),
                            Qt::IntersectClip);
      }
      painter.drawPath(star.translated(at, y));
      painter.restore();
    }
  }

  void paintHeading(QPainter& painter, const GatherPanel& panel, const QRectF& canvas) const {
    const QFontMetricsF metrics(mHeading);
    painter.setFont(mHeading);
    double left = canvas.left();
    for (const GatherWord& word : panel.heading) {
      const QString text =
          metrics.elidedText(word.text, Qt::ElideMiddle, std::max(canvas.right() - left, 0.0));
      painter.setPen(word.color);
      painter.drawText(QPointF(left, canvas.top() - 3.0 - metrics.descent()), text);
      left += metrics.horizontalAdvance(text + QStringLiteral("   "));
    }
    painter.setPen(Qt::black);
  }

  void paintTimes(QPainter& painter, const GatherPanel& panel, const QwtScaleMap& time,
                  const QRectF& canvas) const {
    const QFontMetricsF metrics(mNumber);
    const AxisTicks ticks = timeTicks(canvas.height());
    painter.setFont(mNumber);
    painter.setPen(QPen(Qt::black, 0.8));
    for (const double ms : ticks.major) {
      const double y = time.transform(ms);
      painter.drawLine(QPointF(canvas.left() - kTick, y), QPointF(canvas.left(), y));
      const QString text = mLocale.toString(ms + 0.0, 'f', ticks.decimals);
      painter.drawText(QPointF(canvas.left() - kTick - 2.0 - metrics.horizontalAdvance(text),
                               y + 0.5 * (metrics.ascent() - metrics.descent())),
                       text);
    }
    const QString title = timeAxis(*panel.layers.front().scene);
    const QFontMetricsF heading(mHeading);
    painter.save();
    painter.setFont(mHeading);
    painter.translate(kMargin + heading.ascent(), canvas.center().y());
    painter.rotate(-90.0);
    painter.drawText(QPointF(-0.5 * heading.horizontalAdvance(title), 0.0), title);
    painter.restore();
  }

  /// Distances in the unit that is shown, or channels.
  void paintPlaces(QPainter& painter, const GatherPanel& panel, const QwtScaleMap& x,
                   const QRectF& canvas) const {
    const GatherScene& scene = *panel.layers.front().scene;
    const QFontMetricsF metrics(mNumber);
    const bool channels = scene.byChannel;
    const double from = channels ? scene.low : shownLength(x.s1());
    const double to = channels ? scene.high : shownLength(x.s2());
    const double wide = metrics.horizontalAdvance(QStringLiteral("-8888")) + 12.0;
    const int most = std::max(static_cast<int>(canvas.width() / wide), 2);
    const AxisTicks ticks = axisTicks(from, to, most, channels);
    painter.setFont(mNumber);
    painter.setPen(QPen(Qt::black, 0.8));
    for (const double place : ticks.major) {
      const double at = x.transform(channels ? place : metresOf(place));
      const QString text = mLocale.toString(place + 0.0, 'f', ticks.decimals);
      const double half = 0.5 * metrics.horizontalAdvance(text);
      painter.drawLine(QPointF(at, canvas.bottom()), QPointF(at, canvas.bottom() + kTick));
      painter.drawText(QPointF(at - half, canvas.bottom() + kTick + metrics.ascent()), text);
    }
  }

  void paintPlaceTitle(QPainter& painter, const GatherPanel& panel, const QRectF& canvas) const {
    const QString title = placeAxis(*panel.layers.front().scene);
    const QFontMetricsF metrics(mHeading);
    painter.setFont(mHeading);
    painter.drawText(QPointF(canvas.center().x() - 0.5 * metrics.horizontalAdvance(title),
                             canvas.bottom() + mAt.numbers + metrics.ascent()),
                     title);
  }

  const GatherPanelSheet& mSheet;
  QSizeF mPoints;
  QFont mTitle;
  QFont mHeading;
  QFont mNumber;
  QLocale mLocale = figureLocale();
  Measures mAt;
};

}  // namespace

Status layOutPanels(const GatherPanelSheet& sheet, double widthMm, double heightMm,
                    std::vector<GatherPanelPlace>* places) {
  const QSizeF points = QSizeF(widthMm, heightMm) * (kPointsPerInch / kMmPerInch);
  const PanelPainter painter(sheet, points);
  if (!painter.fits()) {
    return Status::failure(
        Message::tr("The picture is too small for what it shows with its axes and texts: "
                    "choose a larger size."));
  }
  if (places != nullptr) *places = painter.places();
  return {};
}

void paintPanels(QPainter& painter, const QRectF& rect, const GatherPanelSheet& sheet) {
  const double scale = painter.device()->logicalDpiX() / kPointsPerInch;
  painter.save();
  painter.translate(rect.topLeft());
  painter.scale(scale, scale);
  PanelPainter(sheet, rect.size() / scale).paint(painter);
  painter.restore();
}

}  // namespace talvesk
