#include "batch/ReportIndex.h"

#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/FittedSection.h"
#include "batch/FreshTimes.h"
#include "batch/Images.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/Reports.h"
#include "export/campaign/CampaignPage.h"
#include "export/campaign/CampaignPlace.h"
#include "figures/ProfileLines.h"
#include "io/project/projectReader.h"

#include <QDate>
#include <ostream>

namespace talvesk {
namespace {

Status writeLinePage(const LoadedProject& project, const ReportFields& common,
                     const CampaignPlace& place, const std::string& file) {
  const Status status = place.mayReplace(file);
  if (!status.ok()) return status;
  ReportFields fields = common;
  fields.title.clear();  // that of the campaign; a line has its own
  warnAboutCertainty(project.document);
  const SectionFigureOptions section =
      sectionFigureOptions(project.section, project.palettes->current(),
                           profileLines(project.document, project.interpretation));
  return writeReportFile({project.document, &*project.interpretation}, fields, section,
                         place.file(file));
}

/// A line of the campaign and its page.
class LineWriter {
 public:
  LineWriter(const ExportOptions& options, const CampaignPlace& place, std::ostream& summary)
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
    status = writeLinePage(project, mOptions.reportFields, mPlace, file);
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
  const ExportOptions& mOptions;
  const CampaignPlace& mPlace;
  std::ostream& mSummary;
  int mExitCode = kDone;
};

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
  CampaignPlace place;
  if (const Status status = CampaignPlace::find(options.index, place); !status.ok()) {
    return failed(status.message());
  }
  const Status places = checkOutputFiles({{"--report-index", place.page()}}, options.projects);
  if (places.code() == kWrongUsage) return wrongUsage("export", places.message());
  if (!places.ok()) return failed(places.message());
  prepareDrawing();
  const std::vector<std::string> names = campaignLineNames(options.projects);
  const std::vector<std::string> files = place.linePages(names);
  LineWriter writer(options, place, *channels.summary);
  std::vector<CampaignLine> lines;
  for (std::size_t i = 0; i < names.size(); ++i) {
    lines.push_back(writer.write(options.projects[i], names[i], files[i]));
  }
  OutputAttempts attempt(channels.summary);
  attempt(place.page(), [&](const auto& path) {
    return writeCampaignPage(path, lines, textsOf(options.reportFields));
  });
  return attempt.exitCode() != kDone ? attempt.exitCode() : writer.exitCode();
}

}  // namespace talvesk
