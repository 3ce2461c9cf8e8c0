#include "figures/report/ReportBuilder.h"
#include "model/PickGrades.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <vector>

// How far the picks may be off.

namespace talvesk::report {
namespace {

std::vector<double> knownErrors(const TravelTime& record) {
  std::vector<double> known;
  for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
    if (record.errorOf(trace) > 0.0) known.push_back(record.errorOf(trace));
  }
  return known;
}

/// From the number of picks on.
QStringList gradeTexts(const PickGrades& grades, const std::vector<double>& errors) {
  const double largest = errors.empty() ? NAN : *std::max_element(errors.begin(), errors.end());
  return {QString::number(grades.good + grades.doubtful + grades.unknown),
          QString::number(grades.good),
          QString::number(grades.doubtful),
          QString::number(grades.unknown),
          number(1e3 * medianOf(errors, NAN), 2),
          number(1e3 * largest, 2)};
}

}  // namespace

void addPickErrors(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  const PickGrades all = gradesOf(document.ttArray);
  if (!all.any()) return;
  ReportTable table{{{ReportWords::tr("Shot"), true},
                     {ReportWords::tr("Picks"), true},
                     {ReportWords::tr("Good"), true},
                     {ReportWords::tr("Doubtful"), true},
                     {ReportWords::tr("Error unknown"), true},
                     {ReportWords::tr("Median error [ms]"), true},
                     {ReportWords::tr("Largest error [ms]"), true}},
                    {}};
  std::vector<double> errorsOfAll;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const std::vector<double> errors = knownErrors(record);
    errorsOfAll.insert(errorsOfAll.end(), errors.begin(), errors.end());
    table.rows.push_back(QStringList(QString::number(i + 1)) +
                         gradeTexts(gradesOf(record), errors));
  }
  if (document.ttArray.size() > 1) {
    table.rows.push_back(QStringList(ReportWords::tr("All")) + gradeTexts(all, errorsOfAll));
  }
  builder.table(ReportWords::tr("Errors of the picks of every shot"), table);
  builder.paragraph(
      ReportWords::tr("The error of a pick is one standard deviation. A pick is good up to %1 ms "
                      "and doubtful beyond.")
          .arg(number(parameters::kGoodPick.value, 1)));
}

}  // namespace talvesk::report
