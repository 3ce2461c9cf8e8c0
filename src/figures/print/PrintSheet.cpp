#include "figures/FigureOutput.h"
#include "figures/FigurePlot.h"
#include "figures/SectionPlot.h"
#include "figures/print/PrintSheet.h"
#include "figures/print/TitleBlock.h"

#include <QByteArray>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

constexpr double kBlockGapMm = 3.0;  ///< between them
constexpr double kHighCurves = 0.7;  ///< height of curves over the width of the sheet, at most

/// What a figure takes at some scale, and how it is drawn there.
struct Laid {
  FigureDrawing drawing;
  double exaggeration = 0.0;
};
using LayOut = std::function<Status(double scale, Laid& laid)>;

QSizeF roomOn(const PrintSheet& sheet) {
  return {sheet.widthMm - 2.0 * PrintSheet::kMarginMm,
          sheet.heightMm - 2.0 * PrintSheet::kMarginMm - kBlockGapMm - TitleBlock::kHeightMm};
}

bool fits(const FigureSheet& figure, const QSizeF& room) {
  return figure.widthMm <= room.width() && figure.heightMm <= room.height();
}

/// Says what a figure takes that does not fit, and the next round scale at
/// which it does.
Status refuse(const PrintSheet& sheet, const FigureSheet& figure, const LayOut& layOut) {
  const QSizeF room = roomOn(sheet);
  for (const double scale : roundNumbers(sheet.scale, PrintSheet::kMostScale)) {
    Laid laid;
    if (!layOut(scale, laid).ok() || !fits(laid.drawing.sheet, room)) continue;
    return Status::failure(
        Message::tr("At 1:%1 the figure takes %2 x %3 mm, and the sheet has room "
                    "for %4 x %5 mm: choose 1:%6 or a larger sheet.")
            .arg(sheet.scale)
            .arg(std::ceil(figure.widthMm))
            .arg(std::ceil(figure.heightMm))
            .arg(std::floor(room.width()))
            .arg(std::floor(room.height()))
            .arg(Message::number(scale, 10)));
  }
  return Status::failure(
      Message::tr("The figure fits this sheet at no scale: choose a larger sheet."));
}

Status prepare(const PrintSheet& sheet, const LayOut& layOut, FigureDrawing& drawing) {
  if (!(sheet.scale >= PrintSheet::kLeastScale && sheet.scale <= PrintSheet::kMostScale)) {
    return Status::failure(Message::tr("The scale must lie between 1:%1 and 1:%2.")
                               .arg(PrintSheet::kLeastScale)
                               .arg(Message::number(PrintSheet::kMostScale, 10)));
  }
  drawing.sheet = {sheet.widthMm, sheet.heightMm, 150.0, {}};
  if (Status status = drawing.sheet.check(FigureFormat::kPdf); !status.ok()) return status;
  Laid laid;
  if (Status status = layOut(sheet.scale, laid); !status.ok()) return status;
  if (!fits(laid.drawing.sheet, roomOn(sheet))) return refuse(sheet, laid.drawing.sheet, layOut);

  drawing.sheet.title = laid.drawing.sheet.title;
  const TitleBlock block{QString::fromStdString(drawing.sheet.title).simplified(), sheet.scale,
                         laid.exaggeration};
  drawing.paint = [sheet, block, figure = laid.drawing](QPainter& painter, const QRectF& rect) {
    const double perMm = painter.device()->logicalDpiX() / kMmPerInch;
    const FigureSheet& size = figure.sheet;
    painter.fillRect(rect, Qt::white);
    painter.save();
    painter.translate(rect.topLeft());
    painter.save();
    painter.translate(0.5 * (sheet.widthMm - size.widthMm) * perMm, PrintSheet::kMarginMm * perMm);
    figure.paint(painter, QRectF(0.0, 0.0, size.widthMm * perMm, size.heightMm * perMm));
    painter.restore();
    painter.scale(perMm / kUnitsPerMm, perMm / kUnitsPerMm);
    const double margin = PrintSheet::kMarginMm * kUnitsPerMm;
    block.paint(
        painter,
        QRectF(margin, (sheet.heightMm - TitleBlock::kHeightMm) * kUnitsPerMm - margin,
               sheet.widthMm * kUnitsPerMm - 2.0 * margin, TitleBlock::kHeightMm * kUnitsPerMm));
    painter.restore();
  };
  return {};
}

}  // namespace

const std::vector<Paper>& papers() {
  static const std::vector<Paper> all = {{"A4", 210.0, 297.0},    {"A3", 297.0, 420.0},
                                         {"A2", 420.0, 594.0},    {"A1", 594.0, 841.0},
                                         {"A0", 841.0, 1189.0},   {"Letter", 215.9, 279.4},
                                         {"Legal", 215.9, 355.6}, {"Tabloid", 279.4, 431.8}};
  return all;
}

PrintSheet PrintSheet::on(const Paper& paper, bool landscape, double scale) {
  PrintSheet sheet{scale, paper.widthMm, paper.heightMm};
  if (landscape) std::swap(sheet.widthMm, sheet.heightMm);
  return sheet;
}

Status prepareSectionPrint(const TomoDocument& document, const SectionFigureOptions& options,
                           const PrintSheet& sheet, FigureDrawing& drawing) {
  SectionFigureOptions dress = options;
  dress.showTitle = false;  // it stands in the block
  std::unique_ptr<SectionPlot> made;
  if (Status status = makeSectionPlot(document, dress, made); !status.ok()) return status;
  const std::shared_ptr<SectionPlot> plot = std::move(made);
  const LayOut layOut = [plot](double scale, Laid& laid) {
    if (Status status = plot->layOutToScale(scale); !status.ok()) return status;
    const SectionFigureLayout& layout = plot->layout();
    laid.drawing.sheet = {layout.widthMm, layout.heightMm, 150.0, plot->title()};
    laid.drawing.paint = [plot](QPainter& painter, const QRectF& rect) {
      plot->paint(painter, rect);
    };
    laid.exaggeration = layout.verticalExaggeration;
    return Status();
  };
  return prepare(sheet, layOut, drawing);
}

Status prepareTravelTimePrint(const TomoDocument& document, const TravelTimeFigureOptions& options,
                              const PrintSheet& sheet, FigureDrawing& drawing) {
  TravelTimeFigureOptions dress = options;
  dress.showTitle = false;
  dress.heightMm = std::min(roomOn(sheet).height(), kHighCurves * sheet.widthMm);
  const LayOut layOut = [&document, &dress](double scale, Laid& laid) {
    dress.scale = scale;
    return prepareTravelTimeFigure(document, dress, laid.drawing);
  };
  return prepare(sheet, layOut, drawing);
}

Status writePrint(const FigureDrawing& drawing, const std::string& path) {
  QByteArray bytes;
  const Status status = paintFigure(FigureFormat::kPdf, drawing.sheet, drawing.paint, bytes);
  return status.ok() ? writeBytes(path, bytes) : status;
}

}  // namespace talvesk
