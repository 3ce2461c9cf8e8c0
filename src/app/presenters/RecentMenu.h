#pragma once

#include "app/RecentProjects.h"
#include "app/presenters/Desk.h"

#include <QObject>
#include <functional>

class QMenu;

namespace talvesk {

/// The menu of the projects that were opened or saved last.
class RecentMenu : public QObject {
  Q_DECLARE_TR_FUNCTIONS(talvesk::Talvesk_MainWindows)

 public:
  /// \param open is given the file that the user has chosen
  RecentMenu(Desk& desk, std::function<void(const QString&)> open);

  void add(const QString& project);
  void remove(const QString& project);
  void retranslate() { refresh(); }

 private:
  void clear();
  void refresh();

  Desk& mDesk;
  std::function<void(const QString&)> mOpen;
  RecentProjects mProjects;
  QMenu* mMenu;
};

}  // namespace talvesk
