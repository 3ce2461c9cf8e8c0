#include "figures/SectionFigure.h"
#include "figures/TravelTimeFigure.h"
#include "figures/report/ReportBuilder.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/SmoothingType.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>

// Travel times, grid and parameters, and sections.

namespace talvesk::report {
namespace {

constexpr double kCurvesHeightMm = 110.0;
constexpr double kHighestSectionMm = 200.0;  ///< leaves a caption its place

/// What the residuals of some picks come to: RMS in milliseconds and percent, mean and largest.
QStringList fitTexts(const std::vector<Residual>& residuals) {
  const SectionMisfit misfit = misfitOf(residuals);
  if (misfit.count == 0) return {number(NAN, 0), number(NAN, 0), number(NAN, 0), number(NAN, 0)};
  const auto largest = std::max_element(residuals.begin(), residuals.end(),
                                        [](const Residual& a, const Residual& b) {
                                          return std::abs(a.residual) < std::abs(b.residual);
                                        });
  return {number(1e3 * misfit.rmse, 2), number(1e2 * misfit.relativeRms, 1),
          number(1e3 * misfit.bias, 2), number(1e3 * largest->residual, 2)};
}

ReportTable shotTable(const TomoDocument& document, const std::vector<Residual>& residuals) {
  ReportTable table{{{ReportWords::tr("Shot"), true},
                     {ReportWords::tr("Position [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Traces"), true},
                     {ReportWords::tr("Picks"), true}},
                    {}};
  if (!residuals.empty()) {
    for (const QString& title : {ReportWords::tr("RMS [ms]"), ReportWords::tr("RMS [%]"),
                                 ReportWords::tr("Mean [ms]"), ReportWords::tr("Largest [ms]")}) {
      table.columns.push_back({title, true});
    }
  }
  std::vector<std::vector<Residual>> ofShots(document.ttArray.size());
  for (const Residual& each : residuals) ofShots[each.record].push_back(each);
  std::size_t traces = 0;
  std::size_t picks = 0;
  for (std::size_t i = 0; i < ofShots.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    traces += record.ttMisurati.size();
    picks += pickCount(record);
    QStringList row{QString::number(i + 1), length(record.shotPos2d.x, 2),
                    QString::number(record.ttMisurati.size()), QString::number(pickCount(record))};
    if (!residuals.empty()) row += fitTexts(ofShots[i]);
    table.rows.push_back(row);
  }
  if (ofShots.size() > 1) {
    QStringList row{ReportWords::tr("All"), QString(), QString::number(traces),
                    QString::number(picks)};
    if (!residuals.empty()) row += fitTexts(residuals);
    table.rows.push_back(row);
  }
  return table;
}

QString smoothingName(int type) {
  switch (smoothingTypeOf(type)) {
    case SmoothingType::kLinear:
      return ReportWords::tr("Linear weighted");
    case SmoothingType::kGaussian:
      return ReportWords::tr("Gaussian weighted");
    case SmoothingType::kRayBased:
      return ReportWords::tr("Ray based");
    case SmoothingType::kUniform:
      break;
  }
  return ReportWords::tr("Uniform weighted");
}

void addGrid(ReportBuilder& builder) {
  const Grid& grid = *builder.source.document.model->grid;
  ReportTable facts = ReportTable::ofFacts();
  facts.rows = {{ReportWords::tr("Cells"),
                 ReportWords::tr("%1 rows by %2 columns").arg(grid.righe()).arg(grid.col())},
                {ReportWords::tr("Side of a cell"), withLengthUnit(length(grid.aLato(), 3))},
                {ReportWords::tr("Depth below the surface"),
                 withLengthUnit(length(grid.righe() * grid.aLato(), 2))},
                {ReportWords::tr("Nodes per cell side"), QString::number(grid.nV())},
                {ReportWords::tr("Nodes altogether"), QString::number(grid.nodeCount())}};
  builder.table(ReportWords::tr("The grid under the line"), facts);
}

void addLayers(ReportBuilder& builder) {
  const auto layers = acceptedLayers(builder.source.document.model->layers);
  ReportTable table{{{ReportWords::tr("Layer"), true},
                     {ReportWords::tr("Top [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Bottom [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Velocity at top [%1]").arg(velocityUnitText()), true},
                     {ReportWords::tr("Velocity at bottom [%1]").arg(velocityUnitText()), true}},
                    {}};
  for (std::size_t i = 0; i < layers.size(); ++i) {
    table.rows.push_back({QString::number(i + 1), length(layers[i].initialDepth, 2),
                          length(layers[i].finalDepth, 2), length(layers[i].initialVelocity, 0),
                          length(layers[i].finalVelocity, 0)});
  }
  builder.table(ReportWords::tr("The layers of the starting model, depths below the surface"),
                table);
}

QStringList timeRow(const InversionRecord& run) {
  return run.computingSeconds > 0.0
             ? QStringList{ReportWords::tr("Computing time"),
                           ReportWords::tr("%1 s").arg(number(run.computingSeconds, 1))}
             : QStringList{ReportWords::tr("Elapsed time"),
                           ReportWords::tr("%1 s").arg(number(run.elapsedSeconds, 1))};
}

/// \param key of a model, see tomo/fitted/References.h
QString referenceName(const std::string& key) {
  if (key == "gradient") return ReportWords::tr("gradient read from the picks");
  if (key == "two-layers") return ReportWords::tr("two layers read from the picks");
  if (key == "three-layers") return ReportWords::tr("three layers read from the picks");
  if (key == "overburden") {
    return ReportWords::tr("gradient over a refractor, read from the picks");
  }
  if (key == "default") return ReportWords::tr("default model");
  return ReportWords::tr("velocities that the grid had");
}

/// Of a section that was fitted to the errors of its picks.
void addFit(ReportBuilder& builder, const InversionRecord& run) {
  const FitRecord& fit = *run.fit;
  const auto yesNo = [](bool yes) { return yes ? ReportWords::tr("yes") : ReportWords::tr("no"); };
  QString iterations = QString::number(run.history.size());
  if (run.stopped) iterations = ReportWords::tr("%1, stopped by the user").arg(iterations);
  ReportTable facts = ReportTable::ofFacts();
  facts.rows = {
      {ReportWords::tr("Method"), ReportWords::tr("Fit to the picks' errors")},
      {ReportWords::tr("Started from and held to"), referenceName(fit.reference)},
      {ReportWords::tr("Errors of picks that state none"),
       ReportWords::tr("%1 ms, or %2 % of the time where that is more")
           .arg(number(1e3 * fit.errorFloor, 2), number(1e2 * fit.errorShare, 1))},
      {ReportWords::tr("Chi-square"),
       ReportWords::tr("%1; of all picks %2").arg(number(fit.chi2, 2), number(fit.chi2All, 2))},
      {ReportWords::tr("Target reached"), yesNo(fit.target)},
      {ReportWords::tr("Suspect picks, left out of chi-square"), QString::number(fit.suspects)},
      {ReportWords::tr("Iterations to this section"), iterations},
      {ReportWords::tr("Velocity limits"),
       withVelocityUnit(lengthSpan(run.minVelocity, run.maxVelocity, 0))},
      {ReportWords::tr("Few sharp steps rather than gentle slopes"), yesNo(fit.blocky)},
      {ReportWords::tr("Time shifts of shots fitted, too"), yesNo(fit.statics)},
      timeRow(run)};
  builder.table(ReportWords::tr("Parameters of the inversion"), facts);
}

QString radiusText(const InversionRecord& run) {
  const QString radius = run.smoothing == 1 ? ReportWords::tr("1 cell")
                                            : ReportWords::tr("%1 cells").arg(run.smoothing);
  if (run.coarseToFine == 0) return radius;
  return ReportWords::tr("%1, shrinking to a fifth").arg(radius);
}

void addParameters(ReportBuilder& builder, const InversionRecord& run) {
  if (run.fit) return addFit(builder, run);
  ReportTable facts = ReportTable::ofFacts();
  const int done = static_cast<int>(run.history.size());
  QString iterations = run.coarseToFine > 0
                           ? ReportWords::tr("%1, the best of %2 from coarse to fine")
                                 .arg(done)
                                 .arg(run.coarseToFine)
                           : ReportWords::tr("%1 of %2").arg(done).arg(run.externalIterations);
  if (run.stopped) iterations = ReportWords::tr("%1, stopped by the user").arg(iterations);
  const double ratio = verticalRatio(run.symmetric);
  facts.rows = {{ReportWords::tr("External iterations"), iterations},
                {ReportWords::tr("Solver iterations on the rays of each"),
                 QString::number(run.solverIterations)},
                {ReportWords::tr("Velocity limits"),
                 withVelocityUnit(lengthSpan(run.minVelocity, run.maxVelocity, 0))},
                {ReportWords::tr("Smoothing"), smoothingName(run.smoothingType)},
                {ReportWords::tr("Smoothing radius"), radiusText(run)},
                {ReportWords::tr("Height over width of the smoothing window"), number(ratio, 1)},
                timeRow(run)};
  builder.table(ReportWords::tr("Parameters of the inversion"), facts);
}

Status addSection(ReportBuilder& builder, const SectionFigureOptions& options,
                  const QString& caption, LiveFigure live = LiveFigure::kNone) {
  FigureDrawing drawing;
  Status status = prepareSectionFigure(builder.source.document, options, drawing);
  if (status.ok() && drawing.sheet.heightMm > kHighestSectionMm) {
    SectionFigureOptions lower = options;
    lower.heightMm = kHighestSectionMm;
    status = prepareSectionFigure(builder.source.document, lower, drawing);
  }
  if (status.ok()) builder.figure(caption, std::move(drawing), live);
  return status;
}

}  // namespace

SectionFigureOptions sectionOptions(const ReportOptions& report, SectionQuantity quantity) {
  SectionFigureOptions options = report.section;
  if (options.scene.quantity != quantity) {
    // Range and contours are those of another quantity.
    options.scene.range.reset();
    const ValueRange velocities{options.palette.min_db, options.palette.max_db};
    if (quantity == SectionQuantity::kVelocity && velocities.span() > 0.0 &&
        std::isfinite(velocities.span())) {
      options.scene.range = velocities;
    }
    options.scene.contourValues.clear();
    options.scene.equallySpacedContours = 0;
    if (options.scene.fill == SectionFill::kBands) options.scene.fill = SectionFill::kCells;
  }
  // What the user has hidden on the screen is what the figure is about.
  if (options.scene.fill == SectionFill::kNone) options.scene.fill = SectionFill::kCells;
  if (options.colorBar == ColorBar::kNone) options.colorBar = ColorBar::kVertical;
  options.scene.quantity = quantity;
  options.widthMm = ReportSheet(report.paper).textWidthMm();
  options.heightMm = 0.0;
  options.showTitle = false;
  return options;
}

Status addTravelTimes(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  builder.heading(ReportWords::tr("Travel times"));
  const std::vector<Residual> residuals = residualsOf(document);
  if (!hasPicks(document)) {
    builder.paragraph(ReportWords::tr("No first breaks have been picked."));
    return {};
  }
  TravelTimeFigureOptions options;
  options.widthMm = builder.widthMm();
  options.heightMm = kCurvesHeightMm;
  options.showTitle = false;
  FigureDrawing drawing;
  if (Status status = prepareTravelTimeFigure(document, options, drawing); !status.ok()) {
    return status;
  }
  builder.figure(
      residuals.empty()
          ? ReportWords::tr("Travel-time curves: picked first breaks against distance")
          : ReportWords::tr("Travel-time curves: picked first breaks (symbols) and times computed "
                            "through the section (lines) against distance"),
      std::move(drawing), LiveFigure::kTravelTimes);
  builder.table(
      residuals.empty()
          ? ReportWords::tr("Picks of every shot")
          : ReportWords::tr("Picks of every shot and their misfit, computed minus measured"),
      shotTable(document, residuals));
  if (!residuals.empty() && picksChangedSince(document)) {
    builder.paragraph(ReportWords::tr("Picks have changed since the inversion."));
  }
  addPickErrors(builder);
  addReciprocity(builder);
  return {};
}

void addInversion(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  builder.heading(ReportWords::tr("Grid and inversion"));
  if (document.model->grid == nullptr) {
    builder.paragraph(ReportWords::tr("No grid has been built and nothing has been inverted."));
    return;
  }
  addGrid(builder);
  addLayers(builder);
  if (!document.result->has_tomographic_info) {
    builder.paragraph(
        ReportWords::tr("No result of an inversion is known: the grid has the velocities that it "
                        "was left with."));
  } else if (document.result->lastInversion) {
    addParameters(builder, *document.result->lastInversion);
  } else {
    builder.paragraph(ReportWords::tr("The parameters of the inversion are not known."));
  }
}

Status addSections(ReportBuilder& builder) {
  const TomoDocument& document = builder.source.document;
  if (document.model->grid == nullptr) return {};
  builder.heading(ReportWords::tr("Velocity section"));
  SectionFigureOptions options = sectionOptions(builder.options, SectionQuantity::kVelocity);
  options.scene.rays = builder.options.sections.rays && !document.result->rays.empty();
  QString caption = ReportWords::tr("Velocities of the grid");
  if (document.result->has_tomographic_info) {
    caption = options.scene.rays ? ReportWords::tr("Velocity section with rays")
                                 : ReportWords::tr("Velocity section");
  }
  Status status = addSection(builder, options, caption, LiveFigure::kSection);
  if (status.ok() && builder.options.sections.density && document.result->has_tomographic_info &&
      hasInformationDensity(document)) {
    options = sectionOptions(builder.options, SectionQuantity::kInformationDensity);
    options.scene.rays = false;
    status = addSection(
        builder, options,
        ReportWords::tr(
            "Information density: how completely rays cross the surroundings of each cell"));
  }
  if (status.ok() && document.result->certainty) {
    options = sectionOptions(builder.options, SectionQuantity::kCertainty);
    options.scene.rays = false;
    status = addSection(
        builder, options,
        ReportWords::tr("Uncertainty: half of the range from 16 to 84 % of %1 sections that "
                        "explain the picks as well, in percent")
            .arg(document.result->certainty->members));
  }
  return status;
}

}  // namespace talvesk::report
