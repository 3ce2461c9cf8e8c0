#include "app/HelpTargets.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHostInfo>

namespace talvesk {

QString userGuidePath(const QString& language) {
  const QDir program(QCoreApplication::applicationDirPath());
  // Installed in bin/, built in build/PRESET/bin/.
  for (const char* folder : {"../share/talvesk/guide", "../../../resources/guide"}) {
    for (const QString& name :
         {QStringLiteral("user-guide.%1.html").arg(language), QStringLiteral("user-guide.html")}) {
      const QFileInfo file(program, QLatin1String(folder) + QLatin1Char('/') + name);
      if (file.isFile()) return file.canonicalFilePath();
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
