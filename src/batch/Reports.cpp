#include "batch/Reports.h"

#include <QDate>

namespace talvesk {

Status writeReportFile(const ReportSource& source, const ReportFields& fields,
                       const SectionFigureOptions& section, const std::string& path) {
  ReportOptions options;
  options.title = fields.title;
  options.client = fields.client;
  options.site = fields.site;
  options.author = fields.author;
  options.date =
      fields.date.empty() ? QDate::currentDate().toString(Qt::ISODate).toStdString() : fields.date;
  options.section = section;
  ReportContent content;
  Status status = buildReport(source, options, content);
  if (status.ok()) status = writeReport(content, path);
  return status;
}

}  // namespace talvesk
