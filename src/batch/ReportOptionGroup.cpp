#include "batch/OptionGroups.h"
#include "batch/OptionParsing.h"

namespace talvesk {

CLI::Option* addReport(CLI::App& command, std::string& path, ReportFields& fields) {
  constexpr const char* kGroup = "Report";
  CLI::Option* report = mustEndIn(
      addPath(command, "--report", path,
              "A report on survey, travel times, section and misfit, named *.pdf, *.odt or "
              "*.html"),
      {".pdf", ".odt", ".html"}, true);
  report->group(kGroup);
  const auto field = [&](const char* name, std::string& text, const char* help) {
    command.add_option(name, text, help)->type_name("TEXT")->needs(report)->group(kGroup);
  };
  field("--report-title", fields.title, "Its title (default: that of the survey)");
  field("--client", fields.client, "Whom it is for");
  field("--site", fields.site, "Where the survey was made");
  field("--author", fields.author, "Who made it");
  field("--date", fields.date, "As it is to be read (default: today as YYYY-MM-DD)");
  return report;
}

}  // namespace talvesk
