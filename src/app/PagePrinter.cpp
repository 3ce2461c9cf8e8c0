#include "app/PagePrinter.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cmath>

namespace talvesk {

void setUpPrinter(QPrinter& printer, const PrintPages& pages) {
  const FigureSheet& sheet = pages.sheet;
  const bool landscape = sheet.widthMm > sheet.heightMm;
  const QSizeF upright(std::min(sheet.widthMm, sheet.heightMm),
                       std::max(sheet.widthMm, sheet.heightMm));
  // Near enough to a paper that printers know it is called by its name.
  const QPageSize paper(upright, QPageSize::Millimeter);
  printer.setFullPage(true);
  printer.setPageLayout(
      QPageLayout(paper, landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
  printer.setDocName(QString::fromStdString(sheet.title));
  printer.setCreator(QStringLiteral("Talvesk"));
}

Status printPages(QPrinter& printer, const PrintPages& pages, PrintedSheets* sheets) {
  PrintedSheets counted;
  if (sheets == nullptr) sheets = &counted;
  *sheets = {};
  constexpr double kSlackMm = 1.0;
  const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
  if (std::abs(paper.width() - pages.sheet.widthMm) > kSlackMm ||
      std::abs(paper.height() - pages.sheet.heightMm) > kSlackMm) {
    return Status::failure(
        Message::tr("The printer is set to paper of %1 x %2 mm, and the sheets are made for %3 x "
                    "%4 mm: choose the same paper for both.")
            .arg(std::round(paper.width()))
            .arg(std::round(paper.height()))
            .arg(std::round(pages.sheet.widthMm))
            .arg(std::round(pages.sheet.heightMm)));
  }
  const auto count = static_cast<int>(pages.count());
  const int first = std::max(printer.fromPage(), 1);
  const int last = printer.toPage() > 0 ? std::min(printer.toPage(), count) : count;
  sheets->wanted = std::max(last - first + 1, 0);
  QPainter painter;
  if (first > last || !painter.begin(&printer)) {
    return Status::failure(Message::tr("The printer does not take the sheets."));
  }
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const double perMm = printer.resolution() / kMmPerInch;
  const QRectF rect(0.0, 0.0, pages.sheet.widthMm * perMm, pages.sheet.heightMm * perMm);
  for (int page = first; page <= last; ++page) {
    if (page > first && !printer.newPage()) {
      return Status::failure(Message::tr("The printer does not take the sheets."));
    }
    pages.paint(static_cast<std::size_t>(page - 1), painter, rect);
    ++sheets->sent;
  }
  const bool ended = painter.end();
  const bool failed = !ended || printer.printerState() == QPrinter::Error ||
                      printer.printerState() == QPrinter::Aborted;
  return failed ? Status::failure(Message::tr("The printer does not take the sheets.")) : Status();
}

}  // namespace talvesk
