#pragma once

#include "base/Point2D.h"
#include "figures/FigureNumbers.h"
#include "figures/SectionCamera.h"
#include "figures/SectionFigureOptions.h"

#include <QFont>
#include <QLocale>
#include <QPolygonF>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

class QPainter;

namespace talvesk {

/// How the sheet of a section is dressed.
struct SectionDress {
  QFont font;                       ///< of all words; the title is larger
  QLocale locale = figureLocale();  ///< of numbers
  QString title;                    ///< empty: none
  ColorBar colorBar = ColorBar::kVertical;
  bool gridLines = false;  ///< at the numbers of the axes
  GeophoneMarkers geophones = GeophoneMarkers::kNormal;
  ContourStyle contours;
  bool mayShrink =
      false;  ///< a window too small for legend, caption or bar shows the section still
};

/// Survey positions that hold all of a section, metres.
struct SectionExtent {
  Point2D low{0.0, 0.0};
  Point2D high{1.0, 1.0};

  SectionExtent() = default;
  /// Of what is drawn; of the unit square where that is nowhere.
  explicit SectionExtent(const SectionScene& scene);

  QRectF rect() const;  ///< x and elevation; top() is the lower elevation
};

/// A line of text as it lies on the sheet.
struct PlacedText {
  QString text;
  QPolygonF outline;  ///< of its line, not of its glyphs
};

/// The plot that a sheet shows a part of, where a section goes over several. Logical pixels.
struct SectionWhole {
  QRectF plot;        ///< from the upper left corner of the sheet's own plot
  double meet = 0.0;  ///< from a side that a neighbour shows too to where both are joined
};

/// The sheet around and over a section, the same on the screen and in files: axes, title, colour
/// bar, legend and caption beside the plot; grid lines, surface, refractors, coverage limit,
/// contour values and markers on it. What fills the plot - cells, rays, contour lines - somebody
/// else has painted before. Lengths are logical pixels, 96 of them to the inch of a file.
class SectionPaper {
 public:
  /// Scene and colours must outlive it. \param colors sectionColors() of that scene
  SectionPaper(const SectionScene& scene, const SectionExtent& extent, const ColorTable& colors,
               SectionDress dress);

  /// Where the section itself goes on a sheet of that size: whole pixels, one each way at least.
  /// The same wherever the camera looks. \param exaggeration of the vertical, which the caption
  /// states
  QRect plotRect(const QSizeF& size, double exaggeration) const;

  /// Brings the whole section, as it is turned and exaggerated, into a plot of that size.
  void fit(SectionCamera& camera, const QSizeF& plotSize) const;

  /// How high a plot must be that a section as wide as it fills, seen from the front.
  double heightToFill(double plotWidth, double exaggeration) const;

  /// Paints all but what fills plotRect(), which is seen through `camera`.
  /// \param whole null: the plot is all of it. Of a part, words go where they go on the whole, and
  /// those that stand along lines keep to their sheet, so that none is cut or doubled at a joint.
  /// \return every text in the order of painting, but for the values of contours
  std::vector<PlacedText> paint(QPainter& painter, const QSizeF& size, const SectionCamera& camera,
                                const SectionWhole* whole = nullptr) const;

 private:
  SectionCamera::Padding padding() const;

  const SectionScene& mScene;
  SectionExtent mExtent;
  const ColorTable& mColors;
  SectionDress mDress;
};

}  // namespace talvesk
