#pragma once

#include "base/Status.h"

#include <cstddef>
#include <functional>
#include <string>

class QByteArray;
class QFont;
class QImage;
class QPainter;
class QRectF;

namespace talvesk {

inline constexpr double kMmPerInch = 25.4;

enum class FigureFormat { kPng, kSvg, kPdf };

/// The format that a file's suffix (".png", ".svg", ".pdf", any case) asks for. Any other suffix
/// fails with a message that names the three.
Status figureFormatOf(const std::string& path, FigureFormat& format);

/// A sheet that a figure is painted on.
struct FigureSheet {
  double widthMm = 0.0;
  double heightMm = 0.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG; the other formats have no pixels
  std::string title;   ///< for the properties of the file, UTF-8

  static constexpr double kMinMm = 20.0;
  static constexpr double kMaxMm = 5000.0;
  static constexpr double kMinDpi = 20.0;
  static constexpr double kMaxDpi = 2400.0;
  static constexpr double kMaxPixels = 2.0e8;  ///< of a PNG: some 800 MB while it is painted

  /// Whether a picture of this size can be made; the message names the limit.
  Status check(FigureFormat format) const;
};

/// Paints a sheet into the bytes of a file of that format. `paint` gets a painter whose device
/// knows its resolution, and the rectangle of the whole sheet in its units. Needs the
/// QGuiApplication, and says so when there is none; fails, too, when no font is installed, for a
/// figure without words is no figure.
Status paintFigure(FigureFormat format, const FigureSheet& sheet,
                   const std::function<void(QPainter&, const QRectF&)>& paint, QByteArray& bytes);

/// Paints a PDF of several pages of one size into the bytes of a file. `paint` is called once per
/// page, from 0; its first failure ends the work and is returned. Needs what paintFigure() needs,
/// and a page at least.
Status paintFigurePages(
    const FigureSheet& sheet, std::size_t pages,
    const std::function<Status(std::size_t page, QPainter&, const QRectF&)>& paint,
    QByteArray& bytes);

/// Tells who paints on an image how many of its pixels are an inch.
void setResolution(QImage& image, double dpi);

/// A figure that is laid out and waits for a device: who puts several on a page, or one into a
/// document, paints it. `paint` may be called any number of times.
struct FigureDrawing {
  FigureSheet sheet;
  std::function<void(QPainter&, const QRectF&)> paint;
};

/// The font of all figures. An SVG names it, so it goes by the generic family that every viewer
/// has.
QFont figureFont(double points, bool bold = false);

}  // namespace talvesk
