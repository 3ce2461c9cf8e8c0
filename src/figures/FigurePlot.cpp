#include "figures/FigurePlot.h"

#include "figures/FigureFile.h"
#include "figures/FigureNumbers.h"
#include "figures/FigureOutput.h"
#include "figures/ShownScale.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <vector>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_item.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

constexpr int kSheetMargin = 8;  ///< points of 1/96 inch

QwtText plainText(const QString& words, double points, bool bold = false) {
  QwtText result(words, QwtText::PlainText);
  result.setFont(figureFont(points, bold));
  result.setRenderFlags(Qt::AlignCenter | Qt::TextWordWrap);
  return result;
}

/// Sets the title of an upright axis in lines that have room, with some to spare: layout and
/// painter measure letters a little differently, and a line that only one of them breaks loses its
/// end. \param length of the axis, points \return whether the title has changed
bool breakTitle(QwtPlot& plot, int axis, double length) {
  constexpr double kSure = 0.9;
  QwtText title = plot.axisTitle(axis);
  const auto widthOf = [&title](const QString& words) {
    QwtText line(words, QwtText::PlainText);
    line.setFont(title.font());
    return line.textSize().width();
  };
  QStringList lines;
  for (const QString& word : title.text().split(QRegularExpression(QStringLiteral("[ \n]")))) {
    const QString longer = lines.isEmpty() ? word : lines.back() + QLatin1Char(' ') + word;
    if (lines.isEmpty() || widthOf(longer) > kSure * length) {
      lines << word;
    } else {
      lines.back() = longer;
    }
  }
  const QString broken = lines.join(QLatin1Char('\n'));
  if (broken == title.text()) return false;
  title.setText(broken, QwtText::PlainText);
  plot.setAxisTitle(axis, title);
  return true;
}

}  // namespace

/// Seats the scales so that a position has one meaning on the sheet, and keeps the maps from values
/// to the sheet.
class FigurePlot::Renderer : public QwtPlotRenderer {
 public:
  void measureOnly() { mMeasureOnly = true; }

  /// Qwt shortens a scale whose end labels it cannot seat. These labels have room; every scale is
  /// as long as the canvas.
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
    mYMap = filling[QwtPlot::yLeft];
    if (mMeasureOnly) return;
    QwtPlotRenderer::renderCanvas(plot, painter, rect, filling.data());
    painter->save();
    paintFigureFrame(*painter, rect);
    painter->restore();
  }

  PlotPlace place(double mmPerPoint) const {
    PlotPlace place;
    place.leftMm = mXMap.p1() * mmPerPoint;
    place.rightMm = mXMap.p2() * mmPerPoint;
    place.topMm = mYMap.p2() * mmPerPoint;
    place.bottomMm = mYMap.p1() * mmPerPoint;
    place.left = mXMap.s1();
    place.right = mXMap.s2();
    place.bottom = mYMap.s1();
    place.top = mYMap.s2();
    return place;
  }

 private:
  bool mMeasureOnly = false;
  mutable QwtScaleMap mXMap;
  mutable QwtScaleMap mYMap;
};

double PlotPlace::xToMm(double x) const {
  return leftMm + (x - left) / (right - left) * (rightMm - leftMm);
}

double PlotPlace::yToMm(double y) const {
  return topMm + (top - y) / (top - bottom) * (bottomMm - topMm);
}

FigurePlot::FigurePlot() : mPlot(std::make_unique<QwtPlot>()) {
  QwtPlot& plot = *mPlot;
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

  auto* legend = new QwtLegend;
  legend->setFont(figureFont(8.5));
  plot.insertLegend(legend, QwtPlot::BottomLegend);
}

FigurePlot::~FigurePlot() = default;

double FigurePlot::pointsPerMm() const {
  return mPlot->logicalDpiX() / kMmPerInch;
}

void FigurePlot::addAxis(int axis, const QString& title) {
  mPlot->enableAxis(axis);
  mPlot->setAxisTitle(axis, plainText(title, 9.5));
  mPlot->setAxisFont(axis, figureFont(8.5));
  setShownScale(*mPlot, axis, [](double value) { return figureNumber(value); });
  // The frame is the axis.
  mPlot->axisScaleDraw(axis)->enableComponent(QwtAbstractScaleDraw::Backbone, false);
  mPlot->axisWidget(axis)->setMargin(0);
}

void FigurePlot::setScale(int axis, const Scale& scale) {
  const int majors = std::clamp(static_cast<int>(scale.length / scale.spacing), 2, 20);
  if (scale.logarithmic) mPlot->setAxisScaleEngine(axis, new QwtLogScaleEngine);
  QwtScaleEngine& engine = *mPlot->axisScaleEngine(axis);
  QwtScaleDiv division =
      engine.divideScale(scale.from, scale.to, majors, scale.logarithmic ? 10 : 5);
  if (scale.wholeNumbers) {
    const QList<double> ticks = division.ticks(QwtScaleDiv::MajorTick);
    if (ticks.size() < 2 || std::abs(ticks[1] - ticks[0]) < 1.0) {
      division = engine.divideScale(scale.from, scale.to, majors, 1, 1.0);
    }
  }
  const double slack = 1e-9 * std::abs(scale.to - scale.from);
  for (int kind = 0; kind < QwtScaleDiv::NTickTypes; ++kind) {
    QList<double> kept;
    for (const double tick : division.ticks(kind)) {
      const bool whole = !scale.wholeNumbers || tick == std::floor(tick);
      if (whole && tick >= scale.firstTick - slack && tick <= scale.lastTick + slack) {
        kept.append(tick);
      }
    }
    division.setTicks(kind, kept);
  }
  mPlot->setAxisScaleDiv(axis, division);
}

