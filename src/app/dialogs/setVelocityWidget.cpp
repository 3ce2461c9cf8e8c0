#include "app/dialogs/setVelocityWidget.h"

#include "app/UnitWords.h"
#include "app/dialogs/ParameterField.h"
#include "ui_setVelocityWidget.h"

namespace talvesk {

setVelocityWidget::setVelocityWidget(const VelocityLayer& layer, QWidget* parent)
    : QWidget(parent), mUi(std::make_unique<Ui::setVelocityWidget>()) {
  mUi->setupUi(this);
  showUnits(*this);
  for (LengthBox* depth : {mUi->d1Edit, mUi->d2Edit}) {
    setUpField(*depth, parameters::kLayerDepth);
  }
  for (VelocityBox* velocity : {mUi->v1Edit, mUi->v2Edit}) {
    setUpField(*velocity, parameters::kLayerVelocity);
    velocity->setMinimum(0);  // what a layer has that makes no model, of which the dialog tells
  }
  setLayer(layer);
  for (QDoubleSpinBox* box : {mUi->d1Edit, mUi->d2Edit}) {
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &setVelocityWidget::lineEditModified);
  }
  for (VelocityBox* box : {mUi->v1Edit, mUi->v2Edit}) {
    connect(box, &VelocityBox::velocityChanged, this, &setVelocityWidget::lineEditModified);
  }
  connect(mUi->checkBox, &QCheckBox::toggled, this, &setVelocityWidget::markChanged);
}

setVelocityWidget::~setVelocityWidget() = default;

void setVelocityWidget::setLayer(const VelocityLayer& layer) {
  mUi->d1Edit->setValue(layer.initialDepth);
  mUi->v1Edit->setVelocity(layer.initialVelocity);
  mUi->d2Edit->setValue(layer.finalDepth);
  mUi->v2Edit->setVelocity(layer.finalVelocity);
}

VelocityLayer setVelocityWidget::layer() const {
  VelocityLayer layer;
  layer.initialDepth = mUi->d1Edit->value();
  layer.initialVelocity = mUi->v1Edit->velocity();
  layer.finalDepth = mUi->d2Edit->value();
  layer.finalVelocity = mUi->v2Edit->velocity();
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
