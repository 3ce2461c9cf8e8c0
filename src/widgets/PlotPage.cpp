#include "widgets/PlotPage.h"

#include "figures/ShownScale.h"
#include "widgets/EmptyPage.h"
#include "widgets/PlotDress.h"
#include "widgets/PlotOverlay.h"
#include "widgets/traces/TraceColors.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <algorithm>

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

constexpr double kAxisExtent = 52.0;  ///< of the numbers at the left, pixels
constexpr double kMostMagnified = 1e4;

void setTitle(QwtPlot& plot, int axis, const QString& text, const QFont& font) {
  QwtText title(text, QwtText::PlainText);
  title.setFont(font);
  plot.setAxisTitle(axis, title);
}

/// What a span has to grow by at each end to leave room for a padding of pixels.
double margin(double span, double padding, double pixels) {
  return span * padding / std::max(pixels - 2.0 * padding, padding + 1.0);
}

/// Who has the keys.
void paintFocus(QPainter& painter, const QRectF& frame, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::Highlight), 1.0));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(frame.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

PlotPage::PlotPage(QWidget* parent) : QWidget(parent) {
  auto* page = new QWidget(this);
  mPlot = new QwtPlot(page);
  mPlot->setAutoDelete(true);
  mPlot->setFocusPolicy(Qt::NoFocus);
  mColumn = new QVBoxLayout(page);
  mColumn->setContentsMargins(0, 0, 0, 0);
  mColumn->addWidget(mPlot, 1);
  mEmpty = new EmptyPage(this);
  mPages = new QStackedLayout(this);
  mPages->addWidget(page);
  mPages->addWidget(mEmpty);
  QWidget* area = mPlot->canvas();
  area->setCursor(Qt::ArrowCursor);
  area->installEventFilter(this);
  if (auto* framed = qobject_cast<QwtPlotCanvas*>(area)) {
    framed->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
  }
  for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft}) setShownScale(*mPlot, axis);
  mGrid = new QwtPlotGrid;
  mGrid->attach(mPlot);
  mOverlay = new PlotOverlay(area, [this](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintOverlay(painter);
    mGestures->paintTool(painter);
    if (hasFocus()) paintFocus(painter, mOverlay->rect(), palette());
  });
  PlotSurface& surface = *this;
  mGestures = std::make_unique<PlotGestures>(surface, *this, *area);
  PlotPage::dress();
}

PlotPage::~PlotPage() {
  // The canvas sends a last event when it goes.
  mPlot->canvas()->removeEventFilter(this);
  mGestures.reset();
  delete mPlot;
}

void PlotPage::setTexts(const QString& title, const QString& xTitle, const QString& yTitle) {
  // A plot without a name of its own is called after its title.
  if (accessibleName() == mPlot->title().text()) setAccessibleName(title);
  mPlot->setTitle(QwtText(title, QwtText::PlainText));
  setTitle(*mPlot, QwtPlot::xBottom, xTitle, font());
  setTitle(*mPlot, QwtPlot::yLeft, yTitle, font());
  scaleAxes();  // the titles may name another unit than before
}

void PlotPage::setEmptyText(const QString& text) {
  mEmpty->setText(text);
}

void PlotPage::setEmptyCommands(const QList<QAction*>& commands) {
  mEmpty->setCommands(commands);
  mEmpty->setTabOrderAfter(this);  // others may have placed the plot since
}

QWidget* PlotPage::canvas() const {
  return mPlot->canvas();
}

QPointF PlotPage::toCanvas(const QPointF& place) const {
  return {mPlot->canvasMap(QwtPlot::xBottom).transform(place.x()),
          mPlot->canvasMap(QwtPlot::yLeft).transform(place.y())};
}

QPointF PlotPage::placeAt(const QPointF& point) const {
  return {mPlot->canvasMap(QwtPlot::xBottom).invTransform(point.x()),
          mPlot->canvasMap(QwtPlot::yLeft).invTransform(point.y())};
}

QRectF PlotPage::area() const {
  return mPlot->canvas()->contentsRect();
}

bool PlotPage::hasNothing() const {
  return mPages->currentWidget() == mEmpty;
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

void PlotPage::addBelow(QWidget* bar) {
  mColumn->addWidget(bar);
}

void PlotPage::alignNumbers() {
  mPlot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(kAxisExtent);
}

void PlotPage::setWhole(const QRectF& content, bool empty) {
  mPages->setCurrentIndex(empty ? 1 : 0);
  if (isVisible()) takeKeysIfAny();
  mContent = content;
  if (empty) {
    mGestures->giveUpDrag();
    mGestures->viewport().followHome();
  }
  followContent();
}

void PlotPage::followContent() {
  const double width = mContent.width() > 0.0 ? mContent.width() : 1.0;
  const double height = mContent.height() > 0.0 ? mContent.height() : 1.0;
  const double x = 0.5 * width + margin(width, mPadding, area().width());
  const double y = 0.5 * height + margin(height, mPadding, area().height());
  const QPointF middle = mContent.center();
  const ViewWindow whole{middle.x() - x, middle.x() + x, middle.y() - y, middle.y() + y};
  mGestures->viewport().setExtent(
      {whole, whole, whole.width() / kMostMagnified, whole.height() / kMostMagnified});
  viewMoved();
}

void PlotPage::viewMoved() {
  scaleAxes();
  repaintPlot();
}

void PlotPage::scaleAxes() {
  const QSizeF size = area().size();
  mPlot->setAxisMaxMajor(QwtPlot::xBottom, std::clamp(static_cast<int>(size.width()) / 70, 2, 14));
  mPlot->setAxisMaxMajor(QwtPlot::yLeft, std::clamp(static_cast<int>(size.height()) / 35, 2, 12));
  mPlot->setAxisScale(QwtPlot::xBottom, window().left, window().right);
  mPlot->setAxisScale(QwtPlot::yLeft, window().top, window().bottom);
}

void PlotPage::repaintPlot() {
  mPlot->replot();
  repaintLive();
}

void PlotPage::repaintLive() {
  mOverlay->update();
}

void PlotPage::dress() {
  dressPlot(*mPlot);
  mGrid->setPen(QPen(traceColors(palette(), false).faint, 0.0));
  QFont bold = font();
  bold.setBold(true);
  mPlot->titleLabel()->setFont(bold);
}

bool PlotPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == mPlot->canvas() && event->type() == QEvent::Resize) {
    mOverlay->resize(mPlot->canvas()->size());
    // Numbers at the axes change the size of the canvas, and the canvas the numbers: once round is
    // enough.
    if (!mResizing) {
      mResizing = true;
      followContent();
      mResizing = false;
    }
  }
  return QWidget::eventFilter(watched, event);
}

/// The Tab key has no business where there is nothing to walk in. Not before it is shown: forms
/// order only what takes the keys.
void PlotPage::takeKeysIfAny() {
  setFocusPolicy(hasNothing() ? Qt::NoFocus : Qt::StrongFocus);
}

void PlotPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  takeKeysIfAny();
}

void PlotPage::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  repaintLive();
}

void PlotPage::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  repaintLive();
}

void PlotPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  followChange(
      *event, [this] { retranslate(); }, [this] { dress(); });
}

}  // namespace talvesk