void FigurePlot::setTexts(const std::string& title, const std::string& caption, double widthMm) {
  QwtText words = plainText(QString::fromStdString(title).simplified(), 11.5, true);
  words.setText(QFontMetricsF(words.font())
                    .elidedText(words.text(), Qt::ElideRight, 0.9 * widthMm * pointsPerMm()),
                QwtText::PlainText);
  mPlot->setTitle(words);
  mPlot->setFooter(plainText(QString::fromStdString(caption), 8.5));
}

void FigurePlot::add(QwtPlotItem* item) {
  item->attach(mPlot.get());
}

PlotPlace FigurePlot::measure(double widthMm, double heightMm) {
  const double perMm = pointsPerMm();
  QImage sheet(1, 1, QImage::Format_RGB32);
  setResolution(sheet, mPlot->logicalDpiX());
  QPainter painter(&sheet);
  Renderer renderer;
  renderer.measureOnly();
  mPlot->resize(static_cast<int>(widthMm * perMm), static_cast<int>(heightMm * perMm));
  renderer.render(mPlot.get(), &painter, QRectF(0, 0, widthMm * perMm, heightMm * perMm));
  PlotPlace place = renderer.place(1.0 / perMm);
  place.widthMm = widthMm;
  place.heightMm = heightMm;
  return place;
}

void FigurePlot::keepEndsFree() {
  constexpr int kHalfNumber = 26;
  mPlot->axisWidget(QwtPlot::xBottom)->setMinBorderDist(kHalfNumber, kHalfNumber);
}

Status FigurePlot::fit(double widthMm, double heightMm, double leastWidth, double leastHeight,
                       const std::function<void(double, double)>& setScales, PlotPlace& place) {
  const double perMm = pointsPerMm();
  // How wide the numbers at the axes are depends on the scales, which depend on the room that the
  // numbers leave: twice round settles it as a rule. A scale for another room would not be true.
  constexpr int kPatience = 2;
  constexpr int kRounds = 6;
  double setWidth = 0.0;
  double setHeight = 0.0;
  setScales(0.9 * widthMm * perMm, 0.8 * heightMm * perMm);
  for (int round = 0; round < kRounds; ++round) {
    place = measure(widthMm, heightMm);
    const double width = (place.rightMm - place.leftMm) * perMm;
    const double height = (place.bottomMm - place.topMm) * perMm;
    if (width < leastWidth || height < leastHeight) {
      return Status::failure(
          Message::tr("The picture is too small for what it shows with its axes and texts: "
                      "choose a larger size."));
    }
    bool broken = false;
    for (const int axis : {QwtPlot::yLeft, QwtPlot::yRight}) {
      if (mPlot->axisEnabled(axis)) broken = breakTitle(*mPlot, axis, height) || broken;
    }
    if (!broken && width == setWidth && height == setHeight) return {};
    // A last number that stands beyond the end, takes its room, and is gone from the scale that is
    // left goes to and fro: room for it is kept, then.
    if (round == kPatience) keepEndsFree();
    setScales(width, height);
    setWidth = width;
    setHeight = height;
  }
  place = measure(widthMm, heightMm);
  return {};
}

PlotPlace FigurePlot::paint(QPainter& painter, const QRectF& sheet, double widthMm) {
  Renderer renderer;
  renderer.render(mPlot.get(), &painter, sheet);
  const double points = sheet.width() * mPlot->logicalDpiX() / painter.device()->logicalDpiX();
  PlotPlace place = renderer.place(widthMm / points);
  place.widthMm = widthMm;
  place.heightMm = widthMm * sheet.height() / sheet.width();
  return place;
}

CanvasSize sizeOfPart(const CanvasSize& whole, const std::optional<PlotPart>& part) {
  if (!part) return whole;
  return {whole.widthMm > 0.0 ? part->widthMm : 0.0, whole.heightMm > 0.0 ? part->heightMm : 0.0};
}

Status fitSheet(const CanvasSize& wanted, double& widthMm, double& heightMm, const PlotPlace& place,
                const std::function<Status()>& fit) {
  constexpr double kBesideMm = 40.0;  // about what axes and texts take
  if (wanted.widthMm > 0.0) widthMm = wanted.widthMm + kBesideMm;
  if (wanted.heightMm > 0.0) heightMm = wanted.heightMm + kBesideMm;
  if (!(std::max(widthMm, heightMm) <= FigureSheet::kMaxMm)) return {};
  Status status = fit();
  // What they take in fact shows once they are laid out, and depends on the room a little.
  for (int round = 0; round < 2 && status.ok(); ++round) {
    if (wanted.widthMm > 0.0) widthMm += wanted.widthMm - (place.rightMm - place.leftMm);
    if (wanted.heightMm > 0.0) heightMm += wanted.heightMm - (place.bottomMm - place.topMm);
    status = fit();
  }
  return status;
}

QString figureNumber(double value, int digits) {
  return figureLocale().toString(value, 'g', digits);
}

void paintFigureFrame(QPainter& painter, const QRectF& rect) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 0.8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect);
}

}  // namespace talvesk
