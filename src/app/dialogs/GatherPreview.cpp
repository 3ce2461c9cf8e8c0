#include "app/dialogs/GatherPreview.h"

#include "app/MessageText.h"
#include "figures/GatherFigure.h"
#include "io/ShotLoader.h"

#include <QByteArray>
#include <QPainter>
#include <utility>

namespace talvesk {
namespace {

// A figure measures in points of 1/96 inch: one of them is a pixel here, so that axes and texts are
// as large as those of the dialog.
constexpr double kPointsPerInch = 96.0;
constexpr double kMmPerPoint = 25.4 / kPointsPerInch;

}  // namespace

GatherPreview::GatherPreview(QWidget* parent) : QWidget(parent) {
  setMinimumSize(240, 215);  // less has no room for traces beside axes and texts
}

void GatherPreview::setShot(const ShotFileData& shot, const std::string& title) {
  mDocument = TomoDocument();
  mTitle = title;
  mWhyNot.clear();
  mPicture = QPixmap();
  appendShot(title, shot, mDocument);
  update();
}

void GatherPreview::setNothing(const QString& why) {
  mWhyNot = why;
  mPicture = QPixmap();
  update();
}

void GatherPreview::draw() {
  GatherFigureOptions options;
  options.widthMm = width() * kMmPerPoint;
  options.heightMm = height() * kMmPerPoint;
  options.dpi = kPointsPerInch * devicePixelRatioF();
  options.gain = 1.0;
  options.picks = false;
  options.title = mTitle;
  QByteArray bytes;
  const Status drawn = renderGatherFigure(mDocument, 0, options, FigureFormat::kPng, bytes);
  mPicture = QPixmap(size() * devicePixelRatioF());
  mPicture.fill(Qt::white);
  if (drawn.ok()) {
    mPicture.loadFromData(bytes);
  } else {
    QPainter(&mPicture).drawText(mPicture.rect(), Qt::AlignCenter | Qt::TextWordWrap,
                                 textOf(drawn.text()));
  }
  mPicture.setDevicePixelRatio(devicePixelRatioF());
}

void GatherPreview::resizeEvent(QResizeEvent* event) {
  mPicture = QPixmap();
  QWidget::resizeEvent(event);
}

void GatherPreview::paintEvent(QPaintEvent* event) {
  Q_UNUSED(event);
  if (mPicture.isNull() && mWhyNot.isEmpty()) draw();
  QPainter painter(this);
  if (mWhyNot.isEmpty()) {
    painter.drawPixmap(0, 0, mPicture);
  } else {
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, mWhyNot);
  }
}

}  // namespace talvesk
