#include "base/ThisProcess.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <pwd.h>
#include <unistd.h>

namespace talvesk {

std::string userName() {
  const passwd* entry = ::getpwuid(::geteuid());
  return entry != nullptr ? entry->pw_name : std::to_string(::geteuid());
}

std::string homeFolder() {
  // Without the variable Qt takes the root folder for the home.
  if (qEnvironmentVariableIsEmpty("HOME")) {
    const passwd* entry = ::getpwuid(::geteuid());
    if (entry != nullptr && entry->pw_dir != nullptr) {
      return QFile::decodeName(entry->pw_dir).toStdString();
    }
  }
  return QDir::homePath().toStdString();
}

long processNumber() {
  return static_cast<long>(::getpid());
}

}  // namespace talvesk
