#include "app/HelpTargets.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHostInfo>

namespace talvesk {

QString userGuidePath(const QString& language, const QString& page) {
  const QDir program(QCoreApplication::applicationDirPath());
  const QStringList languages = {language, language.section(QLatin1Char('_'), 0, 0),
                                 QStringLiteral("en")};
  for (const QString& wanted : {page, QStringLiteral("index.html")}) {
    // Installed in bin/, built in build/PRESET/bin/.
    for (const char* folder : {"../share/talvesk/guide/", "../../../resources/guide/"}) {
      for (const QString& name : languages) {
        if (name.isEmpty()) continue;
        const QFileInfo file(program, QLatin1String(folder) + name + QLatin1Char('/') + wanted);
        if (file.isFile()) return file.canonicalFilePath();
      }
    }
  }
  return {};
}

void whenHostIsKnown(const QUrl& address, QObject* receiver,
                     const std::function<void(bool)>& found) {
  QHostInfo::lookupHost(address.host(), receiver, [found](const QHostInfo& host) {
    found(host.error() == QHostInfo::NoError && !host.addresses().isEmpty());
  });
}

}  // namespace talvesk
