#include "app/presenters/RunsPresenter.h"

#include "app/AfterClosing.h"
#include "app/RunTexts.h"
#include "app/WaitCursor.h"
#include "app/dialogs/CompareRunsDialog.h"
#include "app/dialogs/RunsDialog.h"
#include "app/presenters/FileExport.h"
#include "figures/RunComparison.h"
#include "figures/SectionFigure.h"
#include "io/Survey.h"
#include "model/KeptRuns.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/KeepRun.h"
#include "ui_Talvesk_MainWindows.h"

#include <QEventLoop>
#include <QThread>
#include <algorithm>
#include <memory>
#include <optional>

namespace talvesk {
namespace {

std::optional<std::size_t> indexOf(unsigned number, const TomoDocument& document) {
  return findRun(*document.runs, std::to_string(number));
}

/// Tracing takes as long as a pass of an inversion: a thread does it while the window goes on
/// drawing itself.
Status useBeside(std::size_t index, TomoDocument& document, Log& log) {
  const WaitCursor waiting;
  Status status;
  const std::unique_ptr<QThread> thread(
      QThread::create([&] { status = useRun(index, searchThreads(), document, log); }));
  QEventLoop loop;
  QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  thread->wait();
  return status;
}

}  // namespace

void RunsPresenter::show() {
  RunsDialog dialog(&mDesk.window);
  dialog.offerWhereEmpty(*afterClosing(dialog, *mDesk.ui.actionRun_tomography_inversion));
  const auto refresh = [&] { dialog.setRuns(mDesk.document(), mDesk.palettes().current()); };
  connect(&dialog, &RunsDialog::useWanted, this, [&](unsigned number) {
    use(number);
    refresh();
  });
  connect(&dialog, &RunsDialog::nameWanted, this, [&](unsigned number, const QString& name) {
    rename(number, name);
    QMetaObject::invokeMethod(&dialog, refresh, Qt::QueuedConnection);
  });
  connect(&dialog, &RunsDialog::deleteWanted, this, [&](const std::vector<unsigned>& numbers) {
    remove(numbers);
    refresh();
  });
  connect(&dialog, &RunsDialog::comparisonWanted, this,
          [&](unsigned left, unsigned right) { compare(left, right, dialog); });
  refresh();
  dialog.exec();
}

void RunsPresenter::use(unsigned number) {
  const auto index = indexOf(number, mDesk.document());
  if (!index) return;
  TomoDocument copy = mDesk.document();
  const bool wasSure = copy.result->certainty.has_value();
  mDesk.ui.statusBar->showMessage(tr("Tracing the rays of the run anew ..."));
  Status status = useBeside(*index, copy, mDesk.log);
  mDesk.ui.statusBar->clearMessage();
  const QString title = runTitle(copy.runs[*index]);
  if (status.ok()) {
    status = mDesk.session.apply(Edit::kUseRun, [&](Survey& survey) {
      survey.document = std::move(copy);
      return Status();
    });
  }
  if (!status.ok()) {
    mDesk.tellFailure(tr("\"%1\" cannot be used.").arg(title), status);
    return;
  }
  mDesk.showSection();
  QString told = tr("The section is that of \"%1\".").arg(title);
  if (wasSure) {
    told += QLatin1Char(' ') + tr("How sure the section before was is known no more; Undo brings "
                                  "back both.");
  }
  mDesk.tell(told);
}

void RunsPresenter::rename(unsigned number, const QString& name) {
  const auto index = indexOf(number, mDesk.document());
  if (!index || mDesk.document().runs[*index].name == name.toStdString()) return;
  mDesk.edit(
      Edit::kRuns,
      [&](Survey& survey) { survey.document.runs.edit()[*index].name = name.toStdString(); },
      Message::tr("Rename run"));
}

void RunsPresenter::remove(const std::vector<unsigned>& numbers) {
  const auto isGone = [&](const KeptRun& run) {
    return std::find(numbers.begin(), numbers.end(), run.number) != numbers.end();
  };
  const bool done = mDesk.edit(
      Edit::kRuns,
      [&](Survey& survey) {
        std::vector<KeptRun>& runs = survey.document.runs.edit();
        runs.erase(std::remove_if(runs.begin(), runs.end(), isGone), runs.end());
      },
      Message::tr("Delete runs"));
  if (done)
    mDesk.tell(tr("%n inversion run(s) deleted.", nullptr, static_cast<int>(numbers.size())));
}

void RunsPresenter::compare(unsigned left, unsigned right, RunsDialog& dialog) {
  const SectionFigureOptions look =
      sectionFigureOptions(mDesk.section(), mDesk.palettes().current());
  CompareRunsDialog comparison(mDesk.document(), look, mDesk.section().lockRange, &dialog);
  comparison.saveWanted = [this](const RunComparison& shown) { save(shown); };
  comparison.choose(left, right);
  comparison.exec();
}

void RunsPresenter::save(const RunComparison& comparison) {
  const QString file =
      askForExport(mDesk, tr("Save picture of both runs"),
                   tr("PNG picture (*.png);;SVG picture (*.svg);;PDF document (*.pdf)"), "png");
  if (file.isEmpty()) return;
  exportTo(mDesk, file,
           [&](const std::string& path) { return writeRunComparison(comparison, path); });
}

}  // namespace talvesk
