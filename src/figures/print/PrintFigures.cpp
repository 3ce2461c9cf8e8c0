#include "figures/print/PrintFigures.h"

#include "figures/DepthProfileFigure.h"
#include "figures/FigureWords.h"
#include "figures/GatherFigure.h"
#include "figures/GatherScene.h"
#include "figures/MisfitFigures.h"
#include "figures/SectionPlot.h"
#include "figures/print/PrintSheet.h"
#include "model/TomoDocument.h"

#include <QPainter>
#include <algorithm>
#include <map>
#include <memory>

namespace talvesk {
namespace {

using Upright = PrintFigure::Upright;

constexpr double kMeetMm = 0.5 * kPrintOverlapMm;
constexpr double kHighOverWide = 0.62;  ///< of curves that could be of any height, at most

double heightOf(const PrintSize& size) {
  return std::min(size.heightMm, kHighOverWide * size.widthMm);
}

std::string titleOr(const TomoDocument& document, const QString& otherwise) {
  return document.title.empty() ? otherwise.toStdString() : document.title;
}

/// A title that names the line and what is shown of it.
std::string titleAnd(const TomoDocument& document, const QString& what) {
  if (document.title.empty()) return what.toStdString();
  return document.title + ": " + what.toStdString();
}

/// Sections are made once for every exaggeration that they are asked for; laying one out is quick.
struct SectionPlots {
  const TomoDocument& document;
  SectionFigureOptions options;
  std::map<double, std::shared_ptr<SectionPlot>> made;

