#pragma once

#include <QString>
#include <functional>
#include <vector>

class QPainter;
class QPolygonF;
class QRectF;

namespace talvesk {

struct ContourStyle;
struct SectionScene;

namespace section_items {

/// Sets the values of iso-lines into them, upright, clear of each other and within the canvas, on
/// every line whose level has a label by the style.
/// \param lines the scene's contours as they lie on the picture, closed ones with their first point
/// repeated \param text of a value
void paintContourLabels(QPainter& painter, const SectionScene& scene,
                        const std::vector<QPolygonF>& lines, const ContourStyle& style,
                        const QRectF& canvas, const std::function<QString(double)>& text);

}  // namespace section_items
}  // namespace talvesk
