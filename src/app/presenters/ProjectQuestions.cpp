#include "app/presenters/ProjectQuestions.h"

#include "app/Messages.h"
#include "app/presenters/Desk.h"

#include <QFileInfo>

namespace talvesk {

bool mayUse(Desk& desk, const ProjectFile& file, const QString& question) {
  if (!file.holder()) return true;
  const ProjectHolder& holder = *file.holder();
  const QString name = QFileInfo(file.path()).fileName();
  const QString text = holder.process.empty() ? Desk::tr("%1 is in use elsewhere.").arg(name)
                                              : Desk::tr("%1 is in use by %2 on %3 (process %4).")
                                                    .arg(name, QString::fromStdString(holder.user),
                                                         QString::fromStdString(holder.host),
                                                         QString::fromStdString(holder.process));
  desk.log.write(text.toStdString(), 0);
  return askYesNo(&desk.window, Desk::tr("Project in use"), text,
                  question + QLatin1Char('\n') +
                      Desk::tr("If nobody uses it any more, delete the lock %1")
                          .arg(QString::fromStdString(holder.lockFile)),
                  false);
}

bool mayReplace(Desk& desk, const ProjectFile& file) {
  if (file.path() != desk.project.path()) {
    return mayUse(desk, file, Desk::tr("Do you want to replace it all the same?"));
  }
  return !file.hasChanged() ||
         askYesNo(
             &desk.window, Desk::tr("Save Project"),
             Desk::tr("%1 has been changed by somebody else since it was opened or saved here.")
                 .arg(QFileInfo(file.path()).fileName()),
             Desk::tr("Do you want to replace it? What was changed there is lost then."), false);
}

}  // namespace talvesk
