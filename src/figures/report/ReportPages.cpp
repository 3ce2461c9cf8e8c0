#include "figures/report/ReportPages.h"

#include "figures/FigureOutput.h"
#include "figures/report/ReportLayout.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kFooterMm = 11.0;  ///< its base line, from the lower edge of the sheet

QImage metricDevice() {
  QImage device(1, 1, QImage::Format_RGB32);
  setResolution(device, kReportDpi);
  return device;
}

}  // namespace

struct ReportPages::State {
  explicit State(const ReportContent& aContent)
      : content(aContent), sheet(aContent.paper), device(metricDevice()) {}

  double heightPx() const { return sheet.heightMm * kReportDpi / kMmPerInch; }
  double widthPx() const { return sheet.widthMm * kReportDpi / kMmPerInch; }

  ReportContent content;
  ReportSheet sheet;
  QImage device;  ///< tells the layout its resolution, whatever the pages are painted on later
  QTextDocument document;
};

ReportPages::ReportPages(const ReportContent& content) : mState(std::make_unique<State>(content)) {
  QTextDocument& document = mState->document;
  document.documentLayout()->setPaintDevice(&mState->device);
  document.setPageSize(QSizeF(mState->widthPx(), mState->heightPx()));
  fillReport(mState->content, document);
  keepTogether(document);
}

ReportPages::~ReportPages() = default;

int ReportPages::count() const {
  return mState->document.pageCount();
}

void ReportPages::paint(QPainter& painter, int page) const {
  State& state = *mState;
  painter.save();
  const double scale = painter.device()->logicalDpiX() / kReportDpi;
  painter.scale(scale, scale);
  const QRectF sheet(0.0, page * state.heightPx(), state.widthPx(), state.heightPx());
  painter.translate(0.0, -sheet.top());
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = sheet;
  context.palette.setColor(QPalette::Text, Qt::black);
  painter.setClipRect(sheet);
  state.document.documentLayout()->draw(&painter, context);
  painter.restore();

  if (page == 0) return;  // the title page
  const double mm = painter.device()->logicalDpiX() / kMmPerInch;
  painter.save();
  painter.setFont(figureFont(8.0));
  painter.setPen(Qt::darkGray);
  const QRectF footer(ReportSheet::kMarginMm * mm, (state.sheet.heightMm - kFooterMm - 5.0) * mm,
                      state.sheet.textWidthMm() * mm, 5.0 * mm);
  const QString number =
      QCoreApplication::translate("talvesk::Report", "Page %1 of %2").arg(page + 1).arg(count());
  painter.drawText(footer, Qt::AlignRight | Qt::AlignVCenter, number);
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double room = footer.width() - metrics.horizontalAdvance(number) - 5.0 * mm;
  painter.drawText(footer, Qt::AlignLeft | Qt::AlignVCenter,
                   metrics.elidedText(state.content.title, Qt::ElideRight, room));
  painter.restore();
}

QImage ReportPages::image(int page, double dpi) const {
  const double perMm = dpi / kMmPerInch;
  QImage image(static_cast<int>(std::lround(mState->sheet.widthMm * perMm)),
               static_cast<int>(std::lround(mState->sheet.heightMm * perMm)), QImage::Format_RGB32);
  setResolution(image, dpi);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paint(painter, page);
  return image;
}

Status ReportPages::pdf(const std::function<bool(int)>& goOn, QByteArray& bytes) const {
  FigureSheet sheet;
  sheet.widthMm = mState->sheet.widthMm;
  sheet.heightMm = mState->sheet.heightMm;
  sheet.title = mState->content.title.toStdString();
  const auto paintPage = [&](std::size_t page, QPainter& painter, const QRectF&) {
    paint(painter, static_cast<int>(page));
    if (goOn && !goOn(static_cast<int>(page) + 1)) {
      return Status::failure(Message::tr("The report was stopped."), kReportCancelled);
    }
    return Status();
  };
  return paintFigurePages(sheet, static_cast<std::size_t>(count()), paintPage, bytes);
}

QStringList ReportPages::textsOf(int page) const {
  QStringList texts;
  const QTextDocument& document = mState->document;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (pageOf(document, block) != page) continue;
    texts += QString(block.text()).remove(QChar::ObjectReplacementCharacter);
  }
  return texts;
}

}  // namespace talvesk
