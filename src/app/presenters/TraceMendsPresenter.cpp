#include "app/presenters/TraceMendsPresenter.h"

#include "model/Mending.h"
#include "model/Recordings.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QInputDialog>
#include <QMenu>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kMilliseconds = 1e3;

/// Milliseconds of the longest record of a shot.
double longestOf(const TomoDocument& document, int shot) {
  double longest = 0.0;
  const TraceSet* traces = document.tracesOf(document.ttArray[static_cast<std::size_t>(shot)]);
  if (traces == nullptr) return longest;
  for (const Trace& trace : *traces) {
    if (!(trace.sampleInterval > 0.0) || trace.sampleInterval > kMilliseconds) continue;
    const auto samples = static_cast<double>(trace.samples.size());
    longest = std::max(longest, kMilliseconds * trace.sampleInterval * samples);
  }
  return longest;
}

}  // namespace

TraceMendsPresenter::TraceMendsPresenter(Desk& desk) : mDesk(desk) {
  for (editTravelTimesWidget* editor : desk.editors()) {
    connect(editor, &editTravelTimesWidget::mended, this,
            [this](const std::vector<Message>& notes) { mDesk.tellNotes(notes); });
    connect(editor, &editTravelTimesWidget::muteTimeWanted, this,
            [this, editor] { askMute(*editor); });
    connect(editor, &editTravelTimesWidget::menuWanted, this, &TraceMendsPresenter::showMenu);
  }
}

void TraceMendsPresenter::askMute() {
  askMute(*mDesk.ui.showTracesWidget);
}

void TraceMendsPresenter::askMute(editTravelTimesWidget& editor) {
  const int shot = editor.shot();
  const int trace = editor.selectedFirst() >= 0 ? editor.selectedFirst() : editor.currentTrace();
  if (shot < 0 || trace < 0) return;
  const ShotMends& mends = mendsOfRecord(mDesk.document(), shot);
  const double before = kMilliseconds * mendOf(mends, static_cast<std::size_t>(trace)).mutedBefore;
  bool wanted = false;
  constexpr int kDecimals = 3;
  const double ms =
      QInputDialog::getDouble(&mDesk.window, tr("Mute traces"),
                              tr("The selected traces are zero before (ms); 0: from nowhere"),
                              before, 0.0, longestOf(mDesk.document(), shot), kDecimals, &wanted);
  if (wanted) editor.muteTraces(ms / kMilliseconds);
}

void TraceMendsPresenter::showMenu(const QPoint& at) {
  QMenu menu(&mDesk.window);
  menu.setToolTipsVisible(true);
  menu.addActions(mDesk.ui.menuMends->actions());
  menu.addSeparator();
  menu.addActions({mDesk.ui.actionConfirm_picks, mDesk.ui.actionRemove_picks,
                   mDesk.ui.actionRemove_unconfirmed});
  menu.addSeparator();
  menu.addAction(mDesk.ui.actionMend_recording);
  menu.exec(at);
}

}  // namespace talvesk
