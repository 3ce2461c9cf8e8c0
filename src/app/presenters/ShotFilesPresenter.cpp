#include "app/presenters/ShotFilesPresenter.h"

#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/ReadingsDialog.h"
#include "app/dialogs/ShotFileDialog.h"
#include "app/presenters/ProjectPresenter.h"
#include "app/presenters/ShotTimeQuestion.h"
#include "io/ShotFile.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"

#include <QProgressDialog>
#include <numeric>
#include <utility>

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

void ShotFilesPresenter::newSurvey() {
  if (!mProjects.mayLoseChanges()) return;
  const Choice choice = askForFiles();
  if (!choice.files.isEmpty()) load(choice.files, How::kInstead, choice.reader);
}

void ShotFilesPresenter::addFiles() {
  const Choice choice = askForFiles();
  if (!choice.files.isEmpty()) load(choice.files, How::kAdded, choice.reader);
}

ShotFilesPresenter::Choice ShotFilesPresenter::askForFiles() {
  ShotFileDialog dialog(tr("Open Seismic Trace"), mDesk.folders.toOpen(), &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return {};
  Choice choice = {dialog.selectedFiles(), dialog.reader()};
  if (choice.files.isEmpty()) return choice;
  mDesk.folders.opened(choice.files.front());
  mDesk.log.write("Loading " + std::to_string(choice.files.size()) + " seismic files", 0);
  return choice;
}

/// Reads files until they end or the user has enough of it.
ShotFilesPresenter::Readings ShotFilesPresenter::read(const QStringList& files,
                                                      const TomoDocument& target,
                                                      ShotReader reader) {
  Readings readings;
  const bool compare = reader == ShotReader::kRules && checkTakesShots(target).ok();
  QProgressDialog progress(tr("Loading shot files ..."), tr("Stop"), 0,
                           static_cast<int>(files.size()), &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(kPatience);
  for (const QString& file : files) {
    const std::size_t index = readings.files.size();
    progress.setValue(static_cast<int>(index));
    if (progress.wasCanceled()) break;
    readings.files.push_back(mDesk.loader.read(file.toStdString(), target, reader));
    if (!compare) continue;
    auto fuller = readFuller(readings.files.back());
    if (fuller) readings.fuller.emplace(index, std::move(*fuller));
  }
  progress.reset();
  return readings;
}

/// False when the user wants none of the files.
bool ShotFilesPresenter::chooseReadings(Readings& readings) {
  if (readings.fuller.empty()) return true;
  std::vector<ReadingsDialog::File> shown;
  for (const auto& [index, fuller] : readings.fuller) {
    shown.push_back({&readings.files[index], &fuller});
  }
  const ReadingsDialog::Answer answer = ReadingsDialog(std::move(shown), &mDesk.window).ask();
  if (answer == ReadingsDialog::Answer::kCancel) return false;
  if (answer == ReadingsDialog::Answer::kRules) return true;
  for (auto& [index, fuller] : readings.fuller) {
    readings.files[index] = std::move(fuller.byStandard);
  }
  return true;
}

/// A survey that others are to take the place of stays until one of these is there.
void ShotFilesPresenter::load(const QStringList& files, How how, ShotReader reader) {
  const bool instead = how == How::kInstead;
  TomoDocument work = instead ? TomoDocument() : mDesk.document();
  const std::size_t before = work.recordings->traceSets.size();
  Readings readings = read(files, work, reader);
  Losses losses;
  const bool wanted = chooseReadings(readings);
  losses.model = lossByShots(readings.files, work);
  if (!wanted || !mayLose(&mDesk.window, work, losses)) {
    mDesk.tell(tr("No shot file was loaded."));
    return;
  }
  const std::vector<ShotFileOutcome> outcomes = appendShots(std::move(readings.files), work);
  const std::size_t loaded = work.recordings->traceSets.size() - before;
  if (loaded == 0) return report(outcomes);
  if (instead) {
    mProjects.openSurvey(surveyOf(std::move(work)), ProjectFile());
  } else if (!mDesk.edit(Edit::kOpenShots, [&](Survey& survey) { survey.document = work; })) {
    return;
  }
  mDesk.showFresh(static_cast<int>(before));
  report(outcomes);
  std::vector<std::size_t> sets(loaded);
  std::iota(sets.begin(), sets.end(), before);
  askForShotTime(mDesk, sets);
}

/// What the user has set up for the section before goes on: palettes and view.
Survey ShotFilesPresenter::surveyOf(TomoDocument document) const {
  Survey survey = mDesk.session.survey();
  survey.document = std::move(document);
  survey.interpretation = {};
  survey.folder.reset();
  survey.own = {};
  return survey;
}

void ShotFilesPresenter::report(const std::vector<ShotFileOutcome>& outcomes) {
  QStringList unsupported;
  QStringList broken;
  int warned = 0;
  for (const ShotFileOutcome& outcome : outcomes) {
    if (!outcome.warnings.empty()) ++warned;
    if (outcome.status.ok()) continue;
    mDesk.log.write(outcome.status.message(), 1);
    (outcome.status.code() == kUnknownSuffix ? unsupported : broken) << reasonOf(outcome);
  }
  const QString title = tr("Error occured");
  if (!unsupported.isEmpty()) {
    showErrors(&mDesk.window, title, tr("Unsupported file format."), unsupported);
  }
  if (!broken.isEmpty()) {
    showErrors(&mDesk.window, title, tr("Error while loading one or more traces."), broken);
  }
  const int loaded = static_cast<int>(outcomes.size()) - static_cast<int>(unsupported.size()) -
                     static_cast<int>(broken.size());
  QString text = tr("%n shot file(s) loaded.", nullptr, loaded);
  if (warned > 0) {
    text +=
        QLatin1Char(' ') + tr("%n with warnings, see Traces > Recording details.", nullptr, warned);
  }
  mDesk.tell(text);
}

}  // namespace talvesk
