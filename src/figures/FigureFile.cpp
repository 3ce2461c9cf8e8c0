#include "figures/FigureFile.h"

#include "base/TextNumber.h"

#include <QBuffer>
#include <QByteArray>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <QSvgGenerator>
#include <cmath>

namespace talvesk {
namespace {

using Paint = std::function<void(QPainter&, const QRectF&)>;
using PaintPage = std::function<Status(std::size_t page, QPainter&, const QRectF&)>;

/// SVG has no resolution of its own; this is what browsers take a pixel for.
constexpr int kSvgDpi = 96;
/// Fine enough for hairlines in print.
constexpr int kPdfDpi = 1200;

int pixels(double mm, double dpi) {
  return static_cast<int>(std::lround(mm / kMmPerInch * dpi));
}

Status paintPng(const FigureSheet& sheet, const Paint& paint, QBuffer& buffer) {
  QImage image(pixels(sheet.widthMm, sheet.dpi), pixels(sheet.heightMm, sheet.dpi),
               QImage::Format_RGB32);
  if (image.isNull()) {
    return Status::failure(
        Message::tr("Not enough memory for a picture of this size: choose a smaller size or "
                    "resolution."));
  }
  setResolution(image, sheet.dpi);
  image.fill(Qt::white);
  image.setText(QStringLiteral("Title"), QString::fromStdString(sheet.title));
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paint(painter, QRectF(image.rect()));
  painter.end();
  return image.save(&buffer, "PNG")
             ? Status()
             : Status::failure(Message::tr("The PNG picture cannot be made."));
}

Status paintSvg(const FigureSheet& sheet, const Paint& paint, QBuffer& buffer) {
  QSvgGenerator generator;
  const QRect rect(0, 0, pixels(sheet.widthMm, kSvgDpi), pixels(sheet.heightMm, kSvgDpi));
  generator.setResolution(kSvgDpi);
  generator.setSize(rect.size());
  generator.setViewBox(rect);
  generator.setTitle(QString::fromStdString(sheet.title).toHtmlEscaped());
  generator.setDescription(QStringLiteral("Made by Talvesk"));
  generator.setOutputDevice(&buffer);
  QPainter painter;
  if (!painter.begin(&generator)) {
    return Status::failure(Message::tr("The SVG picture cannot be made."));
  }
  paint(painter, QRectF(rect));
  painter.end();
  return {};
}

Status paintPdf(const FigureSheet& sheet, std::size_t pages, const PaintPage& paint,
                QBuffer& buffer) {
  QPdfWriter writer(&buffer);
  writer.setResolution(kPdfDpi);
  writer.setTitle(QString::fromStdString(sheet.title));
  writer.setCreator(QStringLiteral("Talvesk"));
  const QPageSize page(QSizeF(sheet.widthMm, sheet.heightMm), QPageSize::Millimeter, QString(),
                       QPageSize::ExactMatch);
  writer.setPageLayout(QPageLayout(page, QPageLayout::Portrait, QMarginsF()));
  QPainter painter;
  if (!painter.begin(&writer)) return Status::failure(Message::tr("The PDF page cannot be made."));
  for (std::size_t number = 0; number < pages; ++number) {
    if (number > 0 && !writer.newPage()) {
      return Status::failure(Message::tr("The PDF page cannot be made."));
    }
    const QRectF rect(0, 0, writer.width(), writer.height());
    if (Status status = paint(number, painter, rect); !status.ok()) return status;
  }
  painter.end();
  return {};
}

Status checkEnvironment() {
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
    return Status::failure(
        Message::tr("A figure cannot be drawn before the application object exists."));
  }
  if (QFontDatabase().families().isEmpty()) {
    return Status::failure(
        Message::tr("A figure cannot be drawn without fonts: install a font package, for "
                    "instance fonts-dejavu-core."));
  }
  return {};
}

/// \param refusal with the value and its limits as placeholders
Status outside(Message refusal, double value, double least, double most) {
  return Status::failure(std::move(refusal).arg(value).arg(least).arg(most));
}

}  // namespace

