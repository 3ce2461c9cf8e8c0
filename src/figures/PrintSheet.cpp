#include "figures/PrintSheet.h"

#include "figures/FigureOutput.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/SectionPlot.h"

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

constexpr double kBlockMm = 16.0;       ///< height of the block below the figure
constexpr double kBlockGapMm = 3.0;     ///< between them
constexpr double kPaddingMm = 3.0;      ///< inside the block
constexpr double kLongestBarMm = 80.0;  ///< of the scale bar; at least two fifths of it are used
constexpr double kBarMm = 2.0;          ///< its height
constexpr double kHighCurves = 0.7;     ///< height of curves over the width of the sheet, at most

/// The numbers of a row 1, 2, 2.5, 5, 10, ... that lie in a range, the least first.
std::vector<double> roundNumbers(double least, double most) {
  std::vector<double> numbers;
  for (double power = 1e-6; power <= most; power *= 10.0) {
    for (const double digit : {1.0, 2.0, 2.5, 5.0}) {
      const double number = digit * power;
      if (number >= least * (1.0 - 1e-9) && number <= most * (1.0 + 1e-9)) {
        numbers.push_back(number);
      }
    }
  }
  return numbers;
}

QString ratio(double scale) {
  return QStringLiteral("1:") + figureNumber(scale, 4);
}

/// What stands below a figure.
struct TitleBlock {
  QString title;
  double scale = 1.0;
  double exaggeration = 1.0;  ///< 0: the upright axis is no length

  QString scales() const;
  void paint(QPainter& painter, const QRectF& room) const;

 private:
  double paintBar(QPainter& painter, const QRectF& room) const;
};

QString TitleBlock::scales() const {
  QStringList parts{FigureWords::tr("Scale %1").arg(ratio(scale))};
  if (exaggeration > 0.0 && exaggeration != 1.0) {
    parts += FigureWords::tr("Elevation %1").arg(ratio(scale / exaggeration));
  }
  return FigureWords::joined(parts);
}

QFont blockFont(double heightMm, bool bold = false) {
  QFont font = figureFont(9.0, bold);
  // A millimetre is many units here, for sizes of fonts are whole.
  font.setPixelSize(static_cast<int>(std::lround(heightMm)));
  return font;
}

/// Units of the block: hundredths of a millimetre.
constexpr double kUnits = 100.0;

/// \return its left end
double TitleBlock::paintBar(QPainter& painter, const QRectF& room) const {
  const double longest = shownLength(1e-3 * kLongestBarMm * scale);
  const double length = roundNumbers(0.3 * longest, longest).back();
  const double mm = 1e3 * metresOf(length) / scale;
  const QFontMetricsF metrics(painter.font());
  const QString end = withLengthUnit(figureNumber(length));
  const double right = room.right() - 0.5 * metrics.horizontalAdvance(end);
  const QRectF bar(right - mm * kUnits, room.bottom() - kBarMm * kUnits, mm * kUnits,
                   kBarMm * kUnits);
  painter.fillRect(QRectF(bar.topLeft(), QSizeF(0.5 * bar.width(), bar.height())), Qt::black);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(bar);
  const QString texts[] = {QStringLiteral("0"), figureNumber(0.5 * length), end};
  for (int i = 0; i < 3; ++i) {
    const double x = bar.left() + 0.5 * i * bar.width();
    painter.drawText(QPointF(x - 0.5 * metrics.horizontalAdvance(texts[i]), bar.top() - 100.0),
                     texts[i]);
  }
  return bar.left();
}

/// \param room hundredths of a millimetre
void TitleBlock::paint(QPainter& painter, const QRectF& room) const {
  painter.setPen(QPen(Qt::black, 0.25 * kUnits, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(room);
  const double padding = kPaddingMm * kUnits;
  const QRectF inside = room.adjusted(padding, padding, -padding, -padding);
  painter.setFont(blockFont(3.0 * kUnits));
  const double textWidth = paintBar(painter, inside) - inside.left() - padding;
  const auto put = [&](const QString& text, double baseline) {
    painter.drawText(
        QPointF(inside.left(), baseline),
        QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, std::max(textWidth, 0.0)));
  };
  put(scales(), inside.bottom());
  painter.setFont(blockFont(4.0 * kUnits, true));
  put(title, inside.top() + 3.5 * kUnits);
}

/// What a figure takes at some scale, and how it is drawn there.
struct Laid {
  FigureDrawing drawing;
  double exaggeration = 0.0;
};
using LayOut = std::function<Status(double scale, Laid& laid)>;

QSizeF roomOn(const PrintSheet& sheet) {
  return {sheet.widthMm - 2.0 * PrintSheet::kMarginMm,
          sheet.heightMm - 2.0 * PrintSheet::kMarginMm - kBlockGapMm - kBlockMm};
}

bool fits(const FigureSheet& figure, const QSizeF& room) {
  return figure.widthMm <= room.width() && figure.heightMm <= room.height();
}

/// Says what a figure takes that does not fit, and the next round scale at which it does.
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
    painter.scale(perMm / kUnits, perMm / kUnits);
    const double margin = PrintSheet::kMarginMm * kUnits;
    block.paint(painter, QRectF(margin, (sheet.heightMm - kBlockMm) * kUnits - margin,
                                sheet.widthMm * kUnits - 2.0 * margin, kBlockMm * kUnits));
    painter.restore();
  };
  return {};
}

}  // namespace

const std::vector<Paper>& papers() {
  static const std::vector<Paper> all = {{"A4", 210.0, 297.0},     {"A3", 297.0, 420.0},
                                         {"A2", 420.0, 594.0},     {"A1", 594.0, 841.0},
                                         {"A0", 841.0, 1189.0},    {"Letter", 215.9, 279.4},
                                         {"Tabloid", 279.4, 431.8}};
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
