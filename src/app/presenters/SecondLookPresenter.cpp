#include "app/presenters/SecondLookPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/SecondLookDialog.h"
#include "session/TakeShifts.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QStatusBar>
#include <QStringList>
#include <QToolButton>
#include <algorithm>
#include <limits>

namespace talvesk {
namespace {

constexpr int kSoon = 200;            // milliseconds
constexpr double kAround = 0.25;      // of the width of what is shown
constexpr double kLeastAround = 3.0;  // metres

}  // namespace

SecondLookPresenter::SecondLookPresenter(Desk& desk)
    : mDesk(desk), mNotice(new QToolButton(&desk.window)) {
  mNotice->setObjectName(QStringLiteral("secondLookNotice"));
  mNotice->setAutoRaise(true);
  mNotice->hide();
  connect(mNotice, &QToolButton::clicked, this, &SecondLookPresenter::show);
  desk.ui.statusBar->insertPermanentWidget(0, mNotice);
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &SecondLookPresenter::tell);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    if (change.kind == SurveyChange::Kind::kView || change.kind == SurveyChange::Kind::kSaved) {
      return;
    }
    mSoon.start();
    if (mDialog != nullptr && mDialog->isVisible()) refresh();
  });
}

void SecondLookPresenter::retranslate() {
  tell();
  if (mDialog != nullptr && mDialog->isVisible()) refresh();
}

void SecondLookPresenter::tell() {
  const SecondLook look = secondLook(mDesk.document());
  QStringList all;
  const auto add = [&all](const QString& text, std::size_t count) {
    if (count > 0) all << text.arg(count);
  };
  add(tr("suspect picks: %1"), look.suspects.size());
  add(tr("time shifts of shots: %1"), look.shifts.size());
  add(tr("cells at a limit of the velocity: %1"), look.atLeast.cells + look.atGreatest.cells);
  add(tr("cells shown that no ray crosses: %1"), look.withoutRays.cells);
  mNotice->setVisible(!all.isEmpty());
  mNotice->setText(tr("Second look (%1)", "kinds of things to look at").arg(all.size()));
  mNotice->setToolTip(all.join(QLatin1Char('\n')));
  mNotice->setAccessibleDescription(all.join(QStringLiteral("; ")));
}

void SecondLookPresenter::show() {
  if (mDialog == nullptr) {
    mDialog = new SecondLookDialog(&mDesk.window);
    connect(mDialog, &SecondLookDialog::pickWanted, this, &SecondLookPresenter::showPick);
    connect(mDialog, &SecondLookDialog::shotWanted, this, [this](int shot) { showPick(shot, -1); });
    connect(mDialog, &SecondLookDialog::groundWanted, this, &SecondLookPresenter::showGround);
    connect(mDialog, &SecondLookDialog::takeOverWanted, this, [this] { takeOver(); });
  }
  refresh();
  mDialog->show();
  mDialog->raise();
}

void SecondLookPresenter::showIfAny() {
  const SecondLook look = secondLook(mDesk.document());
  if (!look.suspects.empty() || !look.shifts.empty()) show();
}

void SecondLookPresenter::refresh() {
  mDialog->setLook(secondLook(mDesk.document()));
}

/// \param trace -1: none in particular
void SecondLookPresenter::showPick(int shot, int trace) {
  mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
  mDesk.shot.show(shot);
  if (trace >= 0) mDesk.ui.showTracesWidget->setCurrentTrace(trace);
}

/// With some of what is around it.
void SecondLookPresenter::showGround(const CellPatch& patch) {
  const SectionScene* scene = mDesk.ui.vtk_widget->scene();
  if (scene == nullptr) return;
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const Point2D& point : scene->surface) {
    if (point.x < patch.left || point.x > patch.right) continue;
    low = std::min(low, point.z);
    high = std::max(high, point.z);
  }
  if (low > high) return;
  mDesk.showSection();
  const double around = std::max(kLeastAround, kAround * (patch.right - patch.left));
  mDesk.ui.vtk_widget->showPart({patch.left - around, low - patch.bottom - around},
                                {patch.right + around, high - patch.top + around});
}

void SecondLookPresenter::takeOver() {
  if (mDesk.inversionRuns) return;
  const std::vector<ShotShift> wanted = mDialog->taken();
  if (wanted.empty()) return;
  const TakenShifts taken = takeShifts(wanted, mDesk.session);
  for (const Message& note : taken.notes) mDesk.log.write(note, 0);
  for (const Message& failure : taken.failures) mDesk.log.write(failure, 1);
  QString told = tr("Time shifts taken over: %1 of %2. Invert again to see what they change.")
                     .arg(taken.done)
                     .arg(wanted.size());
  if (taken.picksOnly > 0) {
    told += QLatin1Char(' ') +
            tr("Shots without a recording, whose picks were shifted: %1.").arg(taken.picksOnly);
  }
  mDesk.tell(told);
  if (taken.failures.empty()) return;
  showErrors(mDialog, mDialog->windowTitle(), tr("Some time shifts have not been taken over."),
             linesOf(taken.failures));
}

}  // namespace talvesk
