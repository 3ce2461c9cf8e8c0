#include "app/dialogs/ColorField.h"

#include <QColor>
#include <QColorDialog>
#include <QIcon>
#include <QPixmap>

namespace talvesk {

ColorField::ColorField(std::uint32_t color, QWidget* parent) : QToolButton(parent) {
  setToolTip(tr("Choose another colour"));
  setFocusPolicy(Qt::StrongFocus);
  setColor(color);
  connect(this, &QToolButton::clicked, this, &ColorField::ask);
}

void ColorField::setColor(std::uint32_t color) {
  mColor = color;
  const QColor shown{QRgb(color)};
  QPixmap patch(24, 14);
  patch.fill(shown);
  setIcon(patch);
  setIconSize(patch.size());
  setAccessibleName(tr("Colour %1").arg(shown.name()));
}

void ColorField::ask() {
  const QColor chosen = QColorDialog::getColor(QColor(QRgb(mColor)), this, tr("Colour"));
  if (!chosen.isValid()) return;
  setColor(chosen.rgb() & 0xffffffU);
  emit changed();
}

}  // namespace talvesk
