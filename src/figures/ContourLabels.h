#pragma once

#include <QColor>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <functional>
#include <vector>

class QPainter;

namespace talvesk {

struct ContourStyle;
struct SectionScene;

namespace section_items {

/// A word that is to lie along a line.
struct LineLabel {
  QPolygonF line;  ///< as it lies on the picture
  QString text;    ///< empty: none
  QColor color;
  double points = 9.0;  ///< its size, 1/72 inch
};

/// Sets words into lines, upright, clear of each other and within the canvas, where there is room.
/// \param taken places where no word goes; those of these words are added
void paintLineLabels(QPainter& painter, const std::vector<LineLabel>& labels, const QRectF& canvas,
                     std::vector<QRectF>& taken);

/// Sets the values of iso-lines into them, upright, clear of each other and within the canvas, on
/// every line whose level has a label by the style.
/// \param lines the scene's contours as they lie on the picture, closed ones with their first point
/// repeated \param text of a value
/// \param taken as of paintLineLabels()
void paintContourLabels(QPainter& painter, const SectionScene& scene,
                        const std::vector<QPolygonF>& lines, const ContourStyle& style,
                        const QRectF& canvas, const std::function<QString(double)>& text,
                        std::vector<QRectF>& taken);

}  // namespace section_items
}  // namespace talvesk
