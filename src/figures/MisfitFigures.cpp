#include "figures/MisfitFigures.h"

#include "figures/FigureWords.h"
#include "figures/PlotSeries.h"
#include "model/InversionRecord.h"

#include <cmath>

namespace talvesk {
namespace {

const QColor kInk(31, 90, 150);
const QColor kPale(140, 140, 140);

PlotSeries curve(const QColor& ink) {
  PlotSeries series;
  series.color = ink;
  series.symbols = true;
  series.width = 1.2;
  return series;
}

}  // namespace

Status prepareMisfitHistoryFigure(const InversionRecord& record, double widthMm, double heightMm,
                                  FigureDrawing& drawing) {
  PlotSeries section = curve(kInk);
  PlotSeries pass = curve(kPale);
  section.name = FigureWords::tr("Section");
  pass.name = FigureWords::tr("Last solver pass");
  const auto take = [](std::vector<Point2D>& points, std::size_t iteration, int count,
                       double rmse) {
    if (count == 0 || !std::isfinite(rmse)) return;
    points.push_back({static_cast<double>(iteration), 1e3 * rmse});
  };
  for (std::size_t i = 0; i < record.sectionHistory.size(); ++i) {
    take(section.points, i, record.sectionHistory[i].count, record.sectionHistory[i].rmse);
  }
  const bool fitted = record.fit && !section.points.empty();  // without solver passes
  for (std::size_t i = 0; !fitted && i < record.history.size(); ++i) {
    take(pass.points, i + 1, record.history[i].count, record.history[i].rmse);
  }
  if (section.points.empty() && pass.points.empty()) {
    return Status::failure(Message::tr("The inversion has no misfit to draw."));
  }
  SeriesFigure figure;
  for (const PlotSeries& each : {pass, section}) {
    if (!each.points.empty()) figure.series.push_back(each);
  }
  figure.xTitle = FigureWords::tr("External iteration");
  figure.yTitle = FigureWords::tr("RMS misfit [ms]");
  figure.wholeNumbers = figure.zeroBased = true;
  return prepareSeriesFigure(figure, widthMm, heightMm, drawing);
}

}  // namespace talvesk
