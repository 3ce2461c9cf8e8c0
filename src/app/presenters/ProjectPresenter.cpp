#include "app/presenters/ProjectPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/progressDialog.h"
#include "app/presenters/FileExport.h"
#include "app/presenters/ProjectQuestions.h"
#include "base/FileReplacement.h"
#include "io/FileFormats.h"
#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"
#include "model/TomographyOutcome.h"
#include "tomo/RayRecomputation.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

const QString kSuffix = QStringLiteral(".tvsk");

}  // namespace

ProjectPresenter::ProjectPresenter(Desk& desk)
    : mDesk(desk),
      mRecent(desk,
              [this](const QString& file) {
                mDesk.folders.opened(file);
                open(file);
              }),
      mSubscription(
          desk.session.subscribe([this](const SurveyChange& change) { followImports(change); })) {}

bool ProjectPresenter::save() {
  return mDesk.project.isEmpty() ? saveAs() : saveTo(mDesk.project.path());
}

bool ProjectPresenter::saveAs() {
  QFileDialog dialog(&mDesk.window, tr("Save Project"),
                     mDesk.project.isEmpty() ? mDesk.folders.toSave() : mDesk.project.path(),
                     dialogFilter(filtersOf(projectFormat())));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  // The question comes below, when the name is complete.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  proposeName(dialog, mDesk, "tvsk");
  if (dialog.exec() != QDialog::Accepted) return false;
  QString file = dialog.selectedFiles().value(0);
  if (QFileInfo(file).completeBaseName().isEmpty() || QFileInfo(file).isDir()) {
    showError(&mDesk.window, tr("Error occured"), tr("Empty filename to be saved"),
              tr("%1 is a folder or names no file. Give the project a name.")
                  .arg(QDir::toNativeSeparators(file)));
    return false;
  }
  if (!file.endsWith(kSuffix)) file += kSuffix;
  const bool replaces = QFileInfo::exists(file) && file != mDesk.project.path();
  if (replaces && !askYesNo(&mDesk.window, tr("Save Project"),
                            tr("%1 already exists.").arg(QFileInfo(file).fileName()),
                            tr("Do you want to replace it?"), false)) {
    return false;
  }
  mDesk.folders.saved(file);
  return saveTo(file);
}

bool ProjectPresenter::saveTo(const QString& file) {
  const ProjectFile target =
      file == mDesk.project.path() ? mDesk.project : ProjectFile(file, mDesk.project);
  if (!mayReplace(mDesk, target)) return false;
  ProjectWriter writer;
  int result = 1;
  progressDialog progress(writer, file, &mDesk.window);
  progress.run([&] {
    result =
        writer.save(file.toStdString(), mDesk.folder.path, mDesk.document(), mDesk.interpretation(),
                    mDesk.palettes(), mDesk.section(), mDesk.survey().own);
  });
  if (result != 0) {
    mDesk.log.write(writer.message(), 1);
    QString details = textOf(writer.reason());
    if (QFileInfo::exists(file)) {
      details += QLatin1Char('\n') + tr("The file is as it was before.");
    }
    showError(&mDesk.window, tr("Error occured"),
              tr("Something went wrong while saving project ") + file + QLatin1Char('\n') +
                  tr("WARNING: the project has NOT been saved."),
              details);
    return false;
  }
  mDesk.project = ProjectFile(file, target);
  mDesk.session.markSaved();
  mRecent.add(file);
  mDesk.tell(tr("Project saved in %1").arg(file));
  if (!writer.warnings().empty()) {
    showWarning(&mDesk.window, tr("Warning"), tr("The project has been saved."),
                shortList(linesOf(writer.warnings())));
  }
  return true;
}

bool ProjectPresenter::mayLoseChanges() {
  if (!mDesk.session.modified()) return true;
  switch (askToSave(&mDesk.window)) {
    case SaveAnswer::kSave:
      return save();
    case SaveAnswer::kDiscard:
      return true;
    case SaveAnswer::kCancel:
      return false;
  }
  return false;
}

void ProjectPresenter::load() {
  const QString file =
      QFileDialog::getOpenFileName(&mDesk.window, tr("Load Project"), mDesk.folders.toOpen(),
                                   dialogFilter(filtersOf(projectFormat())));
  if (file.isEmpty()) return;
  mDesk.folders.opened(file);
  open(file);
}

void ProjectPresenter::open(const QString& file) {
  if (!mayLoseChanges()) return;
  ProjectFile opened(file, mDesk.project);
  if (!mayUse(mDesk, opened, tr("Do you want to open it all the same?"))) return;
  LoadedProject project;
  if (!read(file, project)) return;
  clearReplacements(file.toStdString());
  take(std::move(project), std::move(opened));
  mRecent.add(file);
}

