#include "app/presenters/CampaignPresenter.h"

#include "app/BusyWork.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/StoppingProgress.h"
#include "app/dialogs/CampaignDialog.h"
#include "export/campaign/CampaignPlace.h"
#include "figures/ProfileLines.h"
#include "figures/SectionFigure.h"
#include "figures/report/Report.h"
#include "figures/report/ReportPages.h"
#include "io/project/projectReader.h"
#include "model/TomographyOutcome.h"
#include "tomo/RayRecomputation.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr int kSteps = 100;       ///< of the bar, for each project
constexpr int kStepsToRead = 30;  ///< of them

/// Reads a project until somebody wants to stop: then no further part of it.
class StoppableReader : public projectReader {
 public:
  explicit StoppableReader(const StoppingProgress& progress) : mProgress(progress) {}

  int read_ZIP(const std::string& archive, const std::string& folder) override {
    return stops() ? 1 : projectReader::read_ZIP(archive, folder);
  }
  int readTomoDocument_XML(const std::string& path, SurveyMember& survey) override {
    return stops() ? 1 : projectReader::readTomoDocument_XML(path, survey);
  }
  int readTomoDocumentGrid_XML(const std::string& path, SurveyMember& survey) override {
    return stops() ? 1 : projectReader::readTomoDocumentGrid_XML(path, survey);
  }
  int readTomoDocumentTraces_XML(const std::string& path, TomoDocument& document) override {
    return stops() ? 1 : projectReader::readTomoDocumentTraces_XML(path, document);
  }
  int readPalettes_XML(const std::string& path, ColorPaletteList& palettes) override {
    return stops() ? 1 : projectReader::readPalettes_XML(path, palettes);
  }

 private:
  bool stops() const { return mProgress.isStopping(); }

  const StoppingProgress& mProgress;
};

}  // namespace

