#include "figures/SectionPlot.h"

#include "figures/SectionItems.h"
#include "view/SectionTexts.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

constexpr double kMmPerInch = 25.4;

// Lengths on the sheet, in points of 1/96 inch.
constexpr int kSheetMargin = 8;
constexpr double kColorBarWidth = 18.0;
constexpr double kColorBarGap = 12.0;  ///< between section and colour bar
constexpr double kSidePadding = 10.0;  ///< around the section, inside the axes
constexpr double kTopPadding = 18.0;   ///< markers stand above the ground
constexpr double kBottomPadding = 10.0;
constexpr double kMinCanvasHeight = 60.0;
constexpr double kMinCanvasWidth = 120.0;
constexpr double kLowCanvasHeight = 170.0;  ///< chosen heights leave the colour bar this much
constexpr double kHighCanvasRatio = 0.75;   ///< chosen heights are at most this part of the width

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

/// Numbers in a file look the same whatever the user's language.
QString number(double value, int digits = 10) {
  return QString::number(value, 'g', digits);
}

QwtText plainText(const QString& words, double points, bool bold = false) {
  QwtText result(words, QwtText::PlainText);
  result.setFont(figureFont(points, bold));
  result.setRenderFlags(Qt::AlignCenter | Qt::TextWordWrap);
  return result;
}

/// The more rays there are, the lighter each is drawn, so that they do not hide the section.
QColor rayColor(std::size_t count) {
  const double opacity =
      0.45 * std::sqrt(500.0 / static_cast<double>(std::max<std::size_t>(count, 500)));
  return QColor::fromRgbF(0.0, 0.0, 0.0, std::max(opacity, 0.1));
}

class NumberScaleDraw : public QwtScaleDraw {
 public:
  QwtText label(double value) const override {
    // A tick at zero may come as the remainder of a division into ticks.
    const double span = std::abs(scaleDiv().range());
    return number(std::abs(value) < 1e-9 * span ? 0.0 : value);
  }
};

/// Adds the colour bar as its classes, which stay sharp where Qwt's own bar is an image, and keeps
/// the maps from metres to the sheet.
class SectionRenderer : public QwtPlotRenderer {
 public:
  explicit SectionRenderer(const ColorTable& colors) : mColors(colors) {}

  void measureOnly() { mMeasureOnly = true; }

  /// Qwt shortens a scale whose end labels it cannot seat. These labels have room; every scale is
  /// as long as the canvas, and a position has one meaning on the sheet.
  void renderScale(const QwtPlot* plot, QPainter* painter, int axis, int startDist, int endDist,
                   int baseDist, const QRectF& rect) const override {
    if (mMeasureOnly) return;
    const QRectF canvas = plot->plotLayout()->canvasRect();
    QRectF place = rect;
    if (axis == QwtPlot::xBottom || axis == QwtPlot::xTop) {
      place.setLeft(canvas.left() - startDist);
      place.setRight(canvas.right() + endDist);
    } else {
      place.setTop(canvas.top() - startDist);
      place.setBottom(canvas.bottom() + endDist);
    }
    if (axis == QwtPlot::yRight) {
      paintColorBar(*painter, QRectF(rect.left() + kColorBarGap, canvas.top(), kColorBarWidth,
                                     canvas.height()));
    }
    QwtPlotRenderer::renderScale(plot, painter, axis, startDist, endDist, baseDist, place);
  }

  void renderCanvas(const QwtPlot* plot, QPainter* painter, const QRectF& rect,
                    const QwtScaleMap* maps) const override {
    std::vector<QwtScaleMap> filling(maps, maps + QwtPlot::axisCnt);
    for (const int axis : {QwtPlot::xBottom, QwtPlot::xTop}) {
      filling[axis].setPaintInterval(rect.left(), rect.right());
    }
    for (const int axis : {QwtPlot::yLeft, QwtPlot::yRight}) {
      filling[axis].setPaintInterval(rect.bottom(), rect.top());
    }
    mXMap = filling[QwtPlot::xBottom];
    mElevationMap = filling[QwtPlot::yLeft];
    if (mMeasureOnly) return;
    QwtPlotRenderer::renderCanvas(plot, painter, rect, filling.data());
    painter->save();
    paintFrame(*painter, rect);
    painter->restore();
  }

