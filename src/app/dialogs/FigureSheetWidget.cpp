#include "app/dialogs/FigureSheetWidget.h"

#include "app/MessageText.h"

#include <QImage>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollArea>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kDotsPerInch = 96.0;
constexpr int kLeastWidth = 640;  // two sections side by side with their axes

}  // namespace

FigureSheetWidget::FigureSheetWidget(QWidget* parent) : QWidget(parent) {
  setMinimumSize(kLeastWidth, kLeastWidth / 2);
}

void FigureSheetWidget::putInto(QScrollArea& area) {
  area.setWidget(this);
  area.setAccessibleName(tr("Figure"));
}

void FigureSheetWidget::setFigure(Prepare prepare) {
  mPrepare = std::move(prepare);
  mWhyNot.clear();
  draw();
}

void FigureSheetWidget::setNothing(const QString& why) {
  mPrepare = nullptr;
  mWhyNot = why;
  mPicture = QPixmap();
  update();
}

/// Figures are of paper: white in a dark window, too.
void FigureSheetWidget::draw() {
  mPicture = QPixmap();
  update();
  if (!mPrepare || width() < kLeastWidth) return;
  FigureDrawing drawing;
  const Status status = mPrepare(width() * kMmPerInch / kDotsPerInch, drawing);
  if (!status.ok()) return setNothing(textOf(status.text()));
  const double pixels = drawing.sheet.heightMm / kMmPerInch * kDotsPerInch;
  const int height = static_cast<int>(std::ceil(pixels));
  QImage image(QSize(width(), height) * devicePixelRatioF(), QImage::Format_RGB32);
  image.fill(Qt::white);
  setResolution(image, kDotsPerInch * devicePixelRatioF());
  QPainter painter(&image);
  drawing.paint(painter, QRectF(0.0, 0.0, image.width(), pixels * devicePixelRatioF()));
  painter.end();
  mPicture = QPixmap::fromImage(image);
  mPicture.setDevicePixelRatio(devicePixelRatioF());
  setMinimumHeight(height);
}

void FigureSheetWidget::resizeEvent(QResizeEvent* event) {
  if (event->oldSize().width() != event->size().width()) draw();
  QWidget::resizeEvent(event);
}

void FigureSheetWidget::paintEvent(QPaintEvent* event) {
  Q_UNUSED(event);
  QPainter painter(this);
  if (mPicture.isNull()) {
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, mWhyNot);
    return;
  }
  painter.fillRect(rect(), Qt::white);
  painter.drawPixmap(0, 0, mPicture);
}

}  // namespace talvesk