void CampaignPresenter::write() {
  CampaignDialog dialog(&mDesk.window);
  QSettings remembered(mDesk.windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  if (!mDesk.project.isEmpty()) dialog.add({mDesk.project.path()});
  dialog.addWanted = [&] { addTo(dialog); };
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.remember(remembered);
  const QString page = askForPage();
  if (page.isEmpty()) return;
  CampaignTexts texts = dialog.texts();
  texts.date = QLocale().toString(QDate::currentDate(), QLocale::LongFormat).toStdString();
  writeAll(dialog.projects(), page, texts);
}

void CampaignPresenter::addTo(CampaignDialog& dialog) {
  const QStringList files = QFileDialog::getOpenFileNames(
      &dialog, tr("Add projects to the campaign page"), mDesk.folders.toOpen(),
      tr("Talvesk projects (*.tvsk);;All Files (*)"));
  if (files.isEmpty()) return;
  mDesk.folders.opened(files.front());
  dialog.add(files);
}

/// Not named as the survey: that is the name of the page of its line.
QString CampaignPresenter::askForPage() {
  QString file = QFileDialog::getSaveFileName(
      &mDesk.window, tr("Save campaign page"),
      QDir(mDesk.folders.toSave()).filePath(QStringLiteral("index.html")), tr("Web page (*.html)"));
  if (file.isEmpty()) return {};
  const QString suffix = QStringLiteral(".html");
  if (!file.endsWith(suffix, Qt::CaseInsensitive)) {
    file += suffix;  // the dialog has asked about another file
    const QString name = QFileInfo(file).fileName();
    if (QFileInfo::exists(file) && !mayReplace({name})) return {};
  }
  mDesk.folders.saved(file);
  return file;
}

bool CampaignPresenter::mayOverwrite(const CampaignPlace& place,
                                     const std::vector<std::string>& files) {
  QStringList existing;
  for (const std::string& name : files) {
    if (QFileInfo::exists(QString::fromStdString(place.file(name)))) {
      existing << QString::fromStdString(name);
    }
  }
  return existing.isEmpty() || mayReplace(existing);
}

bool CampaignPresenter::mayReplace(const QStringList& existing) {
  return askYesNo(
      &mDesk.window, tr("Warning"), tr("%n file(s) exist already.", nullptr, existing.size()),
      tr("Do you want to replace them?") + QStringLiteral("\n\n") + shortList(existing), false);
}

void CampaignPresenter::writeAll(const QStringList& projects, const QString& page,
                                 const CampaignTexts& texts) {
  CampaignPlace place;
  const Status found = CampaignPlace::find(page.toStdString(), place);
  if (!found.ok()) return mDesk.tellFailure(tr("The file has not been saved."), found);
  std::vector<std::string> paths;
  for (const QString& project : projects) paths.push_back(project.toStdString());
  const std::vector<std::string> names = campaignLineNames(paths);
  const std::vector<std::string> files = place.linePages(names);
  if (!mayOverwrite(place, files)) return;

  StoppingProgress progress(tr("Campaign page"), kSteps * projects.size(), &mDesk.window);
  Notes notes;
  std::vector<CampaignLine> lines;
  CampaignTexts all = texts;
  all.language = reportLanguage();
  for (int i = 0; i < projects.size() && !progress.isStopping(); ++i) {
    progress.say(tr("%1: project %2 of %3", "file, number, count")
                     .arg(QFileInfo(projects[i]).fileName())
                     .arg(i + 1)
                     .arg(projects.size()));
    progress.setValue(kSteps * i);
    const auto at = static_cast<std::size_t>(i);
    lines.push_back(writeLine(projects[i], names[at], files[at], place, texts, progress, notes));
  }
  const bool stopped = progress.isStopping();
  bool saved = false;
  progress.hide();
  if (stopped) {
    const auto written = std::count_if(
        lines.begin(), lines.end(), [](const CampaignLine& line) { return !line.files.empty(); });
    mDesk.tell(tr("Stopped; the campaign page has not been saved, pages of %1 of its %2 projects "
                  "have.")
                   .arg(written)
                   .arg(projects.size()));
  } else if (const Status status = writeCampaignPage(place.page(), lines, all); status.ok()) {
    saved = true;
    const bool behind = mDesk.session.modified() && projects.contains(mDesk.project.path());
    mDesk.tell(
        behind ? tr("Saved in %1, without the changes of this survey that are not saved").arg(page)
               : tr("Saved in %1").arg(page));
  } else {
    mDesk.tellFailure(tr("The file has not been saved."), status);
  }
  tell(notes, saved);
}

CampaignLine CampaignPresenter::writeLine(const QString& project, const std::string& name,
                                          const std::string& file, const CampaignPlace& place,
                                          const CampaignTexts& texts, StoppingProgress& progress,
                                          Notes& notes) {
  const auto failed = [&](const Status& status) {
    mDesk.log.write(status.message(), 1);
    notes.failures
        << tr("%1: %2", "file, why").arg(QFileInfo(project).fileName(), textOf(status.text()));
  };
  LoadedProject loaded;
  Status status = read(project, progress, loaded, notes);
  if (progress.isStopping()) return {};
  if (!status.ok()) {
    failed(status);
    return failedLine(name, textOf(withoutFolder(status, project.toStdString())).toStdString());
  }
  CampaignLine line = campaignLineOf(loaded.document, name);
  const int begin = progress.value() + kStepsToRead;
  progress.setValue(begin);
  if (progress.isStopping()) return line;
  status = place.mayReplace(file);
  ReportOptions options;
  options.client = texts.client;
  options.site = texts.site;
  options.author = texts.author;
  options.date = texts.date;
  options.section = sectionFigureOptions(loaded.section, loaded.palettes->current(),
                                         profileLines(loaded.document, *loaded.interpretation));
  ReportContent content;
  if (status.ok()) {
    status = buildReport({loaded.document, &*loaded.interpretation}, options, content);
  }
  if (status.ok()) {
    status = writeReport(content, place.file(file), [&](double done) {
      progress.setValue(begin + static_cast<int>(done * (kSteps - kStepsToRead - 1)));
      return !progress.isStopping();
    });
  }
  if (status.ok()) {
    line.files.push_back(file);
  } else if (status.code() != kReportCancelled) {
    failed(status);
    line.notes.push_back(textOf(withoutFolder(status, place.file(file))).toStdString());
  }
  return line;
}

/// With its rays, which are not in its file.
Status CampaignPresenter::read(const QString& file, const StoppingProgress& progress,
                               LoadedProject& project, Notes& notes) {
  StoppableReader reader(progress);
  const Status status = onOwnThread([&] {
    if (reader.load(file.toStdString(), mDesk.folder.path, project) != 0) {
      return Status::failure(reader.reason());
    }
    return project.document.result->has_tomographic_info && !progress.isStopping()
               ? recomputeRays(project.document, mDesk.log)
               : Status();
  });
  if (progress.isStopping()) return status;
  for (const auto* told : {&reader.repairs(), &reader.warnings()}) {
    for (const QString& line : linesOf(*told)) {
      notes.repairs << tr("%1: %2", "file, why").arg(QFileInfo(file).fileName(), line);
    }
  }
  return status;
}

void CampaignPresenter::tell(const Notes& notes, bool saved) {
  if (!notes.repairs.isEmpty()) {
    showWarning(&mDesk.window, tr("Warning"),
                tr("Some values of the projects cannot be. They were put right or left out."),
                shortList(notes.repairs));
  }
  if (!notes.failures.isEmpty()) {
    showErrors(&mDesk.window, tr("Error occured"),
               (saved ? tr("Projects that failed: %1. The campaign page names them.")
                      : tr("Projects that failed: %1. There is no campaign page that names them."))
                   .arg(notes.failures.size()),
               notes.failures);
  }
}

}  // namespace talvesk