  Status at(double exaggeration, std::shared_ptr<SectionPlot>& plot) {
    std::shared_ptr<SectionPlot>& own = made[exaggeration];
    if (own == nullptr) {
      SectionFigureOptions dress = options;
      dress.showTitle = false;  // it stands in the block
      if (exaggeration > 0.0) dress.verticalExaggeration = exaggeration;
      std::unique_ptr<SectionPlot> fresh;
      if (Status status = makeSectionPlot(document, dress, fresh); !status.ok()) return status;
      own = std::move(fresh);
    }
    plot = own;
    return {};
  }
};

PlotPlace placeOf(const SectionFigureLayout& layout) {
  PlotPlace place;
  place.widthMm = layout.widthMm;
  place.heightMm = layout.heightMm;
  place.leftMm = layout.leftMm;
  place.topMm = layout.topMm;
  place.rightMm = layout.rightMm;
  place.bottomMm = layout.bottomMm;
  place.left = layout.minX;
  place.right = layout.maxX;
  place.bottom = layout.minElevation;
  place.top = layout.maxElevation;
  return place;
}

Status layOutSection(SectionPlots& plots, const PrintSize& size, LaidFigure& laid) {
  std::shared_ptr<SectionPlot> plot;
  Status status = plots.at(size.exaggeration, plot);
  if (status.ok()) status = plot->layOutToScale(size.scale, size.part, kMeetMm);
  if (!status.ok()) return status;
  const SectionFigureLayout& layout = plot->layout();
  laid.drawing.sheet = {layout.widthMm, layout.heightMm, 150.0, plot->title()};
  laid.exaggeration = layout.verticalExaggeration;
  laid.place = placeOf(layout);
  laid.drawing.paint = [plot, scale = size.scale, part = size.part](QPainter& painter,
                                                                    const QRectF& rect) {
    // Others may have had it laid out at theirs meanwhile.
    if (plot->layOutToScale(scale, part, kMeetMm).ok()) plot->paint(painter, rect);
  };
  return {};
}

}  // namespace

PrintFigure printedSection(const TomoDocument& document, const SectionFigureOptions& options) {
  PrintFigure figure;
  figure.alongLine = true;
  figure.upright = Upright::kElevation;
  const auto plots = std::make_shared<SectionPlots>(SectionPlots{document, options, {}});
  // As above the section on the screen: without a title of its own it is what the colours show.
  std::shared_ptr<SectionPlot> plot;
  if (plots->at(0.0, plot).ok()) figure.title = plot->title();
  if (figure.title.empty()) figure.title = titleOr(document, FigureWords::tr("Section"));
  figure.layOut = [plots](const PrintSize& size, LaidFigure& laid) {
    return layOutSection(*plots, size, laid);
  };
  return figure;
}

PrintFigure printedCurves(const TomoDocument& document, const TravelTimeFigureOptions& options) {
  PrintFigure figure;
  figure.title = titleOr(document, FigureWords::tr("Travel times"));
  figure.alongLine = true;
  figure.upright = Upright::kTime;
  figure.layOut = [&document, options](const PrintSize& size, LaidFigure& laid) {
    TravelTimeFigureOptions dress = options;
    dress.showTitle = false;
    dress.scale = size.scale;
    dress.msPerCm = size.msPerCm;
    dress.heightMm = heightOf(size);
    dress.part = size.part;
    return prepareTravelTimeFigure(document, dress, laid.drawing, &laid.place);
  };
  return figure;
}

PrintFigure printedLayers(const TomoDocument& document,
                          const refractionDataStructure::Interpretation& profile,
                          const RefractionFigureOptions& options) {
  PrintFigure figure;
  figure.title = titleOr(document, FigureWords::tr("Refraction Profile"));
  figure.alongLine = true;
  figure.upright = Upright::kElevation;
  figure.layOut = [&document, &profile, options](const PrintSize& size, LaidFigure& laid) {
    RefractionFigureOptions dress = options;
    dress.showTitle = false;
    dress.scale = size.scale;
    dress.verticalExaggeration = size.exaggeration;
    dress.part = size.part;
    return prepareRefractionFigure(document, profile, dress, laid.drawing, &laid.exaggeration,
                                   &laid.place);
  };
  return figure;
}

PrintFigure printedGather(const TomoDocument& document, std::size_t shot,
                          const GatherFigureOptions& options) {
  PrintFigure figure;
  GatherScene scene;
  const bool shown = buildGatherScene(document, shot, options, scene).ok();
  figure.title = shown ? scene.title : std::string();
  figure.alongLine = shown && !scene.byChannel;
  figure.upright = figure.alongLine ? Upright::kTime : Upright::kOther;
  figure.layOut = [&document, shot, options, alongLine = figure.alongLine](const PrintSize& size,
                                                                           LaidFigure& laid) {
    GatherFigureOptions dress = options;
    dress.showTitle = false;
    dress.scale = alongLine ? size.scale : 0.0;
    dress.msPerCm = alongLine ? size.msPerCm : 0.0;
    dress.widthMm = size.widthMm;
    dress.heightMm = alongLine ? heightOf(size) : size.heightMm;
    dress.part = size.part;
    return prepareGatherFigure(document, shot, dress, laid.drawing, &laid.place);
  };
  return figure;
}

PrintFigure printedMisfit(const TomoDocument& document, const InversionRecord& record) {
  PrintFigure figure;
  figure.title = titleAnd(document, FigureWords::tr("Misfit in each iteration"));
  figure.layOut = [&record](const PrintSize& size, LaidFigure& laid) {
    laid.drawing.sheet = {size.widthMm, heightOf(size), 150.0, {}};
    return prepareMisfitHistoryFigure(record, size.widthMm, heightOf(size), laid.drawing);
  };
  return figure;
}

PrintFigure printedResiduals(const TomoDocument& document, const ResidualTable& table,
                             ResidualView view, const SectionFigureOptions& look) {
  if (view == ResidualView::kSection) {
    SectionFigureOptions section = look;
    const Status shown =
        showResidualsAlongRays(document, table, ResidualUnit::kMilliseconds, section);
    PrintFigure figure = printedSection(document, section);
    figure.title = titleAnd(document, FigureWords::tr("Residuals along the rays"));
    if (!shown.ok()) figure.layOut = [shown](const PrintSize&, LaidFigure&) { return shown; };
    return figure;
  }
  PrintFigure figure;
  figure.title = titleAnd(document, view == ResidualView::kMap
                                        ? FigureWords::tr("Residuals by shot and geophone")
                                    : view == ResidualView::kOffset
                                        ? FigureWords::tr("Residuals over the offset")
                                        : FigureWords::tr("Residuals of shots and of geophones"));
  figure.layOut = [&document, &table, view](const PrintSize& size, LaidFigure& laid) {
    SectionFigureOptions sheet;
    sheet.widthMm = size.widthMm;
    sheet.heightMm = view == ResidualView::kMap ? 0.0 : heightOf(size);
    return prepareResidualFigure(document, table, view, {}, sheet, laid.drawing);
  };
  return figure;
}

PrintFigure printedDepthProfile(const TomoDocument& document, const DepthProfiles& section,
                                double x) {
  PrintFigure figure;
  figure.title = titleAnd(document, FigureWords::tr("Depth profile"));
  // Places that are shown rounded may lie a hair beyond the ends.
  const double within = std::clamp(x, section.left(), std::max(section.left(), section.right()));
  figure.layOut = [&section, profile = section.at(within)](const PrintSize& size,
                                                           LaidFigure& laid) {
    const double high = std::min(size.heightMm, size.widthMm);
    return prepareDepthProfileFigure(profile, section, size.widthMm, high, laid.drawing);
  };
  return figure;
}

PrintFigure printedElastic(const ElasticLine& line, const ElasticFigureOptions& options) {
  PrintFigure figure;
  figure.title = options.title.empty() ? FigureWords::tr("P and S").toStdString() : options.title;
  figure.alongLine = true;
  figure.layOut = [&line, options](const PrintSize& size, LaidFigure& laid) {
    ElasticFigureOptions dress = options;
    dress.title.clear();
    dress.scale = size.scale;
    dress.heightMm = size.heightMm;
    dress.part = size.part;
    return prepareElasticFigure(line, dress, laid.drawing, &laid.place);
  };
  return figure;
}

}  // namespace talvesk
