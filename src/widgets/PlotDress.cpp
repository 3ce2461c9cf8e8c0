#include "widgets/PlotDress.h"

#include "widgets/traces/TraceColors.h"

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_text.h>

namespace talvesk {

void dressPlot(QwtPlot& plot) {
  plot.plotLayout()->setCanvasMargin(0);
  plot.plotLayout()->setAlignCanvasToScales(true);
  if (auto* canvas = qobject_cast<QwtPlotCanvas*>(plot.canvas())) {
    canvas->setFrameStyle(QFrame::Box | QFrame::Plain);
    canvas->setLineWidth(1);
  }
  const TraceColors colors = traceColors(plot.palette(), true);
  plot.setCanvasBackground(colors.background);
  QPalette frame = plot.palette();
  frame.setColor(QPalette::WindowText, colors.faint);
  frame.setBrush(QPalette::Window, colors.background);
  plot.canvas()->setPalette(frame);
  for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft}) {
    plot.setAxisFont(axis, plot.font());
    QwtText title = plot.axisTitle(axis);
    title.setFont(plot.font());
    plot.setAxisTitle(axis, title);
  }
}

}  // namespace talvesk