  const QwtScaleMap& xMap() const { return mXMap; }
  const QwtScaleMap& elevationMap() const { return mElevationMap; }

 private:
  static void paintFrame(QPainter& painter, const QRectF& rect) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 0.8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect);
  }

  void paintColorBar(QPainter& painter, const QRectF& bar) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    const auto y = [this, &bar](int edge) {
      return bar.bottom() - bar.height() * edge / mColors.size();
    };
    for (int i = 0; i < mColors.size(); ++i) {
      const RgbColor& c = mColors[i];
      // From the top down to the lower end of the class: the classes above paint over it, and no
      // seam can show between them.
      painter.fillRect(QRectF(QPointF(bar.left(), bar.top()), QPointF(bar.right(), y(i))),
                       QColor::fromRgbF(c.r, c.g, c.b));
    }
    paintFrame(painter, bar);
    painter.restore();
  }

  const ColorTable& mColors;
  bool mMeasureOnly = false;
  mutable QwtScaleMap mXMap;
  mutable QwtScaleMap mElevationMap;
};

}  // namespace

struct SectionPlot::Parts {
  Parts(SectionScene aScene, const SectionFigureOptions& someOptions)
      : options(someOptions),
        scene(std::move(aScene)),
        colors(options.palette, scene.range),
        low(scene.lowerLeft()),
        high(scene.upperRight()) {}

  double pointsPerMm() const { return plot.logicalDpiX() / kMmPerInch; }

  void style();
  void addAxis(int axis, const QString& title);
  void addLayers();
  void measure(double widthMm, double heightMm, SectionFigureLayout& layout);
  void setScales(double width, double height);
  void takePlace(const SectionRenderer& renderer, double mmPerPoint, SectionFigureLayout& layout);

  SectionFigureOptions options;
  SectionScene scene;
  ColorTable colors;
  Point2D low;
  Point2D high;
  double exaggeration = 1.0;
  QwtPlot plot;  // goes first at the end: its items look at the members above
};

void SectionPlot::Parts::addAxis(int axis, const QString& title) {
  plot.enableAxis(axis);
  plot.setAxisTitle(axis, plainText(title, 9.5));
  plot.setAxisFont(axis, figureFont(8.5));
  auto* scale = new NumberScaleDraw;
  scale->enableComponent(QwtAbstractScaleDraw::Backbone, false);  // the frame is the axis
  plot.setAxisScaleDraw(axis, scale);
  plot.axisWidget(axis)->setMargin(0);
}

void SectionPlot::Parts::style() {
  plot.setAutoDelete(true);
  plot.setCanvasBackground(Qt::white);
  QPalette palette = plot.palette();
  palette.setColor(QPalette::Window, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text}) {
    palette.setColor(role, Qt::black);
  }
  plot.setPalette(palette);
  if (auto* canvas = qobject_cast<QwtPlotCanvas*>(plot.canvas())) {
    canvas->setFrameStyle(QFrame::NoFrame);
    canvas->setBorderRadius(0);
  }
  plot.setContentsMargins(kSheetMargin, kSheetMargin, kSheetMargin, kSheetMargin);
  plot.plotLayout()->setCanvasMargin(0);
  plot.plotLayout()->setAlignCanvasToScales(true);
  plot.plotLayout()->setSpacing(6);

  QString unit = qt(quantityUnit(scene.quantity));
  if (!unit.isEmpty()) unit = QStringLiteral(" [%1]").arg(unit);
  addAxis(QwtPlot::xBottom, QStringLiteral("Distance [m]"));
  addAxis(QwtPlot::yLeft, QStringLiteral("Elevation [m]"));
  addAxis(QwtPlot::yRight, qt(quantityName(scene.quantity)) + unit);
  plot.axisWidget(QwtPlot::yRight)->setMargin(static_cast<int>(kColorBarGap + kColorBarWidth));

  auto* legend = new QwtLegend;
  legend->setFont(figureFont(8.5));
  plot.insertLegend(legend, QwtPlot::BottomLegend);
}

