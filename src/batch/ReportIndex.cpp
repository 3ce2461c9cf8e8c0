#include "batch/ReportIndex.h"

#include "base/AtomicFile.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/FittedSection.h"
#include "batch/FreshTimes.h"
#include "batch/Images.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/Reports.h"
#include "export/campaign/CampaignPage.h"
#include "figures/ProfileLines.h"
#include "io/project/projectReader.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <ostream>

namespace talvesk {
namespace {

/// The page on all lines; those of the lines lie in its folder.
struct IndexPlace {
  QDir folder;
  QString name;

  std::string file(const std::string& of) const {
    return folder.filePath(QString::fromStdString(of)).toStdString();
  }
  std::string index() const { return file(name.toStdString()); }
};

/// A name that ends in .html is that of the page; any other one is a folder, made if need be.
Status findPlace(const std::string& path, IndexPlace& place) {
  const QFileInfo given(QString::fromStdString(path));
  const bool page =
      !given.isDir() && given.fileName().endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
  place.folder = page ? given.dir() : QDir(given.filePath());
  place.name = page ? given.fileName() : QStringLiteral("index.html");
  if (page || QDir().mkpath(place.folder.path())) return {};
  return Status::failure("Cannot make the folder " + path);
}

/// A file of that name that is no page of this program is somebody's.
bool isSomebodys(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) return false;
  return !file.read(4096).contains("<meta name=\"generator\" content=\"Talvesk\">");
}

Status writeLinePage(const LoadedProject& project, const ReportFields& common,
                     const std::string& path) {
  if (isSomebodys(path)) {
    return Status::failure(
        "Cannot write " + path +
        ": there is a file of that name that is no page of Talvesk; move it or choose another "
        "folder");
  }
  ReportFields fields = common;
  fields.title.clear();  // that of the campaign; a line has its own
  warnAboutCertainty(project.document);
  const SectionFigureOptions section =
      sectionFigureOptions(project.section, project.palettes->current(),
                           profileLines(project.document, project.interpretation));
  return writeReportFile({project.document, &*project.interpretation}, fields, section, path);
}

/// A line of the campaign and its page.
class LineWriter {
 public:
  LineWriter(const ExportOptions& options, const IndexPlace& place, std::ostream& summary)
      : mOptions(options), mPlace(place), mSummary(summary) {}

  CampaignLine write(const std::string& path, const std::string& name, const std::string& file) {
    LoadedProject project;
    Status status = readProject(path, project);
    if (status.ok()) status = traceFreshTimes(project.document, path);
    if (!status.ok()) {
      mExitCode = failed(status.message());
      return failedLine(name, withoutFolder(status, path));
    }
    CampaignLine line = campaignLineOf(project.document, name);
    const std::string page = mPlace.file(file);
    status = writeLinePage(project, mOptions.reportFields, page);
    if (status.ok()) {
      line.files.push_back(file);
      mSummary << "Wrote " << page << std::endl;
    } else {
      mExitCode = failed(status.message());
      line.notes.push_back(withoutFolder(status, page));
    }
    return line;
  }

  int exitCode() const { return mExitCode; }

 private:
  /// Who reads the page need not know the folders of who wrote it.
  static std::string withoutFolder(const Status& status, const std::string& path) {
    const QString folder = QFileInfo(QString::fromStdString(path)).path() + '/';
    return QString::fromStdString(status.message()).remove(folder).toStdString();
  }

  const ExportOptions& mOptions;
  const IndexPlace& mPlace;
  std::ostream& mSummary;
  int mExitCode = kDone;
};

std::vector<std::string> namesOf(const std::vector<std::string>& projects) {
  std::vector<std::string> names;
  for (const std::string& project : projects) {
    names.push_back(QFileInfo(QString::fromStdString(project)).completeBaseName().toStdString());
  }
  return names;
}

CampaignTexts textsOf(const ReportFields& fields) {
  CampaignTexts texts;
  texts.title = fields.title;
  texts.client = fields.client;
  texts.site = fields.site;
  texts.author = fields.author;
  texts.date =
      fields.date.empty() ? QDate::currentDate().toString(Qt::ISODate).toStdString() : fields.date;
  return texts;
}

}  // namespace

int writeReportIndex(const ExportOptions& options) {
  const Channels channels = openChannels({}, options.quiet);
  IndexPlace place;
  if (const Status status = findPlace(options.index, place); !status.ok()) {
    return failed(status.message());
  }
  const Status places = checkOutputFiles({{"--report-index", place.index()}}, options.projects);
  if (places.code() == kWrongUsage) return wrongUsage("export", places.message());
  if (!places.ok()) return failed(places.message());
  prepareDrawing();
  const std::vector<std::string> names = namesOf(options.projects);
  const std::vector<std::string> files =
      campaignFileNames(names, {QFileInfo(place.name).completeBaseName().toStdString()});
  LineWriter writer(options, place, *channels.summary);
  std::vector<CampaignLine> lines;
  for (std::size_t i = 0; i < names.size(); ++i) {
    lines.push_back(writer.write(options.projects[i], names[i], files[i] + ".html"));
  }
  OutputAttempts attempt(channels.summary);
  attempt(place.index(), [&](const auto& path) {
    return writeCampaignPage(path, lines, textsOf(options.reportFields));
  });
  return attempt.exitCode() != kDone ? attempt.exitCode() : writer.exitCode();
}

}  // namespace talvesk
