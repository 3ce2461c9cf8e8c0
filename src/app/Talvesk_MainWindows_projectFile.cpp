#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "app/progressDialog.h"
#include "base/FileReplacement.h"
#include "io/FileFormats.h"
#include "io/ProjectWriter.h"
#include "io/projectReader.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "tomo/RayRecomputation.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/editTravelTimesWidget.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QStatusBar>
#include <utility>

// The commands that save and load whole surveys.

namespace talvesk {
namespace {

const QString kSuffix = QStringLiteral(".tvsk");

/// A name for files by the title of the survey, without what no file system takes.
QString fileNameOf(const QString& title) {
  QString name;
  for (const QChar letter : title.simplified()) {
    const bool plain = letter.isLetterOrNumber() || QStringLiteral("-_. ").contains(letter);
    name += plain ? letter : QLatin1Char('_');
  }
  return name.replace(QLatin1Char(' '), QLatin1Char('_')).left(60);
}

}  // namespace

/// What files of this survey are called: as its project, its title, or the folder of its shots.
QString Talvesk_MainWindows::proposedName() const {
  if (!mProject.isEmpty()) return QFileInfo(mProject.path()).completeBaseName();
  if (!document().title.empty()) return fileNameOf(QString::fromStdString(document().title));
  // That of a recovered survey is a temporary one, which says nothing.
  if (document().recordings->traceSets.empty() || survey().folder) return {};
  const std::string shot = shotFile(document(), 0);
  if (shot.empty()) return {};
  return fileNameOf(QFileInfo(QString::fromStdString(shot)).dir().dirName());
}

/// \param suffix without its dot
void Talvesk_MainWindows::proposeName(QFileDialog& dialog, const char* suffix) const {
  const QString name = proposedName();
  if (!name.isEmpty()) dialog.selectFile(name + QLatin1Char('.') + QLatin1String(suffix));
}

bool Talvesk_MainWindows::saveProject() {
  return mProject.isEmpty() ? saveProjectAs() : saveProjectTo(mProject.path());
}

bool Talvesk_MainWindows::saveProjectAs() {
  QFileDialog dialog(this, tr("Save Project"),
                     mProject.isEmpty() ? mFolders.toSave() : mProject.path(),
                     dialogFilter(filtersOf(projectFormat())));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  // The question comes below, when the name is complete.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  proposeName(dialog, "tvsk");
  if (dialog.exec() != QDialog::Accepted) return false;
  QString file = dialog.selectedFiles().value(0);
  if (QFileInfo(file).completeBaseName().isEmpty() || QFileInfo(file).isDir()) {
    showError(this, tr("Error occured"), tr("Empty filename to be saved"),
              tr("%1 is a folder or names no file. Give the project a name.")
                  .arg(QDir::toNativeSeparators(file)));
    return false;
  }
  if (!file.endsWith(kSuffix)) file += kSuffix;
  const bool replaces = QFileInfo::exists(file) && file != mProject.path();
  if (replaces &&
      !askYesNo(this, tr("Save Project"), tr("%1 already exists.").arg(QFileInfo(file).fileName()),
                tr("Do you want to replace it?"), false)) {
    return false;
  }
  mFolders.saved(file);
  return saveProjectTo(file);
}

/// Whether the user wants to use a file that somebody else works on.
bool Talvesk_MainWindows::mayUse(const ProjectFile& file, const QString& question) {
  if (!file.holder()) return true;
  const ProjectHolder& holder = *file.holder();
  const QString name = QFileInfo(file.path()).fileName();
  const QString text = holder.process.empty() ? tr("%1 is in use elsewhere.").arg(name)
                                              : tr("%1 is in use by %2 on %3 (process %4).")
                                                    .arg(name, QString::fromStdString(holder.user),
                                                         QString::fromStdString(holder.host),
                                                         QString::fromStdString(holder.process));
  mLog.write(text.toStdString(), 0);
  return askYesNo(this, tr("Project in use"), text,
                  question + QLatin1Char('\n') +
                      tr("If nobody uses it any more, delete the lock %1")
                          .arg(QString::fromStdString(holder.lockFile)),
                  false);
}

/// Whether the user wants to save over what lies there.
bool Talvesk_MainWindows::mayReplace(const ProjectFile& file) {
  if (file.path() != mProject.path()) {
    return mayUse(file, tr("Do you want to replace it all the same?"));
  }
  return !file.hasChanged() ||
         askYesNo(this, tr("Save Project"),
                  tr("%1 has been changed by somebody else since it was opened or saved here.")
                      .arg(QFileInfo(file.path()).fileName()),
                  tr("Do you want to replace it? What was changed there is lost then."), false);
}

bool Talvesk_MainWindows::saveProjectTo(const QString& file) {
  const ProjectFile target = file == mProject.path() ? mProject : ProjectFile(file, mProject);
  if (!mayReplace(target)) return false;
  ProjectWriter writer;
  int result = 1;
  progressDialog progress(writer, file, this);
  progress.run([&] {
    result = writer.save(file.toStdString(), mFolder.path, document(), interpretation(), palettes(),
                         section(), survey().own);
  });
  if (result != 0) {
    mLog.write(writer.message(), 1);
    QString details = textOf(writer.reason());
    if (QFileInfo::exists(file)) {
      details += QLatin1Char('\n') + tr("The file is as it was before.");
    }
    showError(this, tr("Error occured"),
              tr("Something went wrong while saving project ") + file + QLatin1Char('\n') +
                  tr("WARNING: the project has NOT been saved."),
              details);
    return false;
  }
  mProject = ProjectFile(file, target);
  forgetRecovery();
  mSession.markSaved();
  mRecent.add(file);
  refreshRecentProjects();
  statusBar()->showMessage(tr("Project saved in %1").arg(file), kMessageTime);
  if (!writer.warnings().empty()) {
    showWarning(this, tr("Warning"), tr("The project has been saved."),
                shortList(linesOf(writer.warnings())));
  }
  return true;
}

void Talvesk_MainWindows::openProject(const QString& file) {
  if (!mayLoseChanges()) return;
  ProjectFile opened(file, mProject);
  if (!mayUse(opened, tr("Do you want to open it all the same?"))) return;
  LoadedProject project;
  if (!loadProject(file, project)) return;
  clearReplacements(file.toStdString());
  takeProject(std::move(project), std::move(opened));
  mRecent.add(file);
  refreshRecentProjects();
}

/// Loads aside: what is open stays as it is until all of the project is there.
bool Talvesk_MainWindows::loadProject(const QString& file, LoadedProject& project) {
  projectReader reader;
  int result = 1;
  Status rays;
  progressDialog progress(reader, file, this);
  progress.run([&] {
    result = reader.load(file.toStdString(), mFolder.path, project);
    if (result != 0 || !project.document.result->has_tomographic_info) return;
    QMetaObject::invokeMethod(&progress, &progressDialog::write_tracing_rays, Qt::QueuedConnection);
    rays = recomputeRays(project.document, mLog);
  });
  if (result != 0) {
    reportBadProject(file, reader);
    return false;
  }
  if (!rays.ok()) mLog.write(rays.message(), 1);
  if (!reader.repairs().empty()) {
    showWarning(this, tr("Warning"),
                tr("Some values of the project cannot be. They were put right or left out."),
                shortList(linesOf(reader.repairs())));
  }
  if (!reader.warnings().empty()) {
    showWarning(this, tr("Warning"), tr("Error while loading traces: Invalid file format."),
                shortList(linesOf(reader.warnings())));
  }
  return true;
}

void Talvesk_MainWindows::reportBadProject(const QString& file, const projectReader& reader) {
  mLog.write(file.toStdString() + ": " + reader.message(), 1);
  QString text = tr("%1 is not a valid project.").arg(QFileInfo(file).fileName());
  if (reader.tracesFailed()) {
    text += QLatin1Char('\n') + tr("Error while loading traces: Invalid file format.");
  }
  QString details = textOf(reader.reason());
  if (!QFileInfo::exists(file)) {
    mRecent.remove(file);
    refreshRecentProjects();
    details = tr("There is no file %1").arg(file);
  }
  showError(this, tr("Error occured"), text, details);
}

void Talvesk_MainWindows::takeProject(LoadedProject project, ProjectFile file, bool saved) {
  Recordings& recordings = project.document.recordings.edit();
  for (std::size_t i = 0; i < recordings.traceSets.size(); ++i) {
    RecordingNote& note = recordings.noteOf(i);
    note.filtered = note.showFiltered = talvesk::hasFilteredCopy(recordings.traceSets[i]);
    if (i >= recordings.filenames.size()) continue;
    if (const ShotFormat* format = shotFormatOf(recordings.filenames[i])) note.format = format->id;
  }
  mLoader.remember(project.shotFiles);
  Survey survey = std::move(project);
  survey.section.lockRange = survey.section.lockRange || section().lockRange;
  if (section().lockRange) keepRange(survey.palettes.edit());
  openSurvey(std::move(survey), std::move(file), saved);
  if (!document().ttArray.empty()) showFresh(0);
  if (mProject.isEmpty()) return;  // recovered before it was ever saved
  statusBar()->showMessage(tr("Project %1 loaded.").arg(QFileInfo(mProject.path()).fileName()),
                           kMessageTime);
}

/// The palette in use has the range of that of the survey before.
void Talvesk_MainWindows::keepRange(ColorPaletteList& palettes) const {
  palettes.current().min_db = this->palettes().current().min_db;
  palettes.current().max_db = this->palettes().current().max_db;
}

/// Another survey in the place of this one, with all that belongs to it.
void Talvesk_MainWindows::openSurvey(Survey survey, ProjectFile file, bool saved) {
  forgetRecovery();
  mProject = std::move(file);
  mCurrentFile = -1;
  mSession.open(std::move(survey), saved);
}

void Talvesk_MainWindows::setProjectFile(ProjectFile file) {
  mProject = std::move(file);
  refreshTitle();
}

void Talvesk_MainWindows::on_actionSave_Project_triggered() {
  logSlot(__func__);
  saveProject();
}

void Talvesk_MainWindows::on_actionSave_Project_As_triggered() {
  logSlot(__func__);
  saveProjectAs();
}

void Talvesk_MainWindows::on_actionLoad_Project_triggered() {
  logSlot(__func__);
  const QString file = QFileDialog::getOpenFileName(this, tr("Load Project"), mFolders.toOpen(),
                                                    dialogFilter(filtersOf(projectFormat())));
  if (file.isEmpty()) return;
  mFolders.opened(file);
  openProject(file);
}

void Talvesk_MainWindows::addRecentMenu() {
  mRecentMenu = new QMenu(this);
  mRecentMenu->setObjectName(QStringLiteral("menuRecent_projects"));
  const QList<QAction*> actions = mUi->menuFile->actions();
  const int after = actions.indexOf(mUi->actionLoad_Project) + 1;
  mUi->menuFile->insertMenu(actions.value(after), mRecentMenu);
}

void Talvesk_MainWindows::refreshRecentProjects() {
  mRecentMenu->clear();
  mRecentMenu->setTitle(tr("Recent Projects"));
  const QStringList projects = mRecent.list();
  mRecentMenu->setEnabled(!projects.isEmpty());
  if (projects.isEmpty()) return;
  for (int i = 0; i < projects.size(); ++i) {
    QString name = projects[i];
    name.replace(QLatin1Char('&'), QLatin1String("&&"));
    mRecentMenu->addAction(QStringLiteral("&%1 %2").arg(QString::number(i + 1), name), this,
                           [this, file = projects[i]] {
                             logSlot("openProject");
                             mFolders.opened(file);
                             openProject(file);
                           });
  }
  mRecentMenu->addSeparator();
  mRecentMenu->addAction(tr("Clear List"), this, &Talvesk_MainWindows::clearRecentProjects);
}

void Talvesk_MainWindows::clearRecentProjects() {
  logSlot(__func__);
  mRecent.clear();
  refreshRecentProjects();
}

void Talvesk_MainWindows::refreshProjectCommands() {
  const bool something = !document().ttArray.empty() ||
                         !document().line->goephonesStringSet.empty() || mSession.modified();
  mUi->actionLoad_Project->setEnabled(true);
  mUi->actionSave_Project->setEnabled(something);
  mUi->actionSave_Project_As->setEnabled(something);
}

}  // namespace talvesk
