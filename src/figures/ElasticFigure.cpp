#include "figures/ElasticFigure.h"

#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/PlotSeries.h"

#include <QByteArray>
#include <QPainter>
#include <QRectF>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include <qwt_plot.h>
#include <qwt_scale_draw.h>

namespace talvesk {
namespace {

using Quantity = ElasticQuantity;

constexpr double kPanelHeight = 48.0;    ///< millimetres, of axes and curves, where there is room
constexpr double kExtraRow = 12.0;       ///< of a title, or of a caption with the axis of distances
constexpr double kNumberExtent = 58.0;   ///< points for the numbers at all axes alike
constexpr double kPadding = 12.0;        ///< inside the axes, points of 1/96 inch
constexpr double kItems = 10.0;          ///< above the axes
constexpr double kDecadePadding = 1.15;  ///< inside a logarithmic axis, as a factor
constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

const std::array<QColor, 3> kLayerInk = {QColor(31, 90, 150), QColor(205, 102, 0),
                                         QColor(0, 125, 90)};
const QColor kImpossible(190, 0, 30);
const QColor kApart(60, 60, 60);
const QColor kPale(150, 150, 150);

double factorOf(Quantity quantity) {
  return kElasticColumns[static_cast<std::size_t>(quantity)].factor;
}

/// One plot: a quantity, or two of one unit, of which the second is dashed.
struct Panel {
  std::vector<Quantity> quantities;
  QString axis;
  bool marks = false;  ///< where the two waves do not go together
  bool moduli = false;
};

std::vector<Panel> panels() {
  return {
      {{Quantity::kVp, Quantity::kVs}, FigureWords::tr("Velocity [%1]").arg(velocityUnitText())},
      {{Quantity::kRatio}, FigureWords::tr("Vp/Vs"), true},
      {{Quantity::kPoisson}, FigureWords::tr("Poisson's ratio"), true},
      {{Quantity::kShear, Quantity::kYoung}, FigureWords::tr("G0, E0 [MPa]"), false, true},
      {{Quantity::kBulk, Quantity::kConstrained}, FigureWords::tr("K, M [MPa]"), false, true}};
}

PlotSeries curveOf(const ElasticLayer& layer, Quantity quantity, bool second) {
  PlotSeries curve;
  curve.color = kLayerInk[(layer.layer - 1) % kLayerInk.size()];
  curve.dashed = second;
  for (const ElasticPoint& point : layer.points) {
    curve.points.push_back({point.x, factorOf(quantity) * point.state[quantity].value});
  }
  return curve;
}

PlotSeries barsOf(const ElasticLayer& layer, Quantity quantity) {
  PlotSeries bars;
  bars.color = kLayerInk[(layer.layer - 1) % kLayerInk.size()].lighter(150);
  bars.width = 1.0;
  for (const ElasticPoint& point : layer.points) {
    const Estimate& own = point.state[quantity];
    if (!std::isfinite(own.value) || !std::isfinite(own.sigma)) continue;
    const double factor = factorOf(quantity);
    bars.points.push_back({point.x, factor * (own.value - own.sigma)});
    bars.points.push_back({point.x, factor * (own.value + own.sigma)});
    bars.points.push_back({kNowhere, kNowhere});
  }
  return bars;
}

/// Points of all layers that a reader must not take for sound.
template <typename Wanted>
PlotSeries dotsOf(const std::vector<ElasticLayer>& layers, Quantity quantity, const QString& name,
                  const QColor& color, Wanted wanted) {
  PlotSeries dots;
  dots.name = name;
  dots.color = color;
  dots.width = 0.0;
  dots.symbols = true;
  for (const ElasticLayer& layer : layers) {
    for (const ElasticPoint& point : layer.points) {
      const double value = point.state[quantity].value;
      if (wanted(point) && std::isfinite(value)) dots.points.push_back({point.x, value});
    }
  }
  return dots;
}

void addMarks(const std::vector<ElasticLayer>& layers, Quantity quantity,
              std::vector<PlotSeries>& series) {
  series.push_back(dotsOf(layers, quantity, FigureWords::tr("Depths by P and S differ"), kApart,
                          [](const ElasticPoint& point) { return point.topsDiffer; }));
  series.push_back(dotsOf(layers, quantity, FigureWords::tr("No ground: Vp/Vs below 1.41"),
                          kImpossible, [](const ElasticPoint& point) {
                            return point.state.verdict == ElasticVerdict::kNegativePoisson ||
                                   point.state.verdict == ElasticVerdict::kSNotSlower;
                          }));
}

std::vector<PlotSeries> seriesOf(const std::vector<ElasticLayer>& layers, const Panel& panel) {
  std::vector<PlotSeries> series;
  for (const ElasticLayer& layer : layers) {
    for (std::size_t i = 0; i < panel.quantities.size(); ++i) {
      const Quantity quantity = panel.quantities[i];
      PlotSeries bars = barsOf(layer, quantity);
      if (!bars.points.empty()) series.insert(series.begin(), std::move(bars));
      PlotSeries curve = curveOf(layer, quantity, i > 0);
      curve.name = FigureWords::tr("Layer %1").arg(layer.layer);
      if (panel.quantities.size() > 1) curve.name += QStringLiteral(": ") + elasticName(quantity);
      series.push_back(std::move(curve));
    }
  }
  if (panel.marks) addMarks(layers, panel.quantities.front(), series);
  series.erase(std::remove_if(series.begin(), series.end(),
                              [](const PlotSeries& one) {
                                return std::none_of(one.points.begin(), one.points.end(),
                                                    [](const Point2D& p) { return isFinite(p); });
                              }),
               series.end());
  return series;
}

/// Of values, from the least to the greatest.
struct Span {
  double from = std::numeric_limits<double>::infinity();
  double to = -std::numeric_limits<double>::infinity();

