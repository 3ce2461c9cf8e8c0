#include "widgets/PlotPage.h"

#include "widgets/PlotDress.h"
#include "widgets/PlotOverlay.h"
#include "widgets/TraceColors.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStackedLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_item.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>
#include <qwt_text_label.h>

namespace talvesk {
namespace {

constexpr double kPadding = 0.04;     ///< around everything, part of the size
constexpr double kAxisExtent = 52.0;  ///< of the numbers at the left, pixels
constexpr double kZoomStep = 1.4;
constexpr double kMostMagnified = 1e4;

void setTitle(QwtPlot& plot, int axis, const QString& text, const QFont& font) {
  QwtText title(text, QwtText::PlainText);
  title.setFont(font);
  plot.setAxisTitle(axis, title);
}

}  // namespace

PlotPage::PlotPage(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  mPages = new QStackedLayout(this);
  mPlot = new QwtPlot(this);
  mPlot->setAutoDelete(true);
  mPlot->setFocusPolicy(Qt::NoFocus);
  mEmpty = new QLabel(this);
  mEmpty->setAlignment(Qt::AlignCenter);
  mEmpty->setWordWrap(true);
  mEmpty->setMargin(16);
  mEmpty->setTextFormat(Qt::PlainText);
  mPages->addWidget(mPlot);
  mPages->addWidget(mEmpty);
  QWidget* area = mPlot->canvas();
  area->setMouseTracking(true);
  area->setCursor(Qt::ArrowCursor);
  area->installEventFilter(this);
  if (auto* framed = qobject_cast<QwtPlotCanvas*>(area)) {
    framed->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
  }
  // As wide in all plots, so that those above each other have their distances above each other.
  mPlot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(kAxisExtent);
  mGrid = new QwtPlotGrid;
  mGrid->attach(mPlot);
  mOverlay = new PlotOverlay(area, [this](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintOverlay(painter);
  });
  PlotPage::dress();
}

PlotPage::~PlotPage() {
  // The canvas sends a last event when it goes.
  mPlot->canvas()->removeEventFilter(this);
  delete mPlot;
}

void PlotPage::setTexts(const QString& title, const QString& xTitle, const QString& yTitle) {
  mPlot->setTitle(QwtText(title, QwtText::PlainText));
  setTitle(*mPlot, QwtPlot::xBottom, xTitle, font());
  setTitle(*mPlot, QwtPlot::yLeft, yTitle, font());
}

void PlotPage::setEmptyText(const QString& text) {
  mEmpty->setText(text);
}

QWidget* PlotPage::canvas() const {
  return mPlot->canvas();
}

QPointF PlotPage::toCanvas(const QPointF& place) const {
  return {mPlot->canvasMap(QwtPlot::xBottom).transform(place.x()),
          mPlot->canvasMap(QwtPlot::yLeft).transform(place.y())};
}

QPointF PlotPage::fromCanvas(const QPointF& point) const {
  return {mPlot->canvasMap(QwtPlot::xBottom).invTransform(point.x()),
          mPlot->canvasMap(QwtPlot::yLeft).invTransform(point.y())};
}

QSize PlotPage::sizeHint() const {
  return {640, 320};
}

QSize PlotPage::minimumSizeHint() const {
  return {240, 130};
}

void PlotPage::add(QwtPlotItem* item) {
  item->attach(mPlot);
}

void PlotPage::setWhole(const QRectF& whole, bool empty) {
  mPages->setCurrentIndex(empty ? 1 : 0);
  const double width = whole.width() > 0.0 ? whole.width() : 1.0;
  const double height = whole.height() > 0.0 ? whole.height() : 1.0;
  const QPointF middle = whole.center();
  mWhole = QRectF(0.0, 0.0, width * (1.0 + 2.0 * kPadding), height * (1.0 + 2.0 * kPadding));
  mWhole.moveCenter(middle);
  if (empty) mZoomed = false;
  show(mZoomed ? mWindow : mWhole);
}

void PlotPage::show(const QRectF& window) {
  mWindow = window;
  const QRect area = mPlot->canvas()->contentsRect();
  mPlot->setAxisMaxMajor(QwtPlot::xBottom, std::clamp(area.width() / 70, 2, 14));
  mPlot->setAxisMaxMajor(QwtPlot::yLeft, std::clamp(area.height() / 35, 2, 12));
  mPlot->setAxisScale(QwtPlot::xBottom, mWindow.left(), mWindow.right());
  mPlot->setAxisScale(QwtPlot::yLeft, mWindow.top(), mWindow.bottom());
  repaintPlot();
}

void PlotPage::repaintPlot() {
  mPlot->replot();
  repaintOverlay();
}

void PlotPage::repaintOverlay() {
  mOverlay->update();
}

void PlotPage::fit() {
  mZoomed = false;
  show(mWhole);
}

void PlotPage::zoomIn() {
  zoomAbout(QRectF(mPlot->canvas()->contentsRect()).center(), 1.0 / kZoomStep, 1.0 / kZoomStep);
}

void PlotPage::zoomOut() {
  zoomAbout(QRectF(mPlot->canvas()->contentsRect()).center(), kZoomStep, kZoomStep);
}

void PlotPage::zoomAbout(const QPointF& point, double byX, double byY) {
  const QPointF at = fromCanvas(point);
  const double width =
      std::clamp(mWindow.width() * byX, mWhole.width() / kMostMagnified, mWhole.width());
  const double height =
      std::clamp(mWindow.height() * byY, mWhole.height() / kMostMagnified, mWhole.height());
  const double left = at.x() - (at.x() - mWindow.left()) * width / mWindow.width();
  const double top = at.y() - (at.y() - mWindow.top()) * height / mWindow.height();
  QRectF next(left, top, width, height);
  next.moveLeft(std::clamp(next.left(), mWhole.left(), mWhole.right() - width));
  next.moveTop(std::clamp(next.top(), mWhole.top(), mWhole.bottom() - height));
  mZoomed = true;
  show(next);
}

void PlotPage::dress() {
  dressPlot(*mPlot);
  mGrid->setPen(QPen(traceColors(palette(), false).faint, 0.0));
  QFont bold = font();
  bold.setBold(true);
  mPlot->titleLabel()->setFont(bold);
}

bool PlotPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched != mPlot->canvas()) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Resize:
      mOverlay->resize(mPlot->canvas()->size());
      // Numbers at the axes change the size of the canvas, and the canvas the numbers: once round
      // is enough.
      if (!mResizing) {
        mResizing = true;
        show(mZoomed ? mWindow : mWhole);
        mResizing = false;
      }
      return false;
    case QEvent::Wheel: {
      const auto& wheel = static_cast<QWheelEvent&>(*event);
      // Alt and Shift turn some wheels sideways.
      const QPoint angle = wheel.angleDelta();
      const int turned = angle.y() != 0 ? angle.y() : angle.x();
      const double by = std::pow(kZoomStep, -turned / 120.0);
      const bool heightOnly = wheel.modifiers().testFlag(Qt::ControlModifier);
      const bool widthOnly = wheel.modifiers().testFlag(Qt::ShiftModifier);
      zoomAbout(wheel.position(), heightOnly ? 1.0 : by, widthOnly ? 1.0 : by);
      return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return mouse(*event);
    default:
      return QWidget::eventFilter(watched, event);
  }
}

