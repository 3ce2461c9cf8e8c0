#include "app/presenters/ShotFilesPresenter.h"

#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/presenters/ProjectPresenter.h"
#include "app/presenters/ShotTimeQuestion.h"
#include "io/FileFormats.h"
#include "io/ShotFile.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"

#include <QFileDialog>
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
  const QStringList files = askForFiles();
  if (!files.isEmpty()) load(files, How::kInstead);
}

void ShotFilesPresenter::addFiles() {
  const QStringList files = askForFiles();
  if (!files.isEmpty()) load(files);
}

QStringList ShotFilesPresenter::askForFiles() {
  QStringList files =
      QFileDialog::getOpenFileNames(&mDesk.window, tr("Open Seismic Trace"), mDesk.folders.toOpen(),
                                    dialogFilter(shotFileFilters()));
  if (files.isEmpty()) return files;
  mDesk.folders.opened(files.front());
  mDesk.log.write("Loading " + std::to_string(files.size()) + " seismic files", 0);
  return files;
}

/// Reads files until they end or the user has enough of it.
std::vector<ReadShot> ShotFilesPresenter::read(const QStringList& files,
                                               const TomoDocument& target) {
  std::vector<ReadShot> shots;
  QProgressDialog progress(tr("Loading shot files ..."), tr("Stop"), 0,
                           static_cast<int>(files.size()), &mDesk.window);
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(kPatience);
  for (const QString& file : files) {
    progress.setValue(static_cast<int>(shots.size()));
    if (progress.wasCanceled()) break;
    shots.push_back(mDesk.loader.read(file.toStdString(), target));
  }
  progress.reset();
  return shots;
}

/// A survey that others are to take the place of stays until one of these is there.
void ShotFilesPresenter::load(const QStringList& files, How how) {
  const bool instead = how == How::kInstead;
  TomoDocument work = instead ? TomoDocument() : mDesk.document();
  const std::size_t before = work.recordings->traceSets.size();
  std::vector<ReadShot> shots = read(files, work);
  Losses losses;
  losses.model = lossByShots(shots, work);
  if (!mayLose(&mDesk.window, work, losses)) {
    mDesk.tell(tr("No shot file was loaded."));
    return;
  }
  const std::vector<ShotFileOutcome> outcomes = appendShots(std::move(shots), work);
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
