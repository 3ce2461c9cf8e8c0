#include "app/RecentProjects.h"

#include <QFileInfo>
#include <QSettings>

namespace talvesk {
namespace {

const QString kKey = QStringLiteral("recentProjects");

}  // namespace

QStringList RecentProjects::list() const {
  // Two windows share the file; each reads it anew.
  QStringList projects =
      QSettings(mFile, QSettings::IniFormat).value(kKey).toStringList().mid(0, kMost);
  projects.removeAll(QString());
  return projects;
}

void RecentProjects::write(const QStringList& projects) {
  QSettings(mFile, QSettings::IniFormat)
      .setValue(kKey, QVariant(QStringList(projects.mid(0, kMost))));
}

void RecentProjects::add(const QString& project) {
  const QString path = QFileInfo(project).absoluteFilePath();
  QStringList projects = list();
  projects.removeAll(path);
  projects.prepend(path);
  write(projects);
}

void RecentProjects::remove(const QString& project) {
  QStringList projects = list();
  projects.removeAll(QFileInfo(project).absoluteFilePath());
  write(projects);
}

void RecentProjects::clear() {
  write({});
}

}  // namespace talvesk
