#include "base/IndexRanges.h"
#include "figures/FigureWords.h"
#include "model/Mending.h"
#include "model/TomoDocument.h"
#include "widgets/GuideMarks.h"
#include "widgets/traces/PickMarks.h"
#include "widgets/traces/TraceAxes.h"
#include "widgets/traces/TraceTags.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QFocusEvent>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

namespace talvesk {

void editTravelTimesWidget::State::redrawAll() {
  wigglesStale = true;
  redrawMarks();
}

void editTravelTimesWidget::State::redrawMarks() {
  stillStale = true;
  widget.update();
}

/// Two pictures stand between the samples and the screen: the wiggles, drawn anew when the window
/// or what they show changes, and over them the marks, drawn anew with every edit. A cursor that
/// moves costs neither.
void editTravelTimesWidget::State::refreshPictures() {
  const double ratio = widget.devicePixelRatioF();
  const QSize whole = (QSizeF(widget.size()) * ratio).toSize();
  if (still.size() != whole) {
    still = QImage(whole, QImage::Format_RGB32);
    still.setDevicePixelRatio(ratio);
    wigglesStale = true;
  }
  if (wigglesStale) {
    colors = traceColors(widget.palette(), options.twoColors);
    wiggles = wiggleCanvas(plot.size(), ratio, colors.background);
    if (!wiggles.isNull()) {
      QPainter painter(&wiggles);
      painter.setFont(widget.font());
      paintTimeLines(painter, mapping(), colors);
      painter.end();
      paintWiggles(scene(), mapping(), wiggles);
    }
  }
  if ((wigglesStale || stillStale) && !still.isNull()) {
    QPainter painter(&still);
    painter.setFont(widget.font());
    paintStill(painter);
  }
  wigglesStale = stillStale = false;
}

void editTravelTimesWidget::State::paintStill(QPainter& painter) {
  painter.fillRect(QRect(QPoint(), widget.size()), widget.palette().color(QPalette::Window));
  painter.drawImage(plot.topLeft(), wiggles);
  const TraceMapping map = mapping();
  painter.save();
  paintSelection(painter);
  painter.setClipRect(plot);
  if (!options.showOnlyTraces && document != nullptr) {
    paintGuides(painter, scene(), map, *document);
    if (options.errorBars) paintErrorBars(painter, scene(), map, stroke.times(), pulled);
    paintPicks(painter, scene(), map, stroke.times());
  }
  painter.restore();
  if (!options.showOnlyTraces && document != nullptr) {
    paintLegend(painter, scene(), plot, *document);
  }
  paintAxes(painter, map, traces, layout, widget.palette().color(QPalette::WindowText));
  const QStringList words = document != nullptr
                                ? FigureWords::mends(mendsOfRecord(*document, shot), QLocale())
                                : QStringList();
  if (!words.isEmpty()) {  // at the end of the records, where nobody picks
    paintTag(painter, colors, plot.bottomRight(), FigureWords::joined(words),
             plot.adjusted(8.0, 8.0, -8.0, -8.0));
  }
  QPointF corner = plot.topLeft() + QPointF(8.0, 8.0);
  if (!traces.hasSamples()) {
    paintTag(painter, colors, corner, editTravelTimesWidget::tr("No samples, only picks"), plot);
    corner.ry() += 28.0;
  }
  const QString warning = mannerWarning();
  if (!warning.isEmpty()) paintTag(painter, colors, corner, warning, plot);
}

void editTravelTimesWidget::State::paintLive(QPainter& painter) {
  const TraceMapping map = mapping();
  if (ruler) paintRuler(painter, scene(), map, ruler->first, ruler->second);
  if (!selection.empty() && !options.showOnlyTraces) {
    const std::vector<std::size_t> traceNumbers(selection.traces().begin(),
                                                selection.traces().end());
    // What is mended stands below it.
    const bool mended = document != nullptr && mendsOfRecord(*document, shot).any();
    paintTag(painter, colors, plot.bottomLeft() + QPointF(8.0, mended ? -58.0 : -30.0),
             editTravelTimesWidget::tr("Traces %1: C confirms, Del removes, K kills, P reverses, "
                                       "U mutes, Esc leaves")
                 .arg(QString::fromStdString(ranges(traceNumbers))),
             plot);
  }
  gestures.paintTool(painter);
  if (!hover) return;
  const PlotTool* atWork = gestures.toolAtWork();
  if (atWork == gestures.panTool() || atWork == gestures.bandTool() || atWork == zoomTool.get()) {
    return;
  }
  paintCrosshair(painter, scene(), map, hoverTrace, map.timeAt(hover->y()));
  if (options.magnifier && atWork != selectTool.get()) {
    paintMagnifier(painter, scene(), map, stroke.times(), pulled,
                   {map.positionAt(hover->x()), map.timeAt(hover->y())});
  }
}

void editTravelTimesWidget::State::paintEmpty(QPainter& painter) {
  const QPalette& palette = widget.palette();
  painter.fillRect(widget.rect(), palette.color(QPalette::Base));
  const bool noShots = document == nullptr || document->ttArray.empty();
  const QString text =
      noShots    ? editTravelTimesWidget::tr("Open shot files with Ctrl+O or drop them here")
      : shot < 0 ? editTravelTimesWidget::tr("No shot is shown")
                 : editTravelTimesWidget::tr("This shot has no traces");
  QFont larger = widget.font();
  if (larger.pointSizeF() > 0.0) larger.setPointSizeF(1.2 * larger.pointSizeF());
  painter.setFont(larger);
  QColor color = palette.color(QPalette::Text);
  color.setAlphaF(0.75);
  painter.setPen(color);
  painter.drawText(widget.rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                   text);
}

void editTravelTimesWidget::paintEvent(QPaintEvent*) {
  State& s = *mState;
  QPainter painter(this);
  if (s.layout.count() == 0) {
    s.paintEmpty(painter);
  } else {
    s.refreshPictures();
    painter.drawImage(QPointF(0.0, 0.0), s.still);
    s.paintLive(painter);
  }
  if (hasFocus()) {
    QColor focus = palette().color(QPalette::Highlight);
    painter.setPen(QPen(focus, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(s.layout.count() == 0 ? QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5)
                                           : s.plot);
  }
}

void editTravelTimesWidget::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void editTravelTimesWidget::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace talvesk
