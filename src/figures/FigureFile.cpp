#include "figures/FigureFile.h"

#include "base/TextNumber.h"
#include "figures/FigureOutput.h"

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
        "Not enough memory for a picture of this size: choose a smaller size or "
        "resolution.");
  }
  setResolution(image, sheet.dpi);
  image.fill(Qt::white);
  image.setText(QStringLiteral("Title"), QString::fromStdString(sheet.title));
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paint(painter, QRectF(image.rect()));
  painter.end();
  return image.save(&buffer, "PNG") ? Status() : Status::failure("The PNG picture cannot be made.");
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
  if (!painter.begin(&generator)) return Status::failure("The SVG picture cannot be made.");
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
  if (!painter.begin(&writer)) return Status::failure("The PDF page cannot be made.");
  for (std::size_t number = 0; number < pages; ++number) {
    if (number > 0 && !writer.newPage()) return Status::failure("The PDF page cannot be made.");
    const QRectF rect(0, 0, writer.width(), writer.height());
    if (Status status = paint(number, painter, rect); !status.ok()) return status;
  }
  painter.end();
  return {};
}

Status checkEnvironment() {
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
    return Status::failure("A figure cannot be drawn before the application object exists.");
  }
  if (QFontDatabase().families().isEmpty()) {
    return Status::failure(
        "A figure cannot be drawn without fonts: install a font package, for "
        "instance fonts-dejavu-core.");
  }
  return {};
}

Status outside(const char* what, double value, double least, double most, const char* unit) {
  return Status::failure(std::string("A figure cannot be ") + formatDouble(value) + unit + what +
                         ": choose " + formatDouble(least) + " to " + formatDouble(most) + unit +
                         ".");
}

}  // namespace

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
    return Status::failure("No picture format is known for " + path +
                           ": let the file name end with .png, .svg or .pdf.");
  }
  return {};
}

Status FigureSheet::check(FigureFormat format) const {
  const auto within = [](double value, double least, double most) {
    return value >= least && value <= most;  // false for what is not a number
  };
  if (!within(widthMm, kMinMm, kMaxMm)) return outside(" wide", widthMm, kMinMm, kMaxMm, " mm");
  if (!within(heightMm, kMinMm, kMaxMm)) return outside(" high", heightMm, kMinMm, kMaxMm, " mm");
  if (format != FigureFormat::kPng) return {};
  if (!within(dpi, kMinDpi, kMaxDpi)) {
    return outside("", dpi, kMinDpi, kMaxDpi, " pixels per inch");
  }
  const double count = widthMm / kMmPerInch * dpi * heightMm / kMmPerInch * dpi;
  if (count > kMaxPixels) {
    return Status::failure("A picture of " + formatDouble(count / 1e6, 3) +
                           " million pixels is too large: the limit is " +
                           formatDouble(kMaxPixels / 1e6, 3) +
                           " million. Choose a smaller size or resolution.");
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
  if (pages == 0) return Status::failure("A PDF file needs a page at least.");
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