void SectionPlot::Parts::addLayers() {
  using namespace section_items;
  cells(scene, colors)->attach(&plot);
  lines({scene.surface}, {}, Qt::black, {1.2, false})->attach(&plot);
  markers(scene.geophones, QStringLiteral("Geophones"), Marker::kGeophone)->attach(&plot);
  markers(scene.shots, QStringLiteral("Shots"), Marker::kShot)->attach(&plot);
  if (!scene.contours.empty()) contours(scene, options.contourStyle)->attach(&plot);
  if (!scene.rays.empty()) {
    lines(scene.rays, QStringLiteral("Rays"), rayColor(scene.rays.size()), {0.5, false})
        ->attach(&plot);
  }
  if (!scene.coverageLimit.empty()) {
    lines({scene.coverageLimit}, QStringLiteral("Coverage limit"), QColor(200, 0, 120), {1.4, true})
        ->attach(&plot);
  }
}

void SectionPlot::Parts::measure(double widthMm, double heightMm, SectionFigureLayout& layout) {
  const double perMm = pointsPerMm();
  QImage sheet(1, 1, QImage::Format_RGB32);
  sheet.setDotsPerMeterX(static_cast<int>(std::lround(perMm * 1000.0)));
  sheet.setDotsPerMeterY(static_cast<int>(std::lround(perMm * 1000.0)));
  QPainter painter(&sheet);
  SectionRenderer renderer(colors);
  renderer.measureOnly();
  plot.resize(static_cast<int>(widthMm * perMm), static_cast<int>(heightMm * perMm));
  renderer.render(&plot, &painter, QRectF(0, 0, widthMm * perMm, heightMm * perMm));
  layout.widthMm = widthMm;
  layout.heightMm = heightMm;
  takePlace(renderer, 1.0 / perMm, layout);
}

void SectionPlot::Parts::takePlace(const SectionRenderer& renderer, double mmPerPoint,
                                   SectionFigureLayout& layout) {
  layout.leftMm = renderer.xMap().p1() * mmPerPoint;
  layout.rightMm = renderer.xMap().p2() * mmPerPoint;
  layout.topMm = renderer.elevationMap().p2() * mmPerPoint;
  layout.bottomMm = renderer.elevationMap().p1() * mmPerPoint;
  layout.minX = renderer.xMap().s1();
  layout.maxX = renderer.xMap().s2();
  layout.minElevation = renderer.elevationMap().s1();
  layout.maxElevation = renderer.elevationMap().s2();
  layout.verticalExaggeration = exaggeration;
}

/// Scales for a canvas of this size, points: as large as the section fits in, in the middle.
void SectionPlot::Parts::setScales(double width, double height) {
  const double perPoint =
      std::max((high.x - low.x) / (width - 2.0 * kSidePadding),
               (high.z - low.z) * exaggeration / (height - kTopPadding - kBottomPadding));
  const double halfWidth = 0.5 * width * perPoint;
  const double middleX = 0.5 * (low.x + high.x);
  const double halfHeight = 0.5 * height * perPoint / exaggeration;
  const double middleZ =
      0.5 * (low.z + high.z) + 0.5 * (kTopPadding - kBottomPadding) * perPoint / exaggeration;
  plot.setAxisScale(QwtPlot::xBottom, middleX - halfWidth, middleX + halfWidth);
  plot.setAxisScale(QwtPlot::yLeft, middleZ - halfHeight, middleZ + halfHeight);
  plot.setAxisScale(QwtPlot::yRight, scene.range.min, scene.range.max);
  const auto ticks = [](double length, double each) {
    return std::clamp(static_cast<int>(length / each), 2, 20);
  };
  plot.setAxisMaxMajor(QwtPlot::xBottom, ticks(width, 80.0));
  plot.setAxisMaxMajor(QwtPlot::yLeft, ticks(height, 40.0));
  plot.setAxisMaxMajor(QwtPlot::yRight, ticks(height, 30.0));
  plot.updateAxes();
}

