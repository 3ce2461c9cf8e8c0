#include "app/presenters/RecentMenu.h"

#include "ui_Talvesk_MainWindows.h"

#include <QMenu>
#include <utility>

namespace talvesk {

RecentMenu::RecentMenu(Desk& desk, std::function<void(const QString&)> open)
    : mDesk(desk),
      mOpen(std::move(open)),
      mProjects(desk.windowStateFile()),
      mMenu(new QMenu(&desk.window)) {
  mMenu->setObjectName(QStringLiteral("menuRecent_projects"));
  QMenu& file = *desk.ui.menuFile;
  const int after = file.actions().indexOf(desk.ui.actionLoad_Project) + 1;
  file.insertMenu(file.actions().value(after), mMenu);
}

void RecentMenu::add(const QString& project) {
  mProjects.add(project);
  refresh();
}

void RecentMenu::remove(const QString& project) {
  mProjects.remove(project);
  refresh();
}

void RecentMenu::clear() {
  mDesk.logSlot("clearRecentProjects");
  mProjects.clear();
  refresh();
}

void RecentMenu::refresh() {
  mMenu->clear();
  mMenu->setTitle(tr("Recent Projects"));
  const QStringList projects = mProjects.list();
  mMenu->setEnabled(!projects.isEmpty());
  if (projects.isEmpty()) return;
  for (int i = 0; i < projects.size(); ++i) {
    QString name = projects[i];
    name.replace(QLatin1Char('&'), QLatin1String("&&"));
    mMenu->addAction(QStringLiteral("&%1 %2").arg(QString::number(i + 1), name), this,
                     [this, file = projects[i]] {
                       mDesk.logSlot("openProject");
                       mOpen(file);
                     });
  }
  mMenu->addSeparator();
  mMenu->addAction(tr("Clear List"), this, &RecentMenu::clear);
}

}  // namespace talvesk
