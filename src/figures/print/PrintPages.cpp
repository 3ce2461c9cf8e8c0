#include "figures/print/PrintPages.h"

#include "figures/FigureOutput.h"
#include "figures/print/PrintTiles.h"
#include "figures/print/TitleBlock.h"

#include <QByteArray>
#include <QPainter>
#include <QSizeF>
#include <QString>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

/// Figures without a scale have words made for sheets of this width, and grow with larger ones.
constexpr double kReadableMm = 280.0;

Status layOut(const PrintFigure& figure, const PrintSettings& settings, double scale,
              const QSizeF& room, LaidFigure& laid, const std::optional<PlotPart>& part = {}) {
  const PrintSize size{scale, room.width(), room.height(), settings.exaggeration, settings.msPerCm,
                       part};
  if (figure.alongLine) return figure.layOut(size, laid);
  const double magnified = std::max(room.width() / kReadableMm, 1.0);
  PrintSize readable = size;
  readable.widthMm /= magnified;
  readable.heightMm /= magnified;
  Status status = figure.layOut(readable, laid);
  FigureSheet& sheet = laid.drawing.sheet;
  const double factor = std::min(room.width() / sheet.widthMm, room.height() / sheet.heightMm);
  if (!status.ok() || factor == 1.0) return status;
  sheet.widthMm *= factor;
  sheet.heightMm *= factor;
  laid.drawing.paint = [factor, paint = laid.drawing.paint](QPainter& painter, const QRectF& rect) {
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(factor, factor);
    paint(painter, QRectF(QPointF(), rect.size() / factor));
    painter.restore();
  };
  return status;
}

/// The first of ascending scales at which the figure has room; 0: none.
double firstThatFits(const PrintFigure& figure, const PrintSettings& settings, const QSizeF& room,
                     const std::vector<double>& scales) {
  // One that cannot be laid out is none that is too large: it may be too small for its axes.
  const auto first = std::partition_point(scales.begin(), scales.end(), [&](double scale) {
    LaidFigure laid;
    return layOut(figure, settings, scale, room, laid).ok() && !fits(laid.drawing.sheet, room);
  });
  LaidFigure laid;
  const bool found = first != scales.end() && layOut(figure, settings, *first, room, laid).ok();
  return found ? *first : 0.0;
}

/// Those of three digits.
std::vector<double> finelyGraded() {
  std::vector<double> scales;
  for (double unit = 0.01; unit < PrintSheet::kMostScale / 100.0; unit *= 10.0) {
    for (int digits = 100; digits < 1000; ++digits) scales.push_back(digits * unit);
  }
  scales.push_back(PrintSheet::kMostScale);
  return scales;
}

void nameLargerPaper(const PrintFigure& figure, const PrintSettings& settings, PrintFit& fit) {
  const PrintSheet& own = settings.sheet;
  const bool lies = own.widthMm > own.heightMm;
  double least = 0.0;
  for (const Paper& paper : papers()) {
    const double area = paper.widthMm * paper.heightMm;
    if (least > 0.0 && area >= least) continue;
    for (const bool landscape : {lies, !lies}) {
      const PrintSheet sheet = PrintSheet::on(paper, landscape, own.scale);
      const QSizeF room = roomOn(sheet);
      LaidFigure laid;
      if (!layOut(figure, settings, own.scale, room, laid).ok()) continue;
      if (!fits(laid.drawing.sheet, room)) continue;
      fit.paper = paper.name;
      fit.landscape = landscape;
      least = area;
      break;
    }
  }
}

