#include "base/WorkingFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <pwd.h>
#include <unistd.h>

namespace talvesk {
namespace {

/// Services run without the variable that Qt asks, which then takes the root folder for the home.
QString homeOfUser() {
  if (qEnvironmentVariableIsEmpty("HOME")) {
    const passwd* entry = ::getpwuid(::geteuid());
    if (entry != nullptr && entry->pw_dir != nullptr) return QFile::decodeName(entry->pw_dir);
  }
  return QDir::homePath();
}

}  // namespace

WorkingFolder WorkingFolder::below(const std::string& home) {
  WorkingFolder folder;
  folder.path = home + "/Talvesk_TMP/";
  folder.log = folder.path + "Talvesk_log.log";
  folder.settings = folder.path + "Talvesk_settings.xml";
  folder.history = folder.path + "Talvesk_history.txt";
  return folder;
}

WorkingFolder WorkingFolder::ofUser() {
  return below(homeOfUser().toStdString());
}

bool WorkingFolder::create() const {
  const QString name = QString::fromStdString(path);
  return QFileInfo(name).isDir() || QDir().mkdir(name);
}

}  // namespace talvesk