SectionPlot::SectionPlot(SectionScene scene, const SectionFigureOptions& options)
    : mParts(std::make_unique<Parts>(std::move(scene), options)) {
  Parts& parts = *mParts;
  QString title = qt(options.title.empty() ? parts.scene.title : options.title).simplified();
  if (title.isEmpty()) title = qt(quantityName(parts.scene.quantity));
  mTitle = title.toStdString();
  parts.style();
  parts.addLayers();
}

SectionPlot::~SectionPlot() = default;

Status SectionPlot::layOut(double widthMm, double heightMm) {
  Parts& parts = *mParts;
  const double perMm = parts.pointsPerMm();
  const double spanX = parts.high.x - parts.low.x;
  const double spanZ = parts.high.z - parts.low.z;
  if (!(spanX > 0.0) || !(spanZ > 0.0) || !std::isfinite(spanX) || !std::isfinite(spanZ)) {
    return Status::failure("The section has no extent to draw.");
  }
  parts.exaggeration = parts.options.verticalExaggeration > 0.0
                           ? parts.options.verticalExaggeration
                           : legibleExaggeration(spanZ / spanX);

  QwtText title = plainText(qt(mTitle), 11.5, true);
  title.setText(
      QFontMetricsF(title.font()).elidedText(title.text(), Qt::ElideRight, 0.9 * widthMm * perMm),
      QwtText::PlainText);
  parts.plot.setTitle(title);
  parts.plot.setFooter(plainText(qt(sectionCaption(parts.scene, parts.exaggeration)), 8.5));

  // How wide the numbers at the axes are depends on the scales, which depend on the room that the
  // numbers leave: twice round settles it.
  double sheetHeightMm = heightMm > 0.0 ? heightMm : 0.6 * widthMm;
  parts.setScales(0.8 * widthMm * perMm, 0.6 * sheetHeightMm * perMm);
  for (int round = 0; round < 2; ++round) {
    parts.measure(widthMm, sheetHeightMm, mLayout);
    const double width = (mLayout.rightMm - mLayout.leftMm) * perMm;
    double height = (mLayout.bottomMm - mLayout.topMm) * perMm;
    if (heightMm <= 0.0 && width >= kMinCanvasWidth) {
      const double wanted = spanZ * parts.exaggeration / spanX * (width - 2.0 * kSidePadding) +
                            kTopPadding + kBottomPadding;
      const double chosen = std::max(std::min(wanted, kHighCanvasRatio * width), kLowCanvasHeight);
      sheetHeightMm += (chosen - height) / perMm;
      height = chosen;
    }
    if (width < kMinCanvasWidth || height < kMinCanvasHeight) {
      return Status::failure(
          "The picture is too small for the section with its axes and texts: "
          "choose a larger size.");
    }
    parts.setScales(width, height);
  }
  parts.measure(widthMm, sheetHeightMm, mLayout);
  return {};
}

void SectionPlot::paint(QPainter& painter, const QRectF& sheet) {
  SectionRenderer renderer(mParts->colors);
  renderer.render(&mParts->plot, &painter, sheet);
  // A sheet of whole pixels is not quite the sheet that was laid out; Qwt has fitted the plot to
  // it.
  const double points =
      sheet.width() * mParts->plot.logicalDpiX() / painter.device()->logicalDpiX();
  mParts->takePlace(renderer, mLayout.widthMm / points, mLayout);
}

double legibleExaggeration(double heightOverWidth) {
  constexpr double kLegible = 0.25;
  for (const double factor : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (factor * heightOverWidth >= kLegible) return factor;
  }
  return 10.0;
}

}  // namespace talvesk
