#include "app/dialogs/setVelocityWidget.h"

#include "app/UnitWords.h"
#include "app/dialogs/ParameterField.h"
#include "ui_setVelocityWidget.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

setVelocityWidget::setVelocityWidget(const VelocityLayer& layer, QWidget* parent)
    : QWidget(parent), mUi(std::make_unique<Ui::setVelocityWidget>()) {
  mUi->setupUi(this);
  showUnits(*this);
  for (LengthBox* depth : {mUi->d1Edit, mUi->d2Edit}) {
    setUpField(*depth, parameters::kLayerDepth);
  }
  for (QSpinBox* velocity : {mUi->v1Edit, mUi->v2Edit}) {
    setUpField(*velocity, parameters::kLayerVelocity);
    velocity->setMinimum(0);  // what a layer has that makes no model, of which the dialog tells
  }
  setLayer(layer);
  for (QDoubleSpinBox* box : {mUi->d1Edit, mUi->d2Edit}) {
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &setVelocityWidget::lineEditModified);
  }
  for (QSpinBox* box : {mUi->v1Edit, mUi->v2Edit}) {
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &setVelocityWidget::lineEditModified);
  }
  connect(mUi->checkBox, &QCheckBox::toggled, this, &setVelocityWidget::markChanged);
}

setVelocityWidget::~setVelocityWidget() = default;

void setVelocityWidget::setLayer(const VelocityLayer& layer) {
  const auto whole = [](const QSpinBox& box, double velocity) {
    if (!std::isfinite(velocity)) return 0;
    return static_cast<int>(std::clamp(velocity, 0.0, static_cast<double>(box.maximum())));
  };
  mUi->d1Edit->setValue(layer.initialDepth);
  mUi->v1Edit->setValue(whole(*mUi->v1Edit, layer.initialVelocity));
  mUi->d2Edit->setValue(layer.finalDepth);
  mUi->v2Edit->setValue(whole(*mUi->v2Edit, layer.finalVelocity));
}

VelocityLayer setVelocityWidget::layer() const {
  VelocityLayer layer;
  layer.initialDepth = mUi->d1Edit->value();
  layer.initialVelocity = mUi->v1Edit->value();
  layer.finalDepth = mUi->d2Edit->value();
  layer.finalVelocity = mUi->v2Edit->value();
  return layer;
}

QWidget* setVelocityWidget::followInTabOrder(QWidget* previous) {
  QWidget* const fields[] = {mUi->checkBox, mUi->d1Edit, mUi->v1Edit, mUi->d2Edit, mUi->v2Edit};
  for (QWidget* field : fields) {
    setTabOrder(previous, field);
    previous = field;
  }
  return previous;
}

void setVelocityWidget::focusFirstField() {
  mUi->d1Edit->setFocus();
  mUi->d1Edit->selectAll();
}

bool setVelocityWidget::isMarked() const {
  return mUi->checkBox->isChecked();
}

}  // namespace talvesk
