#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "app/WaitCursor.h"
#include "io/FileFormats.h"
#include "io/ShotFile.h"
#include "io/TravelTimeFile.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "processing/ShotTime.h"
#include "refraction/ShotArrivals.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/editTravelTimesWidget.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QProgressDialog>
#include <QStatusBar>
#include <QUrl>
#include <algorithm>
#include <numeric>

namespace talvesk {
namespace {

constexpr int kPatience = 500;  ///< milliseconds of loading before progress is shown

/// Why a file was not loaded. A survey that takes no files refuses them without a name.
QString reasonOf(const ShotFileOutcome& outcome) {
  const Message& why = outcome.status.text();
  const bool named = why.english().find(outcome.path) != std::string::npos;
  return textOf(named ? why : joined(outcome.path, why));
}

}  // namespace

void Talvesk_MainWindows::on_actionNew_triggered() {
  logSlot(__func__);
  if (!mayLoseChanges()) return;
  const QStringList files = askForShotFiles();
  if (!files.isEmpty()) loadShotFiles(files, ShotFiles::kInstead);
}

void Talvesk_MainWindows::loadTraces_PWave() {
  logSlot(__func__);
  const QStringList files = askForShotFiles();
  if (!files.isEmpty()) loadShotFiles(files);
}

QStringList Talvesk_MainWindows::askForShotFiles() {
  QStringList files = QFileDialog::getOpenFileNames(
      this, tr("Open Seismic Trace"), mFolders.toOpen(), dialogFilter(shotFileFilters()));
  if (files.isEmpty()) return files;
  mFolders.opened(files.front());
  mLog.write("Loading " + std::to_string(files.size()) + " seismic files", 0);
  return files;
}

/// Reads files until they end or the user has enough of it.
std::vector<ReadShot> Talvesk_MainWindows::readShotFiles(const QStringList& files,
                                                         const TomoDocument& target) {
  std::vector<ReadShot> shots;
  QProgressDialog progress(tr("Loading shot files ..."), tr("Stop"), 0,
                           static_cast<int>(files.size()), this);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(kPatience);
  for (const QString& file : files) {
    progress.setValue(static_cast<int>(shots.size()));
    if (progress.wasCanceled()) break;
    shots.push_back(mLoader.read(file.toStdString(), target));
  }
  progress.reset();
  return shots;
}

/// A survey that others are to take the place of stays until one of these is there.
void Talvesk_MainWindows::loadShotFiles(const QStringList& files, ShotFiles how) {
  const bool instead = how == ShotFiles::kInstead;
  TomoDocument work = instead ? TomoDocument() : document();
  const std::size_t before = work.recordings->traceSets.size();
  std::vector<ReadShot> shots = readShotFiles(files, work);
  Losses losses;
  losses.model = lossByShots(shots, work);
  if (!mayLose(this, work, losses)) {
    statusBar()->showMessage(tr("No shot file was loaded."), kMessageTime);
    return;
  }
  const std::vector<ShotFileOutcome> outcomes = appendShots(std::move(shots), work);
  const std::size_t loaded = work.recordings->traceSets.size() - before;
  if (loaded == 0) return reportShotFiles(outcomes);
  if (instead) {
    openSurvey(newSurvey(std::move(work)), ProjectFile());
  } else if (!edit(Edit::kOpenShots, [&](Survey& survey) { survey.document = work; })) {
    return;
  }
  showFresh(static_cast<int>(before));
  reportShotFiles(outcomes);
  std::vector<std::size_t> sets(loaded);
  std::iota(sets.begin(), sets.end(), before);
  askForShotTime(sets);
}

/// What the user has set up for the section before goes on: palettes and view.
Survey Talvesk_MainWindows::newSurvey(TomoDocument document) const {
  Survey survey = mSession.survey();
  survey.document = std::move(document);
  survey.interpretation = {};
  survey.folder.reset();
  survey.own = {};
  return survey;
}

/// Makes a record that was just loaded the current one, and the keys go to its traces: they would
/// turn the tabs over where the focus was before there was anything to pick.
void Talvesk_MainWindows::showFresh(int index) {
  showFile(index);
  mUi->showTracesWidget->setFocus();
}

void Talvesk_MainWindows::reportShotFiles(const std::vector<ShotFileOutcome>& outcomes) {
  QStringList unsupported;
  QStringList broken;
  int warned = 0;
  for (const ShotFileOutcome& outcome : outcomes) {
    if (!outcome.warnings.empty()) ++warned;
    if (outcome.status.ok()) continue;
    mLog.write(outcome.status.message(), 1);
    (outcome.status.code() == kUnknownSuffix ? unsupported : broken) << reasonOf(outcome);
  }
  const QString title = tr("Error occured");
  if (!unsupported.isEmpty()) {
    showErrors(this, title, tr("Unsupported file format."), unsupported);
  }
  if (!broken.isEmpty()) {
    showErrors(this, title, tr("Error while loading one or more traces."), broken);
  }
  const int loaded = static_cast<int>(outcomes.size()) - static_cast<int>(unsupported.size()) -
                     static_cast<int>(broken.size());
  QString text = tr("%n shot file(s) loaded.", nullptr, loaded);
  if (warned > 0) {
    text +=
        QLatin1Char(' ') + tr("%n with warnings, see Traces > Recording details.", nullptr, warned);
  }
  statusBar()->showMessage(text, kMessageTime);
}

/// \param sets trace sets that are new, from 0
void Talvesk_MainWindows::askForShotTime(const std::vector<std::size_t>& sets) {
  double earliest = 0.0;
  for (const std::size_t set : sets) {
    for (const Trace& trace : document().recordings->traceSets[set])
      earliest = std::min(earliest, trace.delay);
  }
  if (earliest >= 0.0) return;
  const bool yes = askYesNo(
      this, tr("Recording delay"),
      tr("The records start before the shot, by up to %1 ms.").arg(-1000.0 * earliest),
      tr("Do you want to count times from the shot? What was recorded before it is then dropped."),
      true);
  if (!yes) return;
  ShotTimeOutcome outcome;
  // Only the new records: picks on the older ones count from where those start now.
  edit(Edit::kShotTime, [&](Survey& survey) {
    outcome = countTimeFromShot(survey.document.recordings.edit().traceSets, sets);
  });
  if (outcome.leftAsRecorded > 0) {
    showNote(this, tr("Recording delay"),
             tr("%n trace(s) end before the shot and stay as recorded.", nullptr,
                static_cast<int>(outcome.leftAsRecorded)));
  }
}

void Talvesk_MainWindows::on_actionLoad_TT_triggered() {
  logSlot(__func__);
  const QString file = QFileDialog::getOpenFileName(
      this, tr("Import TravelTimes"), mFolders.toOpen(), dialogFilter(travelTimeFileFilters()));
  if (file.isEmpty()) return;
  mFolders.opened(file);
  importTravelTimeFile(file);
}

void Talvesk_MainWindows::importTravelTimeFile(const QString& file) {
  TravelTimeData times;
  ImportCost cost;
  Status status = whileWaiting([&] {
    Status read = readTravelTimes(file.toStdString(), times);
    if (!read.ok()) return read;
    fitToRecords(times, document());
    return checkImport(times, document(), cost);
  });
  const std::vector<Message> warnings = times.warnings;
  if (status.ok()) {
    // An import replaces the picks at least.
    if (hasPicks(document()) && !mayLoseChanges()) return;
    Losses losses;
    losses.model = cost.model;
    losses.startingModel =
        cost.survey && (cost.model == ModelLoss::kGrid || document().model->grid == nullptr);
    losses.interpretation =
        isInterpreted(interpretation()) || (cost.survey && hasMarks(interpretation().ttLayer));
    if (!mayLose(this, document(), losses)) return;
    status = mSession.apply(cost.survey ? Edit::kImportSurvey : Edit::kImport, [&](Survey& survey) {
      if (cost.survey) {
        survey.document.title.clear();
        survey.own = {};
      }
      return importTravelTimes(times, survey.document);
    });
  }
  if (!status.ok()) {
    tellFailure(this, mLog, tr("Error while loading %1.").arg(QFileInfo(file).fileName()), status);
    return;
  }
  // The project on the disk is that of another survey: saving asks where to.
  if (cost.survey) setProjectFile({});
  showFresh(mCurrentFile < 0 ? 0 : mCurrentFile);
  statusBar()->showMessage(tr("Travel times of %n shot(s) imported.", nullptr,
                              static_cast<int>(document().ttArray.size())),
                           kMessageTime);
  if (!warnings.empty()) {
    showNote(this, tr("Warning"),
             tr("%1 was loaded with warnings.").arg(QFileInfo(file).fileName()),
             shortList(linesOf(warnings)));
  }
}

void Talvesk_MainWindows::on_actionExport_TravelTimes_triggered() {
  logSlot(__func__);
  const QString file = askForExport(tr("Save TravelTimeExchange"),
                                    dialogFilter(filtersOf(exchangeFormat())), "otte");
  if (file.isEmpty()) return;
  if (const Status status = writeTravelTimes(file.toStdString(), document()); !status.ok()) {
    tellFailure(this, mLog, tr("The travel times have not been saved."), status);
    return;
  }
  statusBar()->showMessage(tr("Travel times saved in %1").arg(file), kMessageTime);
}

void Talvesk_MainWindows::openFiles(const QStringList& files) {
  if (files.isEmpty() || mInversion != nullptr) return;  // it may have begun since the drop
  logSlot(__func__);
  mFolders.opened(files.front());
  QStringList shots;
  QStringList travelTimes;
  QStringList projects;
  for (const QString& file : files) {
    if (hasSuffixOf(projectFormat(), file.toStdString())) {
      projects << QFileInfo(file).absoluteFilePath();
      continue;
    }
    (looksLikeTravelTimes(file.toStdString()) ? travelTimes : shots)
        << QFileInfo(file).absoluteFilePath();
  }
  // Each would take the place of the one before.
  if (!projects.isEmpty()) openProject(projects.front());
  if (!shots.isEmpty()) loadShotFiles(shots);
  for (const QString& file : travelTimes) importTravelTimeFile(file);
}

void Talvesk_MainWindows::dragEnterEvent(QDragEnterEvent* event) {
  if (mInversion != nullptr) return;
  const QList<QUrl> urls = event->mimeData()->urls();
  if (std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); })) {
    event->acceptProposedAction();
  }
}

void Talvesk_MainWindows::dropEvent(QDropEvent* event) {
  QStringList files;
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) files << url.toLocalFile();
  }
  event->acceptProposedAction();
  // The program that the files come from waits for the end of the drop, and loading may ask.
  QMetaObject::invokeMethod(
      this, [this, files] { openFiles(files); }, Qt::QueuedConnection);
}

void Talvesk_MainWindows::on_actionSettings_triggered() {
  logSlot(__func__);
  if (askForSettings(mLanguages.current())) saveSettings();
}

void Talvesk_MainWindows::on_actionExit_triggered() {
  logSlot(__func__);
  close();
}

}  // namespace talvesk
