#include "base/WorkingFolder.h"

#include "base/ThisProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace talvesk {
WorkingFolder WorkingFolder::below(const std::string& home) {
  WorkingFolder folder;
  folder.path = home + "/Talvesk_TMP/";
  folder.log = folder.path + "Talvesk_log.log";
  folder.settings = folder.path + "Talvesk_settings.xml";
  folder.history = folder.path + "Talvesk_history.txt";
  return folder;
}

WorkingFolder WorkingFolder::ofUser() {
  return below(homeFolder());
}

bool WorkingFolder::create() const {
  const QString name = QString::fromStdString(path);
  return QFileInfo(name).isDir() || QDir().mkdir(name);
}

}  // namespace talvesk
