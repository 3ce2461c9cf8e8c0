#include "widgets/MatrixView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

MatrixView::MatrixView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

void MatrixView::setPicture(MatrixPicture picture) {
  mPicture = std::move(picture);
  if (mCurrent && rectAt(*mCurrent).isNull()) mCurrent.reset();
  update();
}

void MatrixView::setCurrentPlace(const std::optional<Place>& place) {
  if (mCurrent == place || (place && rectAt(*place).isNull())) return;
  mCurrent = place;
  setAccessibleDescription(place && mTextOf ? mTextOf(*place) : QString());
  update();
}

bool MatrixView::hasValue(const Place& place) const {
  return place.row < mPicture.rows.size() && place.column < mPicture.columns.size() &&
         !std::isnan(mPicture.at(place.row, place.column));
}

QRectF MatrixView::rectAt(const Place& place) const {
  if (place.row >= mPicture.rows.size() || place.column >= mPicture.columns.size()) return {};
  return mPicture.cell(place.row, place.column, area());
}

std::optional<MatrixView::Place> MatrixView::placeAt(const QPointF& point) const {
  const QRectF cells = area();
  if (mPicture.isEmpty() || !cells.contains(point)) return std::nullopt;
  const auto rank = [](double share, std::size_t count) {
    return std::min(static_cast<std::size_t>(std::max(0.0, share * static_cast<double>(count))),
                    count - 1);
  };
  return Place{rank((point.y() - cells.top()) / cells.height(), mPicture.rows.size()),
               rank((point.x() - cells.left()) / cells.width(), mPicture.columns.size())};
}

void MatrixView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  mPicture.paint(painter, rect(), font(), MatrixInk::of(palette()));
  if (!mCurrent) return;
  // Small cells get a frame around them, so that it can be seen.
  const QColor mark = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Text);
  const QRectF cell = rectAt(*mCurrent);
  const double room = std::min(cell.width(), cell.height()) < 8.0 ? -2.5 : 0.5;
  painter.setPen(QPen(mark, 2.0));
  painter.drawRect(cell.adjusted(room, room, -room, -room));
}

bool MatrixView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const std::optional<Place> place = placeAt(help.pos());
  if (place && mTextOf) {
    QToolTip::showText(help.globalPos(), mTextOf(*place), this, rectAt(*place).toAlignedRect());
  } else {
    QToolTip::hideText();
  }
  return true;
}

void MatrixView::moveTo(const Place& place) {
  if (mCurrent == place) return;
  setCurrentPlace(place);
  emit currentChanged();
}

void MatrixView::mousePressEvent(QMouseEvent* event) {
  const std::optional<Place> place = placeAt(event->localPos());
  if (event->button() != Qt::LeftButton || !place) return QWidget::mousePressEvent(event);
  moveTo(*place);
  if (hasValue(*place)) emit placeChosen(*place);
}

void MatrixView::walk(std::ptrdiff_t down, std::ptrdiff_t right) {
  const auto step = [](std::size_t from, std::ptrdiff_t by, std::size_t count) {
    const auto last = static_cast<std::ptrdiff_t>(count) - 1;
    return static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(from) + by, 0, last));
  };
  const Place from = mCurrent.value_or(Place{});
  moveTo({step(from.row, down, mPicture.rows.size()),
          step(from.column, right, mPicture.columns.size())});
}

void MatrixView::keyPressEvent(QKeyEvent* event) {
  if (mPicture.isEmpty()) return QWidget::keyPressEvent(event);
  const auto all = static_cast<std::ptrdiff_t>(mPicture.columns.size());
  switch (event->key()) {
    case Qt::Key_Up:
      return walk(-1, 0);
    case Qt::Key_Down:
      return walk(1, 0);
    case Qt::Key_Left:
      return walk(0, -1);
    case Qt::Key_Right:
      return walk(0, 1);
    case Qt::Key_Home:
      return walk(0, -all);
    case Qt::Key_End:
      return walk(0, all);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (mCurrent && hasValue(*mCurrent)) emit placeChosen(*mCurrent);
      return;
    default:
      return QWidget::keyPressEvent(event);
  }
}

void MatrixView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) update();
  QWidget::changeEvent(event);
}

}  // namespace talvesk
