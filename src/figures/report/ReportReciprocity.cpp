#include "doctor/ReciprocityTable.h"
#include "figures/FigureWords.h"
#include "figures/report/ReportBuilder.h"
#include "model/TomoDocument.h"

#include <cmath>

// How the picks go with each other there and back.

namespace talvesk::report {
namespace {

constexpr std::size_t kWorst = 10;
constexpr int kPlaces = 2;

QString milliseconds(double seconds) {
  return number(1e3 * seconds, kPlaces);
}

QString numberOf(std::size_t shot) {
  return QString::number(shot + 1);
}

void addShots(ReportBuilder& builder, const doctor::ReciprocityTable& found) {
  ReportTable table{{{ReportWords::tr("Shot"), true},
                     {ReportWords::tr("Position [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Pairs"), true},
                     {ReportWords::tr("RMS [ms]"), true},
                     {ReportWords::tr("Late by [ms]"), true}},
                    {}};
  for (std::size_t i = 0; i < found.shots.size(); ++i) {
    const doctor::ShotReciprocity& shot = found.shots[i];
    if (shot.pairs == 0) continue;
    const bool known = shot.shiftError > 0.0;
    table.rows.push_back({numberOf(i), length(shot.x, 2), QString::number(shot.pairs),
                          milliseconds(shot.rms),
                          known ? ReportWords::tr("%1 ± %2").arg(milliseconds(shot.shift),
                                                                 milliseconds(shot.shiftError))
                                : number(std::nan(""), 0)});
  }
  builder.table(ReportWords::tr("Reciprocity of every shot"), table, LiveFigure::kReciprocity);
}

void addWorst(ReportBuilder& builder, const doctor::ReciprocityTable& found) {
  ReportTable table{{{ReportWords::tr("Shot"), true},
                     {ReportWords::tr("Shot"), true},
                     {ReportWords::tr("There [ms]"), true},
                     {ReportWords::tr("Back [ms]"), true},
                     {ReportWords::tr("Difference [ms]"), true}},
                    {}};
  for (const std::size_t i : found.worstPairs(kWorst)) {
    const doctor::ReciprocalTimes& pair = found.pairs[i];
    table.rows.push_back({numberOf(pair.first), numberOf(pair.second), milliseconds(pair.there),
                          milliseconds(pair.back), milliseconds(pair.difference())});
  }
  builder.table(table.rows.size() < found.pairs.size()
                    ? ReportWords::tr("The pairs of shots that differ most")
                    : ReportWords::tr("Pairs of shots"),
                table);
}

}  // namespace

void addReciprocity(ReportBuilder& builder) {
  const doctor::ReciprocityTable found = doctor::reciprocityOf(builder.source.document);
  if (found.pairs.empty()) return;
  builder.subheading(ReportWords::tr("Reciprocity"));
  builder.paragraph(
      ReportWords::tr("A wave takes as long from one shot to the place of another as back. Pairs "
                      "of shots with picks along both ways: %1; RMS of their differences: %2 ms.")
          .arg(found.pairs.size())
          .arg(milliseconds(found.rms)));
  for (std::size_t i = 0; i < found.shots.size(); ++i) {
    if (!found.shots[i].standsOut()) continue;
    builder.paragraph(ReportWords::tr("Shot %1: %2.")
                          .arg(i + 1)
                          .arg(FigureWords::message(describe(found.shots[i]))));
  }
  addShots(builder, found);
  addWorst(builder, found);
}

}  // namespace talvesk::report
