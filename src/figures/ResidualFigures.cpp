#include "figures/ResidualFigures.h"

#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/SectionFigure.h"
#include "model/TomoDocument.h"
#include "view/VelocityDifference.h"

#include <QByteArray>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kHeightOverWidth = 0.5;  // of the plot over the offset
constexpr double kGroupsOverWidth = 0.3;  // of each of two
constexpr double kPoints = 8.0;
constexpr double kCellMm = 6.0;  // height of a row, where there is room
constexpr double kLeastMapMm = 60.0;
constexpr double kMostMapMm = 200.0;
constexpr double kAroundMapMm = 22.0;

/// Told apart by lightness as well as by hue.
struct Ink {
  QColor faint, line, dot, chosen, suspect;
};

Ink inkOf(const ResidualLook& look) {
  if (look.onDark)
    return {{120, 120, 124}, {235, 235, 235}, {120, 150, 190}, {255, 200, 90}, {255, 110, 90}};
  return {{150, 150, 150}, {30, 30, 30}, {150, 175, 205}, {10, 70, 150}, {200, 40, 30}};
}

PlotSeries dots(const QString& name, const QColor& color) {
  PlotSeries series;
  series.name = name;
  series.color = color;
  series.width = 0.0;
  series.symbols = true;
  return series;
}

PlotSeries line(const QString& name, const QColor& color, double width, bool dashed = false) {
  PlotSeries series;
  series.name = name;
  series.color = color;
  series.width = width;
  series.dashed = dashed;
  return series;
}

PlotSeries zeroLine(double from, double to, const Ink& ink) {
  PlotSeries zero = line({}, ink.faint, 1.0);
  zero.points = {{from, 0.0}, {to, 0.0}};
  return zero;
}

QString number(double value, int decimals, const QLocale& locale) {
  const double unit = std::pow(10.0, decimals);
  return locale.toString(std::round(value * unit) / unit + 0.0, 'f', decimals);  // no -0.0
}

QString milliseconds(double seconds, const QLocale& locale) {
  return number(1e3 * seconds, 2, locale);
}

/// Places in metres, as short as the distance of neighbours allows.
QString placeText(double x, const QLocale& locale) {
  return std::isfinite(x) ? locale.toString(std::round(10.0 * shownLength(x)) / 10.0 + 0.0, 'g', 6)
                          : QStringLiteral("?");
}

Status prepareMap(const ResidualTable& table, const ResidualLook& look, FigureSheet& sheet,
                  FigureDrawing& drawing) {
  const MatrixPicture picture = residualMatrix(table, look);
  if (picture.isEmpty()) return Status::failure(Message::tr("There are no residuals to draw."));
  if (sheet.heightMm <= 0.0) {
    const double rows = kCellMm * static_cast<double>(picture.rows.size());
    sheet.heightMm = std::clamp(rows, kLeastMapMm, kMostMapMm) + kAroundMapMm;
  }
  drawing.paint = [picture](QPainter& painter, const QRectF& area) {
    const double margin = 0.01 * area.width();
    picture.paint(painter, area.adjusted(margin, margin, -margin, -margin), figureFont(kPoints),
                  MatrixInk::paper());
  };
  return {};
}

SeriesFigure plotOf(std::vector<PlotSeries> series, const QString& xTitle,
                    const ResidualLook& look) {
  SeriesFigure figure;
  figure.series = std::move(series);
  figure.xTitle = xTitle;
  figure.yTitle = residualAxis(look.unit);
  return figure;
}

Status prepareOffset(const ResidualTable& table, const ResidualLook& look, FigureSheet& sheet,
                     FigureDrawing& drawing) {
  if (sheet.heightMm <= 0.0) sheet.heightMm = kHeightOverWidth * sheet.widthMm;
  return prepareSeriesFigure(
      plotOf(offsetSeries(table, look), FigureWords::tr("Offset [%1]").arg(lengthUnitText()), look),
      sheet.widthMm, sheet.heightMm, drawing);
}

