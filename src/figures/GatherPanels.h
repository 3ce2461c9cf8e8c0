#pragma once

#include "base/Status.h"
#include "figures/FigureNumbers.h"
#include "figures/GatherItems.h"
#include "figures/GatherScene.h"

#include <QColor>
#include <QLocale>
#include <QString>
#include <cstddef>
#include <memory>
#include <vector>

class QPainter;
class QRectF;

namespace talvesk {

/// The traces of one shot in a panel, under or over those of another.
struct GatherLayer {
  std::shared_ptr<const GatherScene> scene;
  gather_items::WiggleStyle style;
  QColor picks;
};

/// A part of the heading of a panel in a colour of its own, which is that of a layer.
struct GatherWord {
  QString text;
  QColor color = Qt::black;
};

/// A shot above the traces.
struct GatherStar {
  double x = 0.0;  ///< on the lower axis
  QColor color;
};

/// One picture among several that share their axis of time. The first layer says what is below.
struct GatherPanel {
  std::vector<GatherWord> heading;
  /// The shots of a picture of two, the first one first; none: that of the first layer, in the
  /// colour of shots. Two at one place share a star.
  std::vector<GatherStar> stars = {};
  std::vector<GatherLayer> layers;  ///< one at least
};

/// Panels in rows and columns, in reading order, with one axis of time at the left of each row.
struct GatherPanelSheet {
  std::size_t rows = 1;
  std::size_t columns = 1;
  std::vector<GatherPanel> panels;  ///< rows x columns at most
  TimeWindow window;
  QString title;    ///< above all; may be empty
  QString caption;  ///< below all, in as many lines as it takes
  QLocale locale = figureLocale();
};

/// Where a panel lies; what its sides stand for.
struct GatherPanelPlace {
  double leftMm = 0.0;  ///< of the traces, from the left edge of the sheet
  double topMm = 0.0;
  double widthMm = 0.0;
  double heightMm = 0.0;
  double low = 0.0;  ///< of the lower axis, at the left side
  double high = 0.0;
  double topMs = 0.0;  ///< the time at the upper side
  double bottomMs = 0.0;
};

/// Lays the panels out. Fails where axes and texts leave too little for the traces. Needs the
/// QGuiApplication. \param places out, null when nobody asks
Status layOutPanels(const GatherPanelSheet& sheet, double widthMm, double heightMm,
                    std::vector<GatherPanelPlace>* places = nullptr);

/// Paints them on white paper. \param rect of the whole sheet, in the units of the painter, whose
/// device knows its resolution
void paintPanels(QPainter& painter, const QRectF& rect, const GatherPanelSheet& sheet);

}  // namespace talvesk
