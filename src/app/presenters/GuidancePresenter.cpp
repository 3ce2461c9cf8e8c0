#include "app/presenters/GuidancePresenter.h"

#include "app/GuidanceStrip.h"
#include "io/Survey.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/EmptyPage.h"
#include "widgets/TravelTimePlot.h"

#include <QAction>
#include <QThread>
#include <exception>
#include <optional>

namespace talvesk {
namespace {

/// Milliseconds: a stroke makes a pick with every move of the mouse, and one look at all of them is
/// enough.
constexpr int kTogether = 40;

bool judgedBy(const SurveyChange& change) {
  PartSet parts = PartSet::all();
  for (const Part part : {Part::kLook, Part::kMap, Part::kRuns, Part::kView}) parts.remove(part);
  return change.kind == SurveyChange::Kind::kOpened || change.parts.any(parts);
}

}  // namespace

GuidancePresenter::GuidancePresenter(Desk& desk)
    : mDesk(desk),
      mStrip(new GuidanceStrip(
          [&window = desk.window](const char* name) {
            return window.findChild<QAction*>(QLatin1String(name));
          },
          &desk.window)) {
  desk.window.addToolBarBreak(Qt::TopToolBarArea);
  desk.window.addToolBar(Qt::TopToolBarArea, mStrip);
  auto* ways = new CommandButtons(desk.ui.emptyPage);
  ways->setCommands(
      {desk.ui.actionOpen_shot_files, desk.ui.actionLoad_Project, desk.ui.actionLoad_TT});
  desk.ui.emptyLayout->insertStretch(0, 1);
  desk.ui.emptyLayout->addWidget(ways);
  ways->setTabOrderAfter(desk.ui.tabWidget);
  desk.ui.emptyLayout->addStretch(1);
  mDue.setSingleShot(true);
  mDue.setInterval(kTogether);
  connect(&mDue, &QTimer::timeout, this, &GuidancePresenter::refresh);
  // Hidden it costs nothing.
  connect(mStrip, &QToolBar::visibilityChanged, this, [this](bool visible) {
    if (visible) refresh();
  });
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    offerInEmptyViews();
    if (judgedBy(change) && mStrip->isVisible() && !mDue.isActive()) mDue.start();
  });
}

GuidancePresenter::~GuidancePresenter() {
  if (mJudging) mJudging->wait();
}

/// The section says by itself what is missing.
void GuidancePresenter::offerInEmptyViews() {
  const Ui::Talvesk_MainWindows& ui = mDesk.ui;
  const bool shots = !mDesk.document().ttArray.empty();
  for (TravelTimePlot* plot : mDesk.plots()) {
    plot->setEmptyCommands(
        {shots ? ui.actionAutoPick_survey : ui.actionOpen_shot_files, ui.actionLoad_TT});
  }
}

void GuidancePresenter::retranslate() {
  mStrip->retranslate();
}

QAction* GuidancePresenter::toggleAction() const {
  return mStrip->toggleViewAction();
}

/// The picks of a large survey take longer to judge than a window may be deaf after each of them,
/// so that is done beside it, on a copy.
void GuidancePresenter::refresh() {
  if (mJudging) {
    mAgain = true;
    return;
  }
  if (mDesk.document().ttArray.empty()) return mStrip->show(judgeSteps(mDesk.survey()));
  const auto judged = std::make_shared<std::optional<StepJudgements>>();
  mJudging.reset(QThread::create([survey = mDesk.survey(), judged] {
    try {
      *judged = judgeSteps(survey);
    } catch (const std::exception&) {  // out of memory: what was shown stays
    }
  }));
  connect(
      mJudging.get(), &QThread::finished, this,
      [this, judged] {
        mJudging->wait();
        mJudging.reset();
        if (mAgain) {
          mAgain = false;
          refresh();
        } else if (*judged) {
          mStrip->show(**judged);
        }
      },
      Qt::QueuedConnection);
  mJudging->start();
}

}  // namespace talvesk