/// Shots above geophones.
Status prepareGroups(const ResidualTable& table, const ResidualLook& look, FigureSheet& sheet,
                     FigureDrawing& drawing) {
  if (sheet.heightMm <= 0.0) sheet.heightMm = 2.0 * kGroupsOverWidth * sheet.widthMm;
  SeriesFigure shots =
      plotOf(spreadSeries(spreadOfShots(table, look.unit), look), FigureWords::tr("Shot"), look);
  shots.wholeNumbers = true;
  const SeriesFigure geophones =
      plotOf(spreadSeries(spreadOfGeophones(table, look.unit), look),
             FigureWords::tr("Geophone at [%1]").arg(lengthUnitText()), look);
  const double half = sheet.heightMm / 2.0;
  FigureDrawing above;
  FigureDrawing below;
  Status status = prepareSeriesFigure(shots, sheet.widthMm, half, above);
  if (status.ok()) status = prepareSeriesFigure(geophones, sheet.widthMm, half, below);
  drawing.paint = [above, below](QPainter& painter, const QRectF& area) {
    const double middle = area.height() / 2.0;
    above.paint(painter, area.adjusted(0.0, 0.0, 0.0, -middle));
    below.paint(painter, area.adjusted(0.0, middle, 0.0, 0.0));
  };
  return status;
}

}  // namespace

QString residualAxis(ResidualUnit unit) {
  return unit == ResidualUnit::kErrors ? FigureWords::tr("Computed minus measured [pick errors]")
                                       : FigureWords::tr("Computed minus measured [ms]");
}

QString residualText(const ResidualTable& table, std::size_t pick, const QLocale& locale) {
  const PickResidual& own = table.picks[pick];
  const double errors = own.value(ResidualUnit::kErrors);
  QString text =
      FigureWords::tr(
          "Shot %1, geophone %2 at %3, offset %4: measured %5 ms, computed %6 ms, "
          "residual %7 ms, error %8 ms (%9 errors)")
          .arg(own.record + 1)
          .arg(own.receiver + 1)
          .arg(withLengthUnit(placeText(table.columns[own.column].x, locale)),
               withLengthUnit(placeText(own.offset, locale)), milliseconds(own.measured, locale),
               milliseconds(own.computed(), locale), milliseconds(own.residual, locale),
               milliseconds(own.sigma, locale), number(errors, 1, locale));
  if (own.suspect) text += FigureWords::tr("; suspect");
  return text;
}

MatrixPicture residualMatrix(const ResidualTable& table, const ResidualLook& look) {
  MatrixPicture picture;
  if (!table.known) return picture;
  for (const ResidualRow& row : table.rows) {
    picture.rows.push_back({QString::number(row.record + 1), row.standsOut});
  }
  for (const ResidualColumn& column : table.columns) {
    picture.columns.push_back({placeText(column.x, look.numbers), column.standsOut});
  }
  picture.values.assign(table.cells.size(), std::numeric_limits<double>::quiet_NaN());
  for (std::size_t i = 0; i < table.cells.size(); ++i) {
    if (table.cells[i] == ResidualTable::kNone) continue;
    picture.values[i] = table.picks[table.cells[i]].value(look.unit);
    if (table.picks[table.cells[i]].suspect) picture.marked.push_back(i);
  }
  picture.limit = residualLimit(picture.values, look.unit);
  picture.heading = FigureWords::tr("Geophone at [%1]; hatched: no pick, with a dot: suspect")
                        .arg(lengthUnitText());
  picture.rowTitle = FigureWords::tr("Shot, along the line");
  picture.legendTitle = residualAxis(look.unit);
  picture.numbers = look.numbers;
  return picture;
}

