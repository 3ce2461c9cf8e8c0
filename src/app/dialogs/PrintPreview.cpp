#include "app/dialogs/PrintPreview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kGap = 10;           ///< round sheets, pixels
constexpr int kMostZoom = 6;       ///< steps
constexpr double kZoomStep = 1.4;  ///< a factor
constexpr double kLeastDpi = 4.0;
constexpr double kMostPixels = 4.0e7;  ///< of all sheets together
constexpr int kSettled = 120;          ///< milliseconds that a size has to last

}  // namespace

class PrintPreview::Canvas : public QWidget {
 public:
  explicit Canvas(PrintPreview& preview) : mPreview(preview) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    if (!mPreview.mPages) {
      if (!mPreview.mWaiting) note(painter, mPreview.mWhyNot);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (std::size_t page = 0; mPreview.mPages && page < mPreview.mPages->count(); ++page) {
      const QRectF place = mPreview.placeOf(page);
      if (page < mPreview.mSheets.size() && !mPreview.mSheets[page].isNull()) {
        painter.drawImage(place, mPreview.mSheets[page]);
      } else {
        painter.fillRect(place, Qt::white);
      }
      painter.setPen(palette().color(QPalette::Dark));
      painter.setBrush(Qt::NoBrush);
      painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
    }
    if (mPreview.mWaiting || !mPreview.isDrawn()) note(painter, tr("Drawing the sheets ..."));
  }

 private:
  /// Legible over a sheet, too.
  void note(QPainter& painter, const QString& text) {
    const QRect seen = visibleRegion().boundingRect();
    const QRect room = seen.adjusted(kGap, kGap, -kGap, -kGap);
    QRect box = painter.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text);
    painter.fillRect(box.adjusted(-kGap, -kGap, kGap, kGap),
                     palette().color(QPalette::ToolTipBase));
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.drawText(box, Qt::AlignCenter | Qt::TextWordWrap, text);
  }

  PrintPreview& mPreview;
};

PrintPreview::PrintPreview(QWidget* parent) : QScrollArea(parent), mCanvas(new Canvas(*this)) {
  setWidget(mCanvas);
  setWidgetResizable(false);
  setMinimumSize(320, 240);
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSettled);
  connect(&mSoon, &QTimer::timeout, this, &PrintPreview::begin);
  mNext.setSingleShot(true);
  mNext.setInterval(0);
  connect(&mNext, &QTimer::timeout, this, &PrintPreview::drawNext);
}

void PrintPreview::setPages(const PrintPages& pages) {
  const bool same = mPages && mPages->count() == pages.count();
  if (!same) mSheets.clear();
  mPages = pages;
  mWaiting = false;
  begin();
}

void PrintPreview::setNothing(const QString& why) {
  mPages.reset();
  mSheets.clear();
  mNext.stop();
  mWaiting = false;
  mWhyNot = why;
  begin();
}

void PrintPreview::setWaiting() {
  mWaiting = true;
  mNext.stop();
  mCanvas->update();
}

void PrintPreview::zoomBy(int steps) {
  const int zoom = std::clamp(mZoom + steps, 0, kMostZoom);
  if (zoom == mZoom) return;
  // What is in the middle stays there.
  const auto middle = [](const QScrollBar& bar) {
    return (bar.value() + 0.5 * bar.pageStep()) / std::max(bar.maximum() + bar.pageStep(), 1);
  };
  const double x = middle(*horizontalScrollBar());
  const double y = middle(*verticalScrollBar());
  mZoom = zoom;
  begin();
  const auto bring = [](QScrollBar& bar, double share) {
    bar.setValue(static_cast<int>(share * (bar.maximum() + bar.pageStep()) - 0.5 * bar.pageStep()));
  };
  bring(*horizontalScrollBar(), x);
  bring(*verticalScrollBar(), y);
}

void PrintPreview::showWhole() {
  zoomBy(-mZoom);
}

/// Whole numbers only: what paints asks its device, which knows no others.
double PrintPreview::chosenDpi() const {
  const PrintPages& pages = *mPages;
  const double ratio = devicePixelRatioF();
  const QSizeF room = QSizeF(maximumViewportSize()) * ratio;
  const auto columns = static_cast<double>(pages.columns);
  const auto rows = static_cast<double>(pages.rows);
  const double fit =
      kMmPerInch *
      std::min((room.width() - (columns + 1.0) * kGap * ratio) / (columns * pages.sheet.widthMm),
               (room.height() - (rows + 1.0) * kGap * ratio) / (rows * pages.sheet.heightMm));
  const double area = columns * rows * pages.sheet.widthMm * pages.sheet.heightMm;
  const double most = kMmPerInch * std::sqrt(kMostPixels / area);
  return std::floor(std::max(std::min(fit * std::pow(kZoomStep, mZoom), most), kLeastDpi));
}

QSizeF PrintPreview::sheetPixels(double dpi) const {
  const double perMm = dpi / kMmPerInch;
  return {std::round(mPages->sheet.widthMm * perMm), std::round(mPages->sheet.heightMm * perMm)};
}

QRectF PrintPreview::placeOf(std::size_t page) const {
  const QSizeF sheet = sheetPixels(mDpi) / devicePixelRatioF();
  const auto columns = static_cast<double>(mPages->columns);
  const auto rows = static_cast<double>(mPages->rows);
  const double width = columns * (sheet.width() + kGap) + kGap;
  const double height = rows * (sheet.height() + kGap) + kGap;
  const QPointF corner(0.5 * std::max(mCanvas->width() - width, 0.0) + kGap,
                       0.5 * std::max(mCanvas->height() - height, 0.0) + kGap);
  const auto column = static_cast<double>(page % mPages->columns);
  const std::size_t full = page / mPages->columns;  // rows above this one
  const auto row = static_cast<double>(full);
  return {corner + QPointF(column * (sheet.width() + kGap), row * (sheet.height() + kGap)), sheet};
}

void PrintPreview::begin() {
  mSoon.stop();
  QSize size = maximumViewportSize();
  if (mPages) {
    mDpi = chosenDpi();
    mDrawn = 0;
    mSheets.resize(mPages->count());
    const QSizeF sheet = sheetPixels(mDpi) / devicePixelRatioF();
    size =
        size.expandedTo(QSizeF(static_cast<double>(mPages->columns) * (sheet.width() + kGap) + kGap,
                               static_cast<double>(mPages->rows) * (sheet.height() + kGap) + kGap)
                            .toSize());
    if (mZoom == 0) size = maximumViewportSize();
    mNext.start();
  }
  mCanvas->resize(size);
  mCanvas->update();
}

void PrintPreview::drawNext() {
  if (!mPages || mDrawn >= mPages->count()) return;
  QImage image(sheetPixels(mDpi).toSize(), QImage::Format_RGB32);
  setResolution(image, mDpi);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  mPages->paint(mDrawn, painter, QRectF(image.rect()));
  painter.end();
  mSheets[mDrawn++] = std::move(image);
  mCanvas->update();
  if (mDrawn < mPages->count()) mNext.start();
}

void PrintPreview::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (!mPages || mDpi == 0.0) {
    mCanvas->resize(maximumViewportSize());
  } else {
    mSoon.start();
  }
}

void PrintPreview::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:  // on the same key
      return zoomBy(1);
    case Qt::Key_Minus:
      return zoomBy(-1);
    case Qt::Key_0:
      return showWhole();
    default:
      QScrollArea::keyPressEvent(event);
  }
}

void PrintPreview::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QScrollArea::wheelEvent(event);
  zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
  event->accept();
}

}  // namespace talvesk