bool PlotPage::mouse(QEvent& event) {
  const auto& mouse = static_cast<QMouseEvent&>(event);
  if (event.type() == QEvent::MouseButtonDblClick && mouse.button() == Qt::LeftButton) {
    fit();
    return true;
  }
  if (event.type() == QEvent::MouseButtonPress) {
    setFocus(Qt::MouseFocusReason);
    if (mouse.button() == Qt::MiddleButton) {
      mPanning = true;
      mPanFrom = fromCanvas(mouse.localPos());
      return true;
    }
    return pressed(mouse);
  }
  if (event.type() == QEvent::MouseMove) {
    if (!mPanning) return moved(mouse);
    const QPointF by = mPanFrom - fromCanvas(mouse.localPos());
    mZoomed = true;
    show(mWindow.translated(by));
    return true;
  }
  if (mPanning && mouse.button() == Qt::MiddleButton) {
    mPanning = false;
    return true;
  }
  return released(mouse);
}

void PlotPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const QEvent::Type type = event->type();
  if (type == QEvent::PaletteChange || type == QEvent::FontChange || type == QEvent::StyleChange) {
    dress();
  }
}

void PlotPage::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_F:
    case Qt::Key_Home:
      fit();
      break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      zoomIn();
      break;
    case Qt::Key_Minus:
      zoomOut();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace talvesk
