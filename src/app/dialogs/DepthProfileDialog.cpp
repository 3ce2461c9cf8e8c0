#include "app/dialogs/DepthProfileDialog.h"

#include "app/ToolTips.h"
#include "app/UnitWords.h"
#include "figures/DepthProfileFigure.h"
#include "ui_DepthProfileDialog.h"

#include <QEvent>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

/// The figure as large as the widget.
class ProfileSheet : public QWidget {
 public:
  explicit ProfileSheet(const DepthProfileDialog& dialog) : mDialog(dialog) {
    setObjectName(QStringLiteral("profileSheet"));
    setMinimumSize(320, 240);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    paintDepthProfile(painter, rect(), mDialog.profile(), mDialog.section(), {font(), QLocale()});
  }

 private:
  const DepthProfileDialog& mDialog;
};

}  // namespace

DepthProfileDialog::DepthProfileDialog(QWidget* parent)
    : QDialog(parent), mUi(std::make_unique<Ui::DepthProfileDialog>()) {
  mUi->setupUi(this);
  mSheet = new ProfileSheet(*this);
  retranslate();
  mUi->sheetLayout->addWidget(mSheet);
  connect(mUi->placeSpin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          [this](double x) {
            // Who types a place wants to stay there.
            mUi->followBox->setChecked(false);
            showAt(x);
          });
  connect(mUi->saveButton, &QPushButton::clicked, this, [this] {
    if (saveWanted) saveWanted();
  });
}

DepthProfileDialog::~DepthProfileDialog() = default;

void DepthProfileDialog::retranslate() {
  showUnits(*this);
  wrapToolTips(*this);
  mSheet->setAccessibleName(tr("Velocity, gradient and certainty against depth"));
  mSheet->update();
}

/// Another language or another unit.
void DepthProfileDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    mUi->retranslateUi(this);
    retranslate();
  }
  QDialog::changeEvent(event);
}

void DepthProfileDialog::setSection(DepthProfiles section) {
  mSection = std::move(section);
  const double middle = 0.5 * (mSection.left() + mSection.right());
  const bool onIt = mProfile.x >= mSection.left() && mProfile.x <= mSection.right();
  {
    const QSignalBlocker quiet(mUi->placeSpin);
    mUi->placeSpin->setRange(mSection.left(), mSection.right());
    mUi->placeSpin->setSingleStep(std::max(0.01 * (mSection.right() - mSection.left()), 0.01));
  }
  mUi->saveButton->setEnabled(!mSection.empty());
  showAt(onIt && !mProfile.layers.empty() ? mProfile.x : middle);
}

void DepthProfileDialog::pointAt(double x) {
  if (!mUi->followBox->isChecked() || x < mSection.left() || x > mSection.right()) return;
  // A pixel is not known finer, and the field has no more decimals.
  showAt(std::clamp(std::round(100.0 * x) / 100.0, mSection.left(), mSection.right()));
}

void DepthProfileDialog::showAt(double x) {
  mProfile = mSection.at(x);
  {
    const QSignalBlocker quiet(mUi->placeSpin);
    mUi->placeSpin->setValue(x);
  }
  mSheet->update();
}

}  // namespace talvesk
