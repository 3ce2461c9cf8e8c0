#include "app/dialogs/ErrorBands.h"

#include "app/BackgroundErrors.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <utility>

namespace talvesk {
namespace {

constexpr int kMembers = parameters::kBounds.initial;

}  // namespace

ErrorBands::ErrorBands(QWidget* parent)
    : QWidget(parent),
      mBox(new QCheckBox(tr("&Error bands"), this)),
      mProgress(new QProgressBar(this)),
      mStop(new QPushButton(tr("Stop"), this)),
      mNote(new QLabel(this)),
      mFinding(new BackgroundErrors(this)) {
  mBox->setObjectName(QStringLiteral("errorBandsCheck"));
  mProgress->setObjectName(QStringLiteral("errorBandsProgress"));
  mStop->setObjectName(QStringLiteral("errorBandsStop"));
  mNote->setObjectName(QStringLiteral("errorBandsNote"));
  mNote->setTextFormat(Qt::PlainText);
  mProgress->setRange(0, kMembers);
  mProgress->setMaximumWidth(240);
  mStop->setAutoDefault(false);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* part : {static_cast<QWidget*>(mBox), static_cast<QWidget*>(mProgress),
                        static_cast<QWidget*>(mStop)}) {
    row->addWidget(part);
  }
  row->addWidget(mNote, 1);
  connect(mBox, &QCheckBox::toggled, this, &ErrorBands::follow);
  connect(mStop, &QPushButton::clicked, mBox, [this] { mBox->setChecked(false); });
  connect(mFinding, &BackgroundErrors::progressed, mProgress, &QProgressBar::setValue);
  connect(mFinding, &BackgroundErrors::found, this, &ErrorBands::take);
  setNone({});
}

ErrorBands::~ErrorBands() = default;

void ErrorBands::setPicks(LayerPicks picks) {
  mPicks = std::move(picks);
  mErrors.reset();
  mBox->setEnabled(true);
  mBox->setToolTip(tr("How far depths and velocities scatter as picks are moved by their errors, "
                      "over %1 interpretations")
                       .arg(kMembers));
  follow();
}

void ErrorBands::setNone(const QString& why) {
  mPicks.reset();
  mErrors.reset();
  mBox->setEnabled(false);
  mBox->setToolTip(why);
  follow();
  if (mBox->isChecked()) mNote->setText(why);  // they were wanted
}

/// Finds what is wanted and not there yet.
void ErrorBands::follow() {
  mFinding->stop();
  mNote->clear();
  const bool missing = mBox->isChecked() && mPicks && mErrors == nullptr;
  showWork(missing);
  if (missing) {
    BoundsOptions bounds;
    bounds.members = kMembers;
    mFinding->start(*mPicks, bounds);
  }
  tellChange();
}

void ErrorBands::tellChange() {
  if (errors() == mTold) return;
  mTold = errors();
  emit changed();
}

void ErrorBands::showWork(bool underWay) {
  mProgress->setValue(0);
  mProgress->setVisible(underWay);
  mStop->setVisible(underWay);
}

void ErrorBands::take(const std::shared_ptr<const ProfileErrors>& errors) {
  mErrors = errors;
  showWork(false);
  if (mErrors == nullptr) {
    mBox->setChecked(false);  // clears the note, too
    mNote->setText(
        tr("No errors could be found: the profile is not that of the picks and marks. "
           "Build it again."));
    return;
  }
  mNote->setText(tr("Bands: 68 of %1 interpretations of picks that were moved by their errors")
                     .arg(mErrors->members));
  tellChange();
}

std::shared_ptr<const ProfileErrors> ErrorBands::errors() const {
  return mBox->isChecked() ? mErrors : nullptr;
}

}  // namespace talvesk
