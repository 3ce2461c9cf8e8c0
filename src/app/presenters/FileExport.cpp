#include "app/presenters/FileExport.h"

#include "app/WaitCursor.h"
#include "app/presenters/Desk.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "ui_Talvesk_MainWindows.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

namespace talvesk {
namespace {

/// A name for files by the title of the survey, without what no file system takes.
QString fileNameOf(const QString& title) {
  QString name;
  for (const QChar letter : title.simplified()) {
    const bool plain = letter.isLetterOrNumber() || QStringLiteral("-_. ").contains(letter);
    name += plain ? letter : QLatin1Char('_');
  }
  return name.replace(QLatin1Char(' '), QLatin1Char('_')).left(60);
}

/// The suffix of a line of a file dialog that names one only: "sgt" of "... (*.sgt)".
QString suffixOfFilter(const QString& filter) {
  static const QRegularExpression kOnlySuffix(QStringLiteral("\\(\\*\\.(\\w+)\\)$"));
  return kOnlySuffix.match(filter).captured(1);
}

}  // namespace

QString proposedName(const Desk& desk) {
  if (!desk.project.isEmpty()) return QFileInfo(desk.project.path()).completeBaseName();
  if (!desk.document().title.empty())
    return fileNameOf(QString::fromStdString(desk.document().title));
  // That of a recovered survey is a temporary one, which says nothing.
  if (desk.document().recordings->traceSets.empty() || desk.survey().folder) return {};
  const std::string shot = shotFile(desk.document(), 0);
  if (shot.empty()) return {};
  return fileNameOf(QFileInfo(QString::fromStdString(shot)).dir().dirName());
}

void proposeName(QFileDialog& dialog, const Desk& desk, const char* suffix) {
  const QString name = proposedName(desk);
  if (!name.isEmpty()) dialog.selectFile(name + QLatin1Char('.') + QLatin1String(suffix));
}

QString askForExport(Desk& desk, const QString& title, const QString& filter, const char* suffix) {
  QFileDialog dialog(&desk.window, title, desk.folders.toSave(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(QLatin1String(suffix));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& chosen) {
    const QString own = suffixOfFilter(chosen);
    dialog.setDefaultSuffix(own.isEmpty() ? QString::fromLatin1(suffix) : own);
  });
  proposeName(dialog, desk, suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  desk.folders.saved(dialog.selectedFiles().front());
  return dialog.selectedFiles().front();
}

void showWriting(Desk& desk, const QString& file) {
  desk.ui.statusBar->showMessage(Desk::tr("Writing %1 ...").arg(file));
  desk.ui.statusBar->repaint();
}

void tellExport(Desk& desk, const Status& written, const QString& file) {
  desk.ui.statusBar->clearMessage();
  if (written.ok()) {
    desk.tell(Desk::tr("Saved in %1").arg(file));
    return;
  }
  desk.tellFailure(Desk::tr("The data have not been exported."), written);
}

void exportTo(Desk& desk, const QString& file,
              const std::function<Status(const std::string&)>& write) {
  const Status written = whileWaiting([&] {
    showWriting(desk, file);
    return write(file.toStdString());
  });
  tellExport(desk, written, file);
}

}  // namespace talvesk