/// Loads aside: what is open stays as it is until all of the project is there.
bool ProjectPresenter::read(const QString& file, LoadedProject& project) {
  projectReader reader;
  int result = 1;
  Status rays;
  progressDialog progress(reader, file, &mDesk.window);
  progress.run([&] {
    result = reader.load(file.toStdString(), mDesk.folder.path, project);
    if (result != 0 || !project.document.result->has_tomographic_info) return;
    QMetaObject::invokeMethod(&progress, &progressDialog::write_tracing_rays, Qt::QueuedConnection);
    rays = recomputeRays(project.document, mDesk.log);
  });
  if (result != 0) {
    reportBad(file, reader);
    return false;
  }
  if (!rays.ok()) mDesk.log.write(rays.message(), 1);
  if (!reader.repairs().empty()) {
    showWarning(&mDesk.window, tr("Warning"),
                tr("Some values of the project cannot be. They were put right or left out."),
                shortList(linesOf(reader.repairs())));
  }
  if (!reader.warnings().empty()) {
    showWarning(&mDesk.window, tr("Warning"),
                tr("Error while loading traces: Invalid file format."),
                shortList(linesOf(reader.warnings())));
  }
  return true;
}

void ProjectPresenter::reportBad(const QString& file, const projectReader& reader) {
  mDesk.log.write(file.toStdString() + ": " + reader.message(), 1);
  QString text = tr("%1 is not a valid project.").arg(QFileInfo(file).fileName());
  if (reader.tracesFailed()) {
    text += QLatin1Char('\n') + tr("Error while loading traces: Invalid file format.");
  }
  QString details = textOf(reader.reason());
  if (!QFileInfo::exists(file)) {
    mRecent.remove(file);
    details = tr("There is no file %1").arg(file);
  }
  showError(&mDesk.window, tr("Error occured"), text, details);
}

void ProjectPresenter::take(LoadedProject project, ProjectFile file, bool saved) {
  Recordings& recordings = project.document.recordings.edit();
  const std::size_t named = std::min(recordings.traceSets.size(), recordings.filenames.size());
  for (std::size_t i = 0; i < named; ++i) {
    RecordingNote& note = recordings.noteOf(i);
    if (!note.format.empty()) continue;
    if (const ShotFormat* format = shotFormatOf(recordings.filenames[i])) note.format = format->id;
  }
  mDesk.loader.remember(project.shotFiles);
  Survey survey = std::move(project);
  survey.section.lockRange = survey.section.lockRange || mDesk.section().lockRange;
  if (mDesk.section().lockRange) keepRange(survey.palettes.edit());
  openSurvey(std::move(survey), std::move(file), saved);
  if (!mDesk.document().ttArray.empty()) mDesk.showFresh(0);
  if (mDesk.project.isEmpty()) return;  // recovered before it was ever saved
  mDesk.tell(tr("Project %1 loaded.").arg(QFileInfo(mDesk.project.path()).fileName()));
}

/// The palette in use has the range of that of the survey before.
void ProjectPresenter::keepRange(ColorPaletteList& palettes) const {
  palettes.current().min_db = mDesk.palettes().current().min_db;
  palettes.current().max_db = mDesk.palettes().current().max_db;
}

void ProjectPresenter::openSurvey(Survey survey, ProjectFile file, bool saved) {
  mDesk.project = std::move(file);
  mDesk.shot.forget();
  mDesk.session.open(std::move(survey), saved);
}

void ProjectPresenter::leaveFile() {
  mFilesBefore.push_back(mDesk.project);
  mFilesAfter.clear();
  setFile({});
}

/// Saving must not put one survey over the file of another.
void ProjectPresenter::followImports(const SurveyChange& change) {
  using Kind = SurveyChange::Kind;
  if (change.kind == Kind::kOpened) {
    mFilesBefore.clear();
    mFilesAfter.clear();
  }
  if (change.edit != Edit::kImportSurvey) return;
  const bool undone = change.kind == Kind::kUndo;
  if (!undone && change.kind != Kind::kRedo) return;
  std::vector<ProjectFile>& from = undone ? mFilesBefore : mFilesAfter;
  std::vector<ProjectFile>& to = undone ? mFilesAfter : mFilesBefore;
  to.push_back(mDesk.project);
  ProjectFile file;
  if (!from.empty()) {
    file = from.back();
    from.pop_back();
  }
  setFile(std::move(file));
}

void ProjectPresenter::setFile(ProjectFile file) {
  mDesk.project = std::move(file);
  fileChanged();
}

}  // namespace talvesk
