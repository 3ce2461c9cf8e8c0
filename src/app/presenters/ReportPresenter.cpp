#include "app/presenters/ReportPresenter.h"

#include "app/LayeredModel.h"
#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/dialogs/ImagesDialog.h"
#include "app/dialogs/ReportDialog.h"
#include "app/dialogs/ScreenshotDialog.h"
#include "app/presenters/FileExport.h"
#include "figures/FigureOutput.h"
#include "figures/ProfileLines.h"
#include "figures/report/Report.h"
#include "figures/report/ReportPages.h"
#include "model/TomoDocument.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/section/SectionView.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QBuffer>
#include <QDate>
#include <QFileInfo>
#include <QLocale>
#include <QProgressDialog>
#include <QSettings>

namespace talvesk {
namespace {

constexpr int kProgressSteps = 100;

/// A bar that stays until it is closed, even where the work ends before it would show.
void prepareProgress(QProgressDialog& progress) {
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(300);
  progress.setAutoClose(false);
  progress.setAutoReset(false);
}

Status writePicture(const QImage& picture, const QString& file, int quality) {
  const bool jpeg = file.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive) ||
                    file.endsWith(QLatin1String(".jpeg"), Qt::CaseInsensitive);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, jpeg ? "JPEG" : "PNG", jpeg ? quality : -1)) {
    return Status::failure(Message::tr("The picture cannot be made: %1").arg(file.toStdString()));
  }
  return writeBytes(file.toStdString(), bytes);
}

}  // namespace

void ReportPresenter::writePictures() {
  ImageSetOptions look;
  look.view = mDesk.section();
  look.palette = mDesk.palettes().current();
  look.refractors = refractors();
  look.horizontalColorBar = mDesk.settings.savePngHColorbar;
  look.errorBars = mDesk.settings.errorBars;
  look.gatherManner = mDesk.ui.showTracesWidget->options().manner;
  look.profileErrors = mLayered.errors();
  ImagesDialog dialog(mDesk.document(), mDesk.interpretation(), look, mDesk.shot.index(),
                      &mDesk.window);
  QSettings remembered(mDesk.windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  dialog.setFolder(mDesk.folders.toSave());
  dialog.setBaseName(proposedName(mDesk));
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.remember(remembered);
  const std::vector<PlannedImage> images = dialog.images();
  if (images.empty() || !mayOverwrite(images)) return;
  mDesk.folders.saved(QString::fromStdString(images.front().path));
  writeImages(images);
}

bool ReportPresenter::mayOverwrite(const std::vector<PlannedImage>& images) {
  QStringList existing;
  for (const PlannedImage& image : images) {
    const QFileInfo file(QString::fromStdString(image.path));
    if (file.exists()) existing += file.fileName();
  }
  return existing.isEmpty() ||
         askYesNo(&mDesk.window, tr("Warning"),
                  tr("%n file(s) exist already.", nullptr, existing.size()),
                  tr("Do you want to replace them?") + QStringLiteral("\n\n") + shortList(existing),
                  false);
}

void ReportPresenter::writeImages(const std::vector<PlannedImage>& images) {
  const int count = static_cast<int>(images.size());
  QProgressDialog progress(tr("Writing pictures ..."), tr("Stop"), 0, count, &mDesk.window);
  prepareProgress(progress);
  int done = 0;
  Status status;
  for (const PlannedImage& image : images) {
    progress.setValue(done);  // lets the window live
    if (progress.wasCanceled()) break;
    // The bar comes late, or not at all.
    status = whileWaiting([&image] { return image.write(); });
    if (!status.ok()) break;
    ++done;
  }
  progress.close();
  const QString told = done < count ? tr("%1 of %2 pictures have been saved.").arg(done).arg(count)
                                    : tr("%n picture(s) saved.", nullptr, count);
  mDesk.tell(told);
  if (status.ok()) return;
  mDesk.tellFailure(told, status);
}

void ReportPresenter::takeScreenshot() {
  const SectionView* view = mDesk.ui.vtk_widget;
  if (view->isEmpty()) return;
  // What is not in view has no size yet, and the user should see what he gets.
  mDesk.showSection();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  const QSize size = view->sheet()->size();
  ScreenshotDialog dialog(size, &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  const QString file = askForExport(mDesk, tr("Save screenshot"),
                                    tr("PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)"), "png");
  if (file.isEmpty()) return;
  const Status status = whileWaiting([&] {
    showWriting(mDesk, file);
    const QImage picture = view->picture(size, SectionView::Part::kSeen, dialog.scale());
    return picture.isNull()
               ? Status::failure(Message::tr("The view cannot be drawn for a picture."))
               : writePicture(picture, file, dialog.quality());
  });
  tellReport(status, file);
}

void ReportPresenter::writePdf() {
  writeReportAs(tr("Save PDF report"), tr("PDF report (*.pdf)"), "pdf");
}

void ReportPresenter::writeOdt() {
  writeReportAs(tr("Save ODT report"), tr("OpenDocument text (*.odt)"), "odt");
}

void ReportPresenter::writeWebPage() {
  writeReportAs(tr("Save web page"), tr("Web page (*.html)"), "html");
}

void ReportPresenter::writeReportAs(const QString& title, const QString& filter,
                                    const char* suffix) {
  ReportOptions options;
  options.title = mDesk.document().title;
  options.date = QLocale().toString(QDate::currentDate(), QLocale::LongFormat).toStdString();
  options.section = sectionFigureOptions(mDesk.section(), mDesk.palettes().current(), refractors());
  const LayeredFit* fit = mLayered.hasProfile() ? &mLayered.findNow(mDesk.window) : nullptr;
  const auto build = [this, fit](const ReportOptions& chosen, ReportContent& content) {
    return buildReport({mDesk.document(), &mDesk.interpretation(), nullptr, fit, mLayered.errors()},
                       chosen, content);
  };
  ReportDialog dialog(options, build, &mDesk.window);
  QSettings remembered(mDesk.windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.remember(remembered);
  const QString file = askForExport(mDesk, title, filter, suffix);
  if (file.isEmpty()) return;

  QProgressDialog progress(tr("Writing the report ..."), tr("Stop"), 0, kProgressSteps,
                           &mDesk.window);
  prepareProgress(progress);
  progress.setValue(0);
  ReportContent content;
  const Status status = whileWaiting([&] {  // the bar comes late, or not at all
    const Status built = build(dialog.options(), content);
    if (!built.ok()) return built;
    return writeReport(content, file.toStdString(), [&progress](double done) {
      progress.setValue(static_cast<int>(done * (kProgressSteps - 1)));
      return !progress.wasCanceled();
    });
  });
  progress.close();
  tellReport(status, file);
}

void ReportPresenter::tellReport(const Status& written, const QString& file) {
  mDesk.ui.statusBar->clearMessage();
  if (written.ok()) {
    mDesk.tell(tr("Saved in %1").arg(file));
  } else if (written.code() == kReportCancelled) {
    mDesk.tell(tr("Stopped; nothing has been saved."));
  } else {
    mDesk.tellFailure(tr("The file has not been saved."), written);
  }
}

std::vector<SectionLine> ReportPresenter::refractors() const {
  return profileLines(mDesk.document(), mDesk.interpretation());
}

}  // namespace talvesk
