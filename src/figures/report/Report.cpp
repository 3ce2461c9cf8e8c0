#include "figures/report/Report.h"

#include "figures/FigureOutput.h"
#include "figures/report/ReportBuilder.h"
#include "figures/report/ReportOdt.h"
#include "figures/report/ReportPages.h"
#include "figures/web/WebData.h"
#include "figures/web/WebPage.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <QByteArray>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

QString reportLanguage() {
  const QString code = QLocale().name().left(2);
  return code == QLatin1String("C") ? QStringLiteral("en") : code;
}

Status buildReport(const ReportSource& source, const ReportOptions& options,
                   ReportContent& content) {
  if (Status status = checkApplication("A report"); !status.ok()) return status;
  if (source.document.ttArray.empty() && source.document.line->goephonesStringSet.empty()) {
    return Status::failure(
        Message::tr("There is no survey to report on: load shot files or travel times first."));
  }
  ReportContent made;
  made.paper = options.paper;
  made.title = QString::fromStdString(options.title.empty() ? source.document.title : options.title)
                   .simplified();
  if (made.title.isEmpty()) made.title = ReportWords::tr("Seismic refraction survey");
  made.author = QString::fromStdString(options.author).simplified();
  made.language = reportLanguage();

  ReportBuilder builder(source, options, made);
  const ReportSections& sections = options.sections;
  report::addTitlePage(builder);
  // What follows begins on a page of its own, unless it is nothing.
  builder.add(ReportItem::Kind::kBreak, {});
  const std::size_t front = made.items.size();
  if (sections.survey) report::addSurvey(builder);
  if (sections.position) report::addPosition(builder);
  Status status;
  if (sections.travelTimes) status = report::addTravelTimes(builder);
  if (status.ok() && sections.inversion) report::addInversion(builder);
  if (status.ok() && sections.section) status = report::addSections(builder);
  if (status.ok() && sections.misfit) status = report::addMisfit(builder);
  if (status.ok() && sections.refraction) status = report::addRefraction(builder);
  if (status.ok() && sections.refraction) report::addLayerMethods(builder);
  if (!status.ok()) return status;
  if (sections.method) report::addMethod(builder);
  if (made.items.size() == front) made.items.pop_back();
  made.liveData = [source, options] { return webData(source, options); };
  content = std::move(made);
  return {};
}

Status reportFormatOf(const std::string& path, ReportFormat& format) {
  const QString name = QString::fromStdString(path);
  if (name.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) {
    format = ReportFormat::kPdf;
  } else if (name.endsWith(QLatin1String(".odt"), Qt::CaseInsensitive)) {
    format = ReportFormat::kOdt;
  } else if (name.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)) {
    format = ReportFormat::kHtml;
  } else {
    return Status::failure(
        Message::tr("No report format is known for %1: let the file name end with .pdf, .odt or "
                    ".html.")
            .arg(path));
  }
  return {};
}

Status writeReport(const ReportContent& content, const std::string& path,
                   const ReportProgress& progress) {
  ReportFormat format{};
  if (Status status = reportFormatOf(path, format); !status.ok()) return status;
  QByteArray bytes;
  Status status;
  const auto goOnOf = [&progress](int total) {
    return [&progress, total](int done) {
      return !progress || progress(static_cast<double>(done) / std::max(total, 1));
    };
  };
  if (format == ReportFormat::kPdf) {
    const ReportPages pages(content);
    status = pages.pdf(goOnOf(pages.count()), bytes);
  } else {
    const auto figures = std::count_if(
        content.items.begin(), content.items.end(),
        [](const ReportItem& item) { return item.kind == ReportItem::Kind::kFigure; });
    const auto goOn = goOnOf(static_cast<int>(figures));
    status = format == ReportFormat::kOdt ? reportAsOdt(content, goOn, bytes)
                                          : reportAsHtml(content, goOn, bytes);
  }
  if (!status.ok()) return status;
  return writeBytes(path, bytes);
}

}  // namespace talvesk