Status check(const PrintFigure& figure, const PrintSettings& settings) {
  const double scale = settings.sheet.scale;
  const bool within = scale >= PrintSheet::kLeastScale && scale <= PrintSheet::kMostScale;
  if (figure.alongLine && !within && scale != PrintSheet::kToFit) {
    return Status::failure(Message::tr("The scale must lie between 1:%1 and 1:%2.")
                               .arg(PrintSheet::kLeastScale)
                               .arg(Message::number(PrintSheet::kMostScale, 10)));
  }
  if (const double ms = settings.msPerCm;
      ms != 0.0 && !(ms >= PrintSettings::kLeastMsPerCm && ms <= PrintSettings::kMostMsPerCm)) {
    return Status::failure(Message::tr("A centimetre must be %1 to %2 ms.")
                               .arg(PrintSettings::kLeastMsPerCm)
                               .arg(Message::number(PrintSettings::kMostMsPerCm, 10)));
  }
  return FigureSheet{settings.sheet.widthMm, settings.sheet.heightMm, 150.0, {}}.check(
      FigureFormat::kPdf);
}

/// Of one sheet, or of as many as it takes, at the scale that is asked for or that fills it.
Status layOutOnPaper(const PrintFigure& figure, const PrintSettings& settings, double& scale,
                     LaidFigure& laid) {
  if (Status status = check(figure, settings); !status.ok()) return status;
  const QSizeF room = roomOn(settings.sheet);
  scale = figure.alongLine ? settings.sheet.scale : 1.0;
  if (scale == PrintSheet::kToFit) {
    scale = firstThatFits(figure, settings, room, finelyGraded());
    if (scale == 0.0) scale = PrintSheet::kMostScale;  // fails, or does not fit, as it should
  }
  return layOut(figure, settings, scale, room, laid);
}

PrintFit fitOf(const PrintSettings& settings, const FigureSheet& figure) {
  PrintFit fit;
  const QSizeF room = roomOn(settings.sheet);
  fit.fits = fits(figure, room);
  fit.figureWidthMm = figure.widthMm;
  fit.figureHeightMm = figure.heightMm;
  fit.roomWidthMm = room.width();
  fit.roomHeightMm = room.height();
  if (fit.fits) fit.columns = fit.rows = 1;
  return fit;
}

/// Into parts that have room, where there is a way.
PrintCut cutOf(const PrintFigure& figure, const PrintSettings& settings, double scale,
               const LaidFigure& whole, std::vector<LaidFigure>& parts) {
  const FigureSheet& sheet = whole.drawing.sheet;
  if (!figure.alongLine || std::max(sheet.widthMm, sheet.heightMm) > FigureSheet::kMaxMm) return {};
  const QSizeF room = roomOn(settings.sheet);
  const auto layOutPart = [&](const PlotPart& part, LaidFigure& laid) {
    return layOut(figure, settings, scale, room, laid, part);
  };
  return cutToSheets(whole, room, layOutPart, parts);
}

void findWays(const PrintFigure& figure, const PrintSettings& settings, PrintFit& fit) {
  if (fit.fits || !figure.alongLine) return;
  fit.byTimes = figure.upright == PrintFigure::Upright::kTime && settings.msPerCm > 0.0;
  const QSizeF room = roomOn(settings.sheet);
  fit.scale = firstThatFits(figure, settings, room,
                            roundNumbers(std::max(settings.sheet.scale, PrintSheet::kLeastScale),
                                         PrintSheet::kMostScale));
  if (settings.sheet.scale != PrintSheet::kToFit) nameLargerPaper(figure, settings, fit);
}

