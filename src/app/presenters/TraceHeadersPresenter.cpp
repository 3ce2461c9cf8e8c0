#include "app/presenters/TraceHeadersPresenter.h"

#include "app/BusyWork.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/TraceHeadersDialog.h"
#include "app/presenters/FileExport.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr int kSoon = 200;     // milliseconds
constexpr int kMostNotes = 3;  // files without fields that are named; the log names all

}  // namespace

TraceHeadersPresenter::TraceHeadersPresenter(Desk& desk) : mDesk(desk) {
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &TraceHeadersPresenter::refresh);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    const auto has = [&change](Part part) { return change.parts.has(part); };
    const bool opened = change.kind == SurveyChange::Kind::kOpened;
    if (opened || has(Part::kRecordings)) mOtherFiles = true;
    const bool about = has(Part::kPicks) || has(Part::kGeometry) || has(Part::kRecordings);
    if (opened || about) ++mChanges;
    if (mDialog && (opened || about)) mSoon.start();
  });
}

void TraceHeadersPresenter::show() {
  if (!mDialog) {
    mDialog = new TraceHeadersDialog(&mDesk.window);
    mDialog->setAttribute(Qt::WA_DeleteOnClose);
    mDialog->fieldsWanted = [this] { refresh(); };
    mDialog->saveWanted = [this] { save(); };
    mDialog->traceWanted = [this](std::size_t set, std::size_t trace) { goTo(set, trace); };
  }
  refresh();
  const auto& records = mDesk.document().ttArray;
  if (mDesk.shot.index() >= 0) {
    const std::int32_t set = records[static_cast<std::size_t>(mDesk.shot.index())].traceSetID;
    if (set >= 0) mDialog->goTo(static_cast<std::size_t>(set), 0);
  }
  mDialog->show();
  mDialog->raise();
  mDialog->activateWindow();
}

void TraceHeadersPresenter::retranslate() {
  refresh();
}

/// Files are read when their fields are asked for, and again when the recordings are others.
void TraceHeadersPresenter::refresh() {
  mSoon.stop();
  if (!mDialog || mReading) return;
  TraceHeaders headers(mDesk.document());
  std::vector<Message> notes;
  if (mDialog->wantsFields()) {
    const TraceHeaders& before = mDialog->headers();
    if (before.hasFieldsOfFiles() && !mOtherFiles) {
      headers.takeFieldsOfFiles(before);
    } else {
      const int changes = mChanges;
      mOtherFiles = false;
      mReading = true;
      notes = whileBusy(*mDialog, [&headers] {
        std::vector<Message> found;
        headers.addFieldsOfFiles(found);
        return found;
      });
      mReading = false;
      if (changes != mChanges) {  // it is another survey by now
        mOtherFiles = true;
        mSoon.start();
        return;
      }
    }
  }
  if (!mDialog) return;  // closed while files were read
  mDialog->showHeaders(std::move(headers));
  if (notes.empty()) return;
  for (const Message& note : notes) mDesk.log.write(note, 1);
  mDialog->tell(tr("Shots whose files name no fields: %1. %2")
                    .arg(notes.size())
                    .arg(shortList(linesOf(notes), kMostNotes)
                             .replace(QLatin1Char('\n'), QLatin1String("; "))));
}

/// The keys stay where they are, so that one can go on to the next row.
void TraceHeadersPresenter::goTo(std::size_t set, std::size_t trace) {
  const auto& records = mDesk.document().ttArray;
  const auto found = std::find_if(records.begin(), records.end(), [set](const TravelTime& record) {
    return record.traceSetID == static_cast<std::int32_t>(set);
  });
  if (found == records.end()) return;
  const auto index = static_cast<int>(found - records.begin());
  mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
  if (mDesk.shot.index() != index) mDesk.shot.show(index);
  for (editTravelTimesWidget* editor : mDesk.editors()) editor->goToTrace(static_cast<int>(trace));
}

void TraceHeadersPresenter::save() {
  const QString file =
      askForExport(mDesk, tr("Save Trace Headers"), tr("Table (*.csv);;All Files (*)"), "csv");
  if (file.isEmpty() || !mDialog) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeTraceHeaders(path, mDialog->headers()); });
}

}  // namespace talvesk