std::vector<PlotSeries> offsetSeries(const ResidualTable& table, const ResidualLook& look) {
  const Ink ink = inkOf(look);
  PlotSeries all = dots(FigureWords::tr("Picks"), ink.dot);
  PlotSeries suspects = dots(FigureWords::tr("Suspect"), ink.suspect);
  PlotSeries chosen = dots({}, ink.chosen);
  if (look.shot) chosen.name = FigureWords::tr("Shot %1").arg(*look.shot + 1);
  double most = 0.0;
  for (const PickResidual& pick : table.picks) {
    if (!std::isfinite(pick.offset)) continue;
    most = std::max(most, pick.offset);
    const bool own = look.shot && pick.record == *look.shot;
    PlotSeries& group = pick.suspect ? suspects : own ? chosen : all;
    group.points.push_back({pick.offset, pick.value(look.unit)});
  }
  if (all.points.size() + suspects.points.size() + chosen.points.size() == 0) return {};
  PlotSeries median = line(FigureWords::tr("Running median"), ink.line, 2.0);
  PlotSeries band = line(FigureWords::tr("One standard deviation"), ink.line, 1.0, true);
  const std::vector<ResidualSpread> spreads = spreadOverOffset(table, look.unit);
  for (const ResidualSpread& own : spreads) median.points.push_back({own.at, own.median});
  for (const ResidualSpread& own : spreads) band.points.push_back({own.at, own.low});
  band.points.push_back({std::nan(""), 0.0});
  for (const ResidualSpread& own : spreads) band.points.push_back({own.at, own.high});
  std::vector<PlotSeries> series = {zeroLine(0.0, most, ink), all, chosen, suspects, band, median};
  series.erase(std::remove_if(series.begin(), series.end(),
                              [](const PlotSeries& each) { return each.points.empty(); }),
               series.end());
  return series;
}

std::vector<PlotSeries> spreadSeries(const std::vector<ResidualSpread>& spreads,
                                     const ResidualLook& look) {
  if (spreads.empty()) return {};
  const Ink ink = inkOf(look);
  std::vector<PlotSeries> series = {zeroLine(spreads.front().at, spreads.back().at, ink)};
  for (const bool standsOut : {false, true}) {
    const QColor color = standsOut ? ink.suspect : ink.chosen;
    PlotSeries bars = line({}, color, standsOut ? 2.5 : 1.5);
    PlotSeries medians = dots(standsOut ? FigureWords::tr("Stands out")
                                        : FigureWords::tr("Median and one standard deviation"),
                              color);
    for (const ResidualSpread& own : spreads) {
      if (own.standsOut != standsOut) continue;
      const Point2D bar[] = {{own.at, own.low}, {own.at, own.high}, {std::nan(""), 0.0}};
      bars.points.insert(bars.points.end(), std::begin(bar), std::end(bar));
      medians.points.push_back({own.at, own.median});
    }
    if (!medians.points.empty()) series.insert(series.end(), {bars, medians});
  }
  return series;
}

Status showResidualsAlongRays(const TomoDocument& document, const ResidualTable& table,
                              ResidualUnit unit, SectionFigureOptions& section) {
  std::optional<CellValues> values = residualsAlongRays(document, table, unit);
  if (!values) return Status::failure(Message::tr("There are no rays of this section."));
  const double limit = residualLimit(values->values, unit);
  section.scene = SectionSceneOptions();
  section.scene.coverageLimit = false;
  section.scene.range = ValueRange{-limit, limit};
  section.scene.values = std::move(values);
  section.palette = differencePalette();
  section.colorBar = ColorBar::kVertical;
  return {};
}

Status prepareResidualFigure(const TomoDocument& document, const ResidualTable& table,
                             ResidualView view, const ResidualLook& look,
                             const SectionFigureOptions& sheet, FigureDrawing& drawing) {
  if (table.picks.empty()) return Status::failure(Message::tr("There are no residuals to draw."));
  if (view == ResidualView::kSection) {
    SectionFigureOptions section = sheet;
    const Status status = showResidualsAlongRays(document, table, look.unit, section);
    return status.ok() ? prepareSectionFigure(document, section, drawing) : status;
  }
  FigureSheet size{sheet.widthMm, sheet.heightMm, sheet.dpi, document.title};
  const auto prepare = view == ResidualView::kMap      ? prepareMap
                       : view == ResidualView::kOffset ? prepareOffset
                                                       : prepareGroups;
  const Status status = prepare(table, look, size, drawing);
  drawing.sheet = size;
  return status;
}

Status writeResidualFigure(const TomoDocument& document, const ResidualTable& table,
                           ResidualView view, const ResidualLook& look,
                           const SectionFigureOptions& sheet, const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    Status status = prepareResidualFigure(document, table, view, look, sheet, drawing);
    if (status.ok()) status = drawing.sheet.check(format);
    return status.ok() ? paintFigure(format, drawing.sheet, drawing.paint, bytes) : status;
  });
}

}  // namespace talvesk