/// Says what a figure takes that does not fit, and what would.
/// \param splits whether several sheets were tried
Status refuse(const PrintFit& fit, double scale, bool splits) {
  if (fit.scale == 0.0 && fit.byTimes) {
    return Status::failure(
        Message::tr("The figure fits this sheet at no scale: choose a larger sheet, or more "
                    "milliseconds to a centimetre."));
  }
  if (fit.scale == 0.0) {
    return Status::failure(
        Message::tr("The figure fits this sheet at no scale: choose a larger sheet."));
  }
  if (splits) {
    return Status::failure(
        Message::tr("At 1:%1 the figure is too large even for many sheets: choose 1:%2, or a "
                    "scale between them.")
            .arg(scale)
            .arg(Message::number(fit.scale, 10)));
  }
  return Status::failure(
      Message::tr("At 1:%1 the figure takes %2 x %3 mm, and the sheet has room "
                  "for %4 x %5 mm: choose 1:%6 or a larger sheet, or have it split.")
          .arg(scale)
          .arg(std::ceil(fit.figureWidthMm))
          .arg(std::ceil(fit.figureHeightMm))
          .arg(std::floor(fit.roomWidthMm))
          .arg(std::floor(fit.roomHeightMm))
          .arg(Message::number(fit.scale, 10)));
}

}  // namespace

Status preparePrint(const PrintFigure& figure, const PrintSettings& settings, PrintPages& pages,
                    PrintFit* told) {
  double scale = 0.0;
  LaidFigure laid;
  if (Status status = layOutOnPaper(figure, settings, scale, laid); !status.ok()) return status;
  PrintFit fit = fitOf(settings, laid.drawing.sheet);
  const bool split = settings.tiles && figure.alongLine;
  std::vector<LaidFigure> parts{laid};
  if (!fit.fits) {
    const PrintCut cut = cutOf(figure, settings, scale, laid, parts);
    fit.columns = cut.columns;
    fit.rows = cut.rows;
  }
  if (!fit.fits && !(split && fit.columns > 0)) {
    findWays(figure, settings, fit);
    if (told != nullptr) *told = fit;
    return refuse(fit, scale, split);
  }
  if (told != nullptr) *told = fit;
  PrintTiles tiles(settings.sheet, std::move(parts), fit.columns);
  const std::string& title = settings.title.empty() ? figure.title : settings.title;
  tiles.block.title = QString::fromStdString(title).simplified();
  if (figure.alongLine) tiles.block.scale = scale;
  tiles.block.exaggeration = laid.exaggeration;
  if (figure.upright == PrintFigure::Upright::kTime) tiles.block.msPerCm = settings.msPerCm;
  pages.sheet = {settings.sheet.widthMm, settings.sheet.heightMm, 150.0, title};
  pages.columns = fit.columns;
  pages.rows = fit.rows;
  pages.scale = tiles.block.scale;
  pages.figureWidthMm = fit.figureWidthMm;
  pages.figureHeightMm = fit.figureHeightMm;
  pages.places.clear();
  for (std::size_t page = 0; page < pages.count(); ++page) {
    pages.places.push_back(tiles.place(page));
  }
  pages.paint = [tiles = std::move(tiles)](std::size_t page, QPainter& painter,
                                           const QRectF& rect) {
    tiles.paint(page, painter, rect);
  };
  return {};
}

double proposedScale(const PrintFigure& figure, const PrintSettings& settings) {
  constexpr double kFirst = PrintSheet::kFirstScale;
  if (!figure.alongLine) return kFirst;
  const double fitting = firstThatFits(figure, settings, roomOn(settings.sheet),
                                       roundNumbers(kFirst, PrintSheet::kMostScale));
  return fitting > 0.0 ? fitting : kFirst;
}

Status writePrint(const std::vector<PrintPages>& sets, const std::string& path) {
  std::vector<std::pair<const PrintPages*, std::size_t>> all;
  for (const PrintPages& set : sets) {
    for (std::size_t page = 0; page < set.count(); ++page) all.emplace_back(&set, page);
  }
  const auto paint = [&all](std::size_t page, QPainter& painter, const QRectF& rect) {
    all[page].first->paint(all[page].second, painter, rect);
    return Status();
  };
  QByteArray bytes;
  const FigureSheet sheet = sets.empty() ? FigureSheet() : sets.front().sheet;
  const Status status = paintFigurePages(sheet, all.size(), paint, bytes);
  return status.ok() ? writeBytes(path, bytes) : status;
}

}  // namespace talvesk
