#include "app/DarkDesktop.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace talvesk {
namespace {

constexpr double kStrength = 0.5;  ///< of the outline, as a share of the text

}  // namespace

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128;
}

void BoxOutlines::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool box = element == PE_IndicatorCheckBox;
  if ((!box && element != PE_IndicatorRadioButton) || !isDark(option->palette)) return;
  if ((option->state & State_HasFocus) != 0 && (option->state & State_KeyboardFocusChange) != 0) {
    return;  // outlined in the colour of the focus
  }
  QColor outline = option->palette.color(QPalette::Text);
  outline.setAlphaF(kStrength);
  const QRectF around = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter->save();
  painter->setPen(outline);
  painter->setBrush(Qt::NoBrush);
  painter->setRenderHint(QPainter::Antialiasing, !box);
  if (box) {
    painter->drawRect(around);
  } else {
    painter->drawEllipse(around);
  }
  painter->restore();
}

void outlineBoxes() {
  if (QApplication::style()->inherits("QFusionStyle")) QApplication::setStyle(new BoxOutlines);
}

}  // namespace talvesk
