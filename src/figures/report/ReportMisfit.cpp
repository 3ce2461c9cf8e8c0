#include "figures/MisfitFigures.h"
#include "figures/ResidualFigures.h"
#include "figures/report/ReportBuilder.h"
#include "model/ChiSquare.h"
#include "model/LeftOut.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>

// How well the section fits the picks, and what the solver saw of it.

namespace talvesk::report {
namespace {

constexpr double kMisfitHeightMm = 65.0;
constexpr int kSectionColumns = 5;  // of the history, before those of the solver

QString millisecondsAndPercent(double seconds, double fraction) {
  return ReportWords::tr("%1 ms, %2 %").arg(number(1e3 * seconds, 3), number(1e2 * fraction, 2));
}

/// With how many picks it leaves out.
QString chiSquareText(const ChiSquare& fit) {
  const QString text = ReportWords::tr("%1; of all picks %2; suspect picks %3")
                           .arg(number(fit.chi2, 2), number(fit.all, 2))
                           .arg(fit.suspects.size());
  return fit.shifted ? ReportWords::tr("%1; with the time shifts of shots").arg(text) : text;
}

void addSectionMisfit(ReportBuilder& builder, const SectionMisfit& misfit) {
  const TomoDocument& document = builder.source.document;
  ReportTable facts = ReportTable::ofFacts();
  if (misfit.count > 0) {
    facts.rows = {
        {ReportWords::tr("Picks used"), QString::number(misfit.count)},
        {ReportWords::tr("RMS misfit"), millisecondsAndPercent(misfit.rmse, misfit.relativeRms)},
        {ReportWords::tr("Chi-square"), chiSquareText(sectionChiSquareOf(document))},
        {ReportWords::tr("Mean of computed minus measured"),
         ReportWords::tr("%1 ms").arg(number(1e3 * misfit.bias, 3))},
        {ReportWords::tr("Largest difference"), ReportWords::tr("%1 ms, shot %2, receiver %3")
                                                    .arg(number(1e3 * misfit.maxAbs, 3))
                                                    .arg(misfit.maxShot + 1)
                                                    .arg(misfit.maxReceiver + 1)}};
  }
  if (const LeftOut left = leftOut(document, document.result->excluded); left.any()) {
    facts.rows.push_back({ReportWords::tr("Left out"),
                          ReportWords::tr("Shots: %1; geophones: %2; picks: %3 of %4")
                              .arg(left.shotsBeyond.size() + left.shotsWithoutString.size())
                              .arg(left.geophoneCount())
                              .arg(left.picks)
                              .arg(left.of)});
  }
  builder.table(ReportWords::tr("Misfit of the section, along fresh rays"), facts);
  if (document.result->smoothedResult) {
    builder.paragraph(ReportWords::tr(
        "The section was smoothed after the inversion; its misfit is that of the smoothed one."));
  }
  if (picksChangedSince(document)) {
    builder.paragraph(
        ReportWords::tr("Picks have changed since the inversion: the section was fitted to others "
                        "than those that its misfit is told of here."));
  }
}

/// What the solver saw, as it is told of every inversion.
void addLastPass(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  ReportTable facts = ReportTable::ofFacts();
  const bool known = document.result->lastInversion &&
                     !document.result->lastInversion->history.empty() &&
                     document.result->lastInversion->history.back().count > 0;
  if (known) {
    const Misfit& misfit = document.result->lastInversion->history.back();
    facts.rows = {
        {ReportWords::tr("RMS misfit"), millisecondsAndPercent(misfit.rmse, misfit.relativeRms)},
        {ReportWords::tr("Largest relative late error"),
         ReportWords::tr("%1 % (%2 ms)")
             .arg(number(1e2 * misfit.maxRelativeError, 2), number(1e3 * misfit.maxError, 3))}};
  } else if (document.result->RMSE_tomography >= 0.0) {
    facts.rows = {{ReportWords::tr("RMS misfit"),
                   ReportWords::tr("%1 %").arg(number(document.result->RMSE_tomography, 2))}};
  }
  builder.table(ReportWords::tr("Last solver pass of the inversion"), facts);
}

void addResiduals(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  const ResidualTable table = residualTableOf(document);
  const auto add = [&](ResidualView view, double heightMm, const QString& caption,
                       LiveFigure live = LiveFigure::kNone) {
    SectionFigureOptions sheet;
    sheet.widthMm = builder.widthMm();
    sheet.heightMm = heightMm;
    FigureDrawing drawing;
    const Status status = prepareResidualFigure(document, table, view, {}, sheet, drawing);
    if (status.ok()) builder.figure(caption, drawing, live);
  };
  add(ResidualView::kOffset, kMisfitHeightMm,
      ReportWords::tr("Residuals of the picks against the distance from their shot"));
  add(ResidualView::kMap, 0.0, ReportWords::tr("Residuals of the picks, shot by geophone"),
      LiveFigure::kResiduals);
}

void addHistory(ReportBuilder& builder, const InversionRecord& run) {
  ReportTable table{{{ReportWords::tr("External iteration"), true},
                     {ReportWords::tr("Section, RMS [ms]"), true},
                     {ReportWords::tr("RMS [%]"), true},
                     {ReportWords::tr("Mean [ms]"), true},
                     {ReportWords::tr("Largest [ms]"), true},
                     {ReportWords::tr("Last solver pass, RMS [ms]"), true},
                     {ReportWords::tr("RMS [%]"), true}},
                    {}};
  const std::size_t rows = std::max(run.history.size() + 1, run.sectionHistory.size());
  for (std::size_t i = 0; i < rows; ++i) {
    const SectionMisfit section =
        i < run.sectionHistory.size() ? run.sectionHistory[i] : SectionMisfit();
    const Misfit pass = i > 0 && i <= run.history.size() ? run.history[i - 1] : Misfit();
    if (section.count == 0 && pass.count == 0) continue;
    const auto ofSection = [&](double value, int places) {
      return number(section.count > 0 ? value : NAN, places);
    };
    const auto ofPass = [&](double value, int places) {
      return number(pass.count > 0 ? value : NAN, places);
    };
    table.rows.push_back({QString::number(i), ofSection(1e3 * section.rmse, 3),
                          ofSection(1e2 * section.relativeRms, 2), ofSection(1e3 * section.bias, 3),
                          ofSection(1e3 * section.maxAbs, 3), ofPass(1e3 * pass.rmse, 3),
                          ofPass(1e2 * pass.relativeRms, 2)});
  }
  if (run.fit) {  // nothing else than the section
    table.columns.erase(table.columns.begin() + kSectionColumns, table.columns.end());
    for (QStringList& row : table.rows) row = row.mid(0, kSectionColumns);
    builder.table(ReportWords::tr("Misfit after every iteration, 0 being the starting model"),
                  table);
    return;
  }
  builder.table(ReportWords::tr("Misfit after every external iteration"), table);
  builder.paragraph(ReportWords::tr(
      "The misfit of the section is that of fresh rays through the section that an iteration has "
      "left; 0 is the starting model. The last solver pass of an iteration goes along its old "
      "rays, "
      "before the last correction of the velocities and before they are smoothed, and its misfit "
      "is usually smaller."));
}

}  // namespace

Status addMisfit(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  if (!document.result->has_tomographic_info) return {};
  const SectionMisfit misfit = sectionMisfitOf(document);
  if (misfit.count == 0 && document.result->RMSE_tomography < 0.0) return {};
  builder.heading(ReportWords::tr("Misfit"));
  addSectionMisfit(builder, misfit);
  const auto& run = document.result->lastInversion;
  const bool fitted = run && run->fit;  // without solver passes
  if (!fitted) addLastPass(builder);
  if (misfit.count > 0) addResiduals(builder);
  if (!document.result->lastInversion) return {};
  FigureDrawing drawing;
  if (document.result->lastInversion->history.size() > 1 &&
      prepareMisfitHistoryFigure(*document.result->lastInversion, builder.widthMm(),
                                 kMisfitHeightMm, drawing)
          .ok()) {
    builder.figure(
        fitted ? ReportWords::tr("RMS misfit of the section after every iteration, 0 being the "
                                 "starting model")
               : ReportWords::tr(
                     "RMS misfit of the section after every external iteration (blue), 0 being "
                     "the starting model, and of the last solver pass of each (grey)"),
        drawing, LiveFigure::kHistory);
  }
  addHistory(builder, *document.result->lastInversion);
  return {};
}

}  // namespace talvesk::report
