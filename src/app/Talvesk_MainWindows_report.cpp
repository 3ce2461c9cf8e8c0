#include "app/ImagesDialog.h"
#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/ReportDialog.h"
#include "app/ScreenshotDialog.h"
#include "app/Talvesk_MainWindows.h"
#include "app/WaitCursor.h"
#include "figures/FigureOutput.h"
#include "figures/Report.h"
#include "figures/ReportPages.h"
#include "model/GroundModel.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/SectionView.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDate>
#include <QFileInfo>
#include <QLocale>
#include <QProgressDialog>
#include <QSettings>
#include <QStatusBar>

// The commands that write pictures and reports.

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

void Talvesk_MainWindows::on_actionImages_triggered() {
  logSlot(__func__);
  ImageSetOptions look;
  look.view = section();
  look.palette = palettes().current();
  look.refractors = refractors();
  look.horizontalColorBar = mSettings.savePngHColorbar;
  ImagesDialog dialog(document(), interpretation(), look, mCurrentFile, this);
  QSettings remembered(windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  dialog.setFolder(mFolders.toSave());
  dialog.setBaseName(proposedName());
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.remember(remembered);
  const std::vector<PlannedImage> images = dialog.images();
  if (images.empty() || !mayOverwrite(images)) return;
  mFolders.saved(QString::fromStdString(images.front().path));
  writeImages(images);
}

bool Talvesk_MainWindows::mayOverwrite(const std::vector<PlannedImage>& images) {
  QStringList existing;
  for (const PlannedImage& image : images) {
    const QFileInfo file(QString::fromStdString(image.path));
    if (file.exists()) existing += file.fileName();
  }
  return existing.isEmpty() ||
         askYesNo(this, tr("Warning"), tr("%n file(s) exist already.", nullptr, existing.size()),
                  tr("Do you want to replace them?") + QStringLiteral("\n\n") + shortList(existing),
                  false);
}

void Talvesk_MainWindows::writeImages(const std::vector<PlannedImage>& images) {
  const int count = static_cast<int>(images.size());
  QProgressDialog progress(tr("Writing pictures ..."), tr("Stop"), 0, count, this);
  prepareProgress(progress);
  int done = 0;
  Status status;
  for (const PlannedImage& image : images) {
    progress.setValue(done);  // lets the window live
    if (progress.wasCanceled()) break;
    status = image.write();
    if (!status.ok()) break;
    ++done;
  }
  progress.close();
  const QString told = done < count ? tr("%1 of %2 pictures have been saved.").arg(done).arg(count)
                                    : tr("%n picture(s) saved.", nullptr, count);
  statusBar()->showMessage(told, kMessageTime);
  if (status.ok()) return;
  tellFailure(this, mLog, told, status);
}

void Talvesk_MainWindows::on_actionScreenshot_triggered() {
  logSlot(__func__);
  const SectionView* view = mUi->vtk_widget;
  if (view->isEmpty()) return;
  // What is not in view has no size yet, and the user should see what he gets.
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  const QSize size = view->sheet()->size();
  ScreenshotDialog dialog(size, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const QString file = askForExport(tr("Save screenshot"),
                                    tr("PNG picture (*.png);;JPEG picture (*.jpg *.jpeg)"), "png");
  if (file.isEmpty()) return;
  const Status status = whileWaiting([&] {
    showWriting(file);
    const QImage picture = view->picture(size, SectionView::Part::kSeen, dialog.scale());
    return picture.isNull()
               ? Status::failure(Message::tr("The view cannot be drawn for a picture."))
               : writePicture(picture, file, dialog.quality());
  });
  tellReport(status, file);
}

void Talvesk_MainWindows::on_actionPDF_triggered() {
  logSlot(__func__);
  writeReportAs(tr("Save PDF report"), tr("PDF report (*.pdf)"), "pdf");
}

void Talvesk_MainWindows::on_actionODT_triggered() {
  logSlot(__func__);
  writeReportAs(tr("Save ODT report"), tr("OpenDocument text (*.odt)"), "odt");
}

void Talvesk_MainWindows::writeReportAs(const QString& title, const QString& filter,
                                        const char* suffix) {
  ReportOptions options;
  options.title = document().title;
  options.date = QLocale().toString(QDate::currentDate(), QLocale::LongFormat).toStdString();
  options.section = sectionFigureOptions(section(), palettes().current(), refractors());
  const auto build = [this](const ReportOptions& chosen, ReportContent& content) {
    return buildReport({document(), &interpretation()}, chosen, content);
  };
  ReportDialog dialog(options, build, this);
  QSettings remembered(windowStateFile(), QSettings::IniFormat);
  dialog.recall(remembered);
  if (dialog.exec() != QDialog::Accepted) return;
  dialog.remember(remembered);
  const QString file = askForExport(title, filter, suffix);
  if (file.isEmpty()) return;

  QProgressDialog progress(tr("Writing the report ..."), tr("Stop"), 0, kProgressSteps, this);
  prepareProgress(progress);
  progress.setValue(0);
  ReportContent content;
  Status status = build(dialog.options(), content);
  if (status.ok()) {
    status = writeReport(content, file.toStdString(), [&progress](double done) {
      progress.setValue(static_cast<int>(done * (kProgressSteps - 1)));
      return !progress.wasCanceled();
    });
  }
  progress.close();
  tellReport(status, file);
}

void Talvesk_MainWindows::tellReport(const Status& written, const QString& file) {
  statusBar()->clearMessage();
  if (written.ok()) {
    statusBar()->showMessage(tr("Saved in %1").arg(file), kMessageTime);
  } else if (written.code() == kReportCancelled) {
    statusBar()->showMessage(tr("Stopped; nothing has been saved."), kMessageTime);
  } else {
    tellFailure(this, mLog, tr("The file has not been saved."), written);
  }
}

void Talvesk_MainWindows::refreshReportCommands() {
  const bool survey = !document().ttArray.empty();
  mUi->actionImages->setEnabled(survey || document().model->grid != nullptr);
  mUi->actionScreenshot->setEnabled(document().model->grid != nullptr);
  mUi->actionPDF->setEnabled(survey);
  mUi->actionODT->setEnabled(survey);
}

}  // namespace talvesk