void setResolution(QImage& image, double dpi) {
  const int dotsPerMeter = static_cast<int>(std::lround(dpi * 1000.0 / kMmPerInch));
  image.setDotsPerMeterX(dotsPerMeter);
  image.setDotsPerMeterY(dotsPerMeter);
}

Status figureFormatOf(const std::string& path, FigureFormat& format) {
  const QString name = QString::fromStdString(path);
  const auto endsWith = [&name](const char* suffix) {
    return name.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
  };
  if (endsWith(".png")) {
    format = FigureFormat::kPng;
  } else if (endsWith(".svg")) {
    format = FigureFormat::kSvg;
  } else if (endsWith(".pdf")) {
    format = FigureFormat::kPdf;
  } else {
    return Status::failure(
        Message::tr(
            "No picture format is known for %1: let the file name end with .png, .svg or .pdf.")
            .arg(path));
  }
  return {};
}

Status FigureSheet::check(FigureFormat format) const {
  const auto within = [](double value, double least, double most) {
    return value >= least && value <= most;  // false for what is not a number
  };
  if (!within(widthMm, kMinMm, kMaxMm)) {
    return outside(Message::tr("A figure cannot be %1 mm wide: choose %2 to %3 mm."), widthMm,
                   kMinMm, kMaxMm);
  }
  if (!within(heightMm, kMinMm, kMaxMm)) {
    return outside(Message::tr("A figure cannot be %1 mm high: choose %2 to %3 mm."), heightMm,
                   kMinMm, kMaxMm);
  }
  if (format != FigureFormat::kPng) return {};
  if (!within(dpi, kMinDpi, kMaxDpi)) {
    return outside(Message::tr("A figure cannot be %1 pixels per inch: choose %2 to %3 pixels per "
                               "inch."),
                   dpi, kMinDpi, kMaxDpi);
  }
  const double count = widthMm / kMmPerInch * dpi * heightMm / kMmPerInch * dpi;
  if (count > kMaxPixels) {
    return Status::failure(Message::tr("A picture of %1 million pixels is too large: the limit is "
                                       "%2 million. Choose a smaller size or resolution.")
                               .arg(Message::number(count / 1e6, 3))
                               .arg(Message::number(kMaxPixels / 1e6, 3)));
  }
  return {};
}

Status paintFigure(FigureFormat format, const FigureSheet& sheet, const Paint& paint,
                   QByteArray& bytes) {
  if (Status status = checkEnvironment(); !status.ok()) return status;
  if (Status status = sheet.check(format); !status.ok()) return status;
  bytes.clear();
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  switch (format) {
    case FigureFormat::kPng:
      return paintPng(sheet, paint, buffer);
    case FigureFormat::kSvg:
      return paintSvg(sheet, paint, buffer);
    case FigureFormat::kPdf:
      break;
  }
  const auto paintPage = [&paint](std::size_t, QPainter& painter, const QRectF& rect) {
    paint(painter, rect);
    return Status();
  };
  return paintPdf(sheet, 1, paintPage, buffer);
}

Status paintFigurePages(const FigureSheet& sheet, std::size_t pages, const PaintPage& paint,
                        QByteArray& bytes) {
  if (Status status = checkEnvironment(); !status.ok()) return status;
  if (Status status = sheet.check(FigureFormat::kPdf); !status.ok()) return status;
  bytes.clear();
  if (pages == 0) return Status::failure(Message::tr("A PDF file needs a page at least."));
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  return paintPdf(sheet, pages, paint, buffer);
}

QFont figureFont(double points, bool bold) {
  QFont font(QStringLiteral("sans-serif"));
  font.setStyleHint(QFont::SansSerif);
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

}  // namespace talvesk