  void take(double value) {
    from = std::min(from, value);
    to = std::max(to, value);
  }
  bool empty() const { return from > to; }
};

/// A scale over so many points, with room around the values.
/// \param perPoint what a point stands for; 0: as much as makes them fill the room
FigurePlot::Scale scaleOf(Span span, double length, double spacing, bool logarithmic,
                          double perPoint = 0.0) {
  FigurePlot::Scale scale;
  if (logarithmic) {
    scale.from = span.from / kDecadePadding;
    scale.to = span.to * kDecadePadding;
  } else {
    // What does not change has a width, too.
    const double width = std::max({span.to - span.from, 0.02 * std::fabs(span.to), 1e-3});
    const double middle = 0.5 * (span.from + span.to);
    const double half = perPoint > 0.0
                            ? 0.5 * length * perPoint
                            : 0.5 * width * length / std::max(length - 2.0 * kPadding, 1.0);
    scale.from = middle - half;
    scale.to = middle + half;
  }
  scale.firstTick = scale.from;
  scale.lastTick = scale.to;
  scale.length = length;
  scale.spacing = spacing;
  scale.logarithmic = logarithmic;
  return scale;
}

/// What all plots share.
struct Common {
  double widthMm = 0.0;
  double panelMm = kPanelHeight;
  double scale = 0.0;  ///< metres to a metre of the sheet; 0: to fit
  Span distances;
  std::optional<PlotPart> part;
  double extraExtent = 0.0;  ///< of the next plot, points
  PlotPlace place;           ///< of the plot that was last laid out
};

/// A plot and how high it is.
struct Placed {
  std::shared_ptr<FigurePlot> plot;
  double heightMm = 0.0;
  double leftMm = 0.0;  ///< of its canvas
};

CanvasSize wholeCanvas(const Common& common) {
  if (!(common.scale > 0.0)) return {};
  const double perMm = FigurePlot().pointsPerMm();
  const double metres = std::max(common.distances.to - common.distances.from, 1e-3);
  return {std::max(1e3 * metres / common.scale + 2.0 * kPadding / perMm, 80.0 / perMm + 1.0), 0.0};
}

/// Moved so far that the middle of a part is theirs.
Span distancesOf(const Common& common) {
  Span moved = common.distances;
  if (!common.part || !(common.scale > 0.0)) return moved;
  const double by =
      1e-3 * common.scale * (common.part->middleMm() - 0.5 * wholeCanvas(common).widthMm);
  moved.from += by;
  moved.to += by;
  return moved;
}

Status addPanel(const Panel& panel, const std::vector<PlotSeries>& series, Common& common,
                const std::string& title, const std::string& caption, bool lowest,
                std::vector<Placed>& sheet) {
  Placed placed;
  placed.plot = std::make_shared<FigurePlot>();
  placed.heightMm = common.panelMm + (title.empty() ? 0.0 : kExtraRow) + (lowest ? kExtraRow : 0.0);
  FigurePlot& plot = *placed.plot;
  plot.addAxis(QwtPlot::xBottom, lowest ? FigureWords::distanceAxis() : QString());
  plot.addAxis(QwtPlot::yLeft, panel.axis);
  // The curves stand under each other.
  plot.plot().axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(kNumberExtent + common.extraExtent);
  plot.keepEndsFree();
  plot.setTexts(title, caption, common.widthMm);
  Span values;
  double z = kItems;
  for (const PlotSeries& one : series) {
    plot.add(seriesItem(one, z));
    z += 1e-3;
    for (const Point2D& p : one.points) {
      if (isFinite(p)) values.take(p.z);
    }
  }
  const bool logarithmic = panel.moduli && values.from > 0.0;
  const double perPoint = 1e-3 * common.scale / plot.pointsPerMm();
  const Span distances = distancesOf(common);
  const Status status = plot.fit(
      common.widthMm, placed.heightMm, 80.0, 50.0,
      [&](double width, double height) {
        plot.setScale(QwtPlot::xBottom, scaleOf(distances, width, 60.0, false, perPoint));
        plot.setScale(QwtPlot::yLeft, scaleOf(values, height, 22.0, logarithmic));
        plot.plot().updateAxes();
      },
      common.place);
  placed.leftMm = common.place.leftMm;
  if (status.ok()) sheet.push_back(std::move(placed));
  return status;
}

using FilledPanels = std::vector<std::pair<Panel, std::vector<PlotSeries>>>;

FilledPanels filledPanels(const std::vector<ElasticLayer>& layers) {
  FilledPanels filled;
  for (const Panel& panel : panels()) {
    std::vector<PlotSeries> series = seriesOf(layers, panel);
    if (!series.empty()) filled.emplace_back(panel, std::move(series));
  }
  return filled;
}

/// \param extents what numbers of each get beyond theirs, points
Status addPanels(const FilledPanels& filled, const std::string& title, const std::string& caption,
                 const std::vector<double>& extents, Common& common, std::vector<Placed>& sheet) {
  sheet.clear();
  for (std::size_t i = 0; i < filled.size(); ++i) {
    const bool lowest = i + 1 == filled.size();
    common.extraExtent = extents[i];
    const Status status =
        addPanel(filled[i].first, filled[i].second, common, i == 0 ? title : std::string(),
                 lowest ? caption : std::string(), lowest, sheet);
    if (!status.ok()) return status;
  }
  return {};
}

/// So that all begin at the same place: titles take one line or two.
Status alignPanels(const FilledPanels& filled, const std::string& title, const std::string& caption,
                   Common& common, std::vector<Placed>& sheet) {
  std::vector<double> extents(filled.size(), 0.0);
  Status status = addPanels(filled, title, caption, extents, common, sheet);
  if (!status.ok()) return status;
  double furthest = 0.0;
  for (const Placed& placed : sheet) furthest = std::max(furthest, placed.leftMm);
  bool aligned = true;
  for (std::size_t i = 0; i < sheet.size(); ++i) {
    extents[i] = std::round((furthest - sheet[i].leftMm) * sheet[i].plot->pointsPerMm());
    aligned = aligned && extents[i] == 0.0;
  }
  return aligned ? status : addPanels(filled, title, caption, extents, common, sheet);
}

std::vector<ElasticLayer> layersShown(const ElasticLine& line, std::uint32_t only) {
  std::vector<ElasticLayer> layers;
  std::copy_if(line.layers.begin(), line.layers.end(), std::back_inserter(layers),
               [only](const ElasticLayer& layer) { return only == 0 || layer.layer == only; });
  return layers;
}

std::string captionOf(const ElasticLine& line) {
  QStringList parts = {densityText(line.options.density)};
  if (line.hasErrors) parts << FigureWords::tr("Bars: one standard deviation, of the picks");
  return FigureWords::joined(parts).toStdString();
}

/// From the first plot, which begins as the last does, to the foot of the last.
PlotPlace aroundAll(const Common& common, const std::vector<Placed>& plots, double heightMm) {
  PlotPlace place = common.place;
  if (plots.empty()) return place;
  place.bottomMm += heightMm - plots.back().heightMm;
  place.heightMm = heightMm;
  place.top = place.bottom = 0.0;
  return place;
}

void paintSheet(const std::vector<Placed>& plots, double widthMm, QPainter& painter,
                const QRectF& sheet) {
  const double scale = sheet.width() / widthMm;
  double top = sheet.top();
  for (const Placed& placed : plots) {
    const double height = scale * placed.heightMm;
    placed.plot->paint(painter, QRectF(sheet.left(), top, sheet.width(), height), widthMm);
    top += height;
  }
}

}  // namespace

QString elasticName(ElasticQuantity quantity) {
  switch (quantity) {
    case Quantity::kVp:
      return FigureWords::tr("Vp");
    case Quantity::kVs:
      return FigureWords::tr("Vs");
    case Quantity::kRatio:
      return FigureWords::tr("Vp/Vs");
    case Quantity::kPoisson:
      return FigureWords::tr("Poisson's ratio");
    case Quantity::kDensity:
      return FigureWords::tr("Density");
    case Quantity::kShear:
      return FigureWords::tr("G0");
    case Quantity::kYoung:
      return FigureWords::tr("E0");
    case Quantity::kBulk:
      return FigureWords::tr("K");
    case Quantity::kConstrained:
      return FigureWords::tr("M");
  }
  return {};
}

QString elasticUnit(ElasticQuantity quantity) {
  switch (quantity) {
    case Quantity::kVp:
    case Quantity::kVs:
      return velocityUnitText();
    case Quantity::kRatio:
    case Quantity::kPoisson:
      return {};
    case Quantity::kDensity:
      return FigureWords::tr("kg/m3");
    default:
      return FigureWords::tr("MPa");
  }
}

QString elasticTitle(ElasticQuantity quantity) {
  const QString unit = elasticUnit(quantity);
  if (unit.isEmpty()) return elasticName(quantity);
  return QStringLiteral("%1 [%2]").arg(elasticName(quantity), unit);
}

QString densityText(const DensityRule& rule) {
  if (rule.gardner) return FigureWords::tr("Density from Vp by Gardner's rule");
  QStringList numbers;
  for (const double density : rule.layers) numbers << figureNumber(density);
  // Not with commas, which some languages have inside numbers.
  return FigureWords::tr("Density %1 kg/m3").arg(numbers.join(QStringLiteral("; ")));
}

Status prepareElasticFigure(const ElasticLine& line, const ElasticFigureOptions& options,
                            FigureDrawing& drawing, PlotPlace* place) {
  if (Status status = checkApplication("A figure"); !status.ok()) return status;
  const std::vector<ElasticLayer> layers = layersShown(line, options.layer);
  const FilledPanels filled = filledPanels(layers);
  if (filled.empty()) {
    return Status::failure(Message::tr("P and S have no velocity in common to draw."));
  }
  Common common;
  common.widthMm = options.widthMm;
  common.scale = options.scale;
  common.part = options.part;
  for (const ElasticLayer& layer : layers) {
    for (const ElasticPoint& point : layer.points) common.distances.take(point.x);
  }
  const double extra = kExtraRow + (options.title.empty() ? 0.0 : kExtraRow);
  if (options.heightMm > 0.0) {
    common.panelMm =
        std::min(kPanelHeight, (options.heightMm - extra) / static_cast<double>(filled.size()));
  }
  double height = extra + static_cast<double>(filled.size()) * common.panelMm;
  std::vector<Placed> plots;
  const CanvasSize wanted = sizeOfPart(wholeCanvas(common), common.part);
  const Status status = fitSheet(wanted, common.widthMm, height, common.place, [&] {
    return alignPanels(filled, options.title, captionOf(line), common, plots);
  });
  if (!status.ok()) return status;
  drawing.sheet = {common.widthMm, height, options.dpi, options.title};
  if (place != nullptr) *place = aroundAll(common, plots, height);
  drawing.paint = [plots, widthMm = common.widthMm](QPainter& painter, const QRectF& sheet) {
    paintSheet(plots, widthMm, painter, sheet);
  };
  return {};
}

Status writeElasticFigure(const ElasticLine& line, const ElasticFigureOptions& options,
                          const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    Status status = prepareElasticFigure(line, options, drawing);
    if (status.ok()) status = drawing.sheet.check(format);
    return status.ok() ? paintFigure(format, drawing.sheet, drawing.paint, bytes) : status;
  });
}

}  // namespace talvesk
