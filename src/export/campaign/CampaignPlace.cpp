#include "export/campaign/CampaignPlace.h"

#include "export/campaign/CampaignPage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace talvesk {
namespace {

constexpr qint64 kHead = 4096;  ///< bytes in which a page says by what it was made
constexpr const char* kSuffix = ".html";

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

Status CampaignPlace::find(const std::string& path, CampaignPlace& place) {
  const QFileInfo given(qt(path));
  const bool page =
      !given.isDir() && given.fileName().endsWith(QLatin1String(kSuffix), Qt::CaseInsensitive);
  const QString folder = page ? given.path() : given.filePath();
  if (!page && !QDir().mkpath(folder)) {
    return Status::failure(Message::tr("Cannot make the folder %1").arg(path));
  }
  place.mFolder = folder.toStdString();
  place.mName = page ? given.fileName().toStdString() : "index.html";
  return {};
}

std::string CampaignPlace::file(const std::string& name) const {
  return QDir(qt(mFolder)).filePath(qt(name)).toStdString();
}

std::vector<std::string> CampaignPlace::linePages(const std::vector<std::string>& names) const {
  std::vector<std::string> files =
      campaignFileNames(names, {QFileInfo(qt(mName)).completeBaseName().toStdString()});
  for (std::string& file : files) file += kSuffix;
  return files;
}

Status CampaignPlace::mayReplace(const std::string& name) const {
  QFile there(qt(file(name)));
  if (!there.open(QIODevice::ReadOnly)) return {};
  if (there.read(kHead).contains("<meta name=\"generator\" content=\"Talvesk\">")) return {};
  return Status::failure(
      Message::tr("Cannot write %1: there is a file of that name that is no page of Talvesk; move "
                  "it or choose another folder")
          .arg(file(name)));
}

std::vector<std::string> campaignLineNames(const std::vector<std::string>& projects) {
  std::vector<std::string> names;
  names.reserve(projects.size());
  for (const std::string& project : projects) {
    names.push_back(QFileInfo(qt(project)).completeBaseName().toStdString());
  }
  return names;
}

Message withoutFolder(const Status& status, const std::string& path) {
  return status.text().without(QFileInfo(qt(path)).path().toStdString() + '/');
}

}  // namespace talvesk
