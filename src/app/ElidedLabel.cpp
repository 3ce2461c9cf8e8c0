#include "app/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace talvesk {

QSize ElidedLabel::minimumSizeHint() const {
  return {1, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::isCut() const {
  return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && isCut()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  if (!isCut()) return QLabel::paintEvent(event);
  QPainter painter(this);
  const QRect room = contentsRect();
  style()->drawItemText(&painter, room, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                        foregroundRole());
}

}  // namespace talvesk
