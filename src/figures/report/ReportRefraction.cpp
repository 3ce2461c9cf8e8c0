#include "figures/RefractionFigure.h"
#include "figures/report/ReportBuilder.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "numerics/Medians.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/PlausibleResults.h"
#include "refraction/Profile.h"
#include "refraction/Support.h"
#include "refraction/methods/ProfileErrors.h"

#include <algorithm>
#include <cmath>

// The layered interpretation, and how all of it was done.

namespace talvesk::report {
namespace {

constexpr double kProfileHeightMm = 85.0;
using refractionDataStructure::computedData;

bool isBuilt(const ReportBuilder& builder) {
  const auto* interpretation = builder.source.interpretation;
  return interpretation != nullptr && !interpretation->refractData.cData.empty() &&
         !interpretation->refractData.cData.front().depth.empty();
}

double at(const std::vector<double>& values, std::size_t i) {
  return i < values.size() ? values[i] : std::nan("");
}

/// "–" when they are not known.
QString velocities(double low, double high) {
  return std::isfinite(low) && std::isfinite(high) ? withVelocityUnit(lengthSpan(low, high, 0))
                                                   : number(low, 0);
}

QString supportText(Support support) {
  switch (support) {
    case Support::kPicks:
      return ReportWords::tr("picks");
    case Support::kPhantom:
      return ReportWords::tr("phantom");
    case Support::kGap:
      return ReportWords::tr("gap");
    case Support::kExtrapolated:
      return ReportWords::tr("continuation");
  }
  return {};
}

/// "5.20 ± 0.31", in parentheses where it is not picks that carry it.
QString valueText(double value, double error, bool carried, int places) {
  QString text = length(value, places);
  if (!std::isfinite(value)) return text;
  if (std::isfinite(error)) text += QString::fromUtf8(" ± ") + length(error, places);
  return carried ? text : '(' + text + ')';
}

bool isCarried(const std::vector<Support>& support, std::size_t j) {
  return j >= support.size() || support[j] == Support::kPicks;
}

const ProfileErrors::Refractor* errorsOf(const ReportBuilder& builder, std::size_t refractor) {
  const ProfileErrors* errors = builder.source.errors;
  return errors != nullptr && refractor < errors->refractors.size() ? &errors->refractors[refractor]
                                                                    : nullptr;
}

/// "1850 ± 60 m/s"
QString velocityText(double velocity, double error) {
  return std::isfinite(velocity) ? withVelocityUnit(valueText(velocity, error, true, 0))
                                 : number(velocity, 0);
}

/// A row per receiver of any refractor; those of each are found by their place.
ReportTable profileTable(const ReportBuilder& builder) {
  const refractionDataStructure::processingData& data = builder.source.interpretation->refractData;
  const std::vector<ShotArrivals> shots = shotArrivals(builder.source.document);
  std::vector<RefractorSupport> supports;
  ReportTable table{{{ReportWords::tr("Position [%1]").arg(lengthUnitText()), true},
                     {ReportWords::tr("Elevation [%1]").arg(lengthUnitText()), true}},
                    {}};
  for (std::size_t r = 0; r < data.cData.size(); ++r) {
    const QString number = QString::number(r + 1);
    table.columns.push_back({ReportWords::tr("Depth %1 [%2]").arg(number, lengthUnitText()), true});
    table.columns.push_back(
        {ReportWords::tr("Velocity %1 [%2]").arg(number, velocityUnitText()), true});
    supports.push_back(
        supportOf(shots, *builder.source.interpretation, static_cast<std::uint32_t>(r) + 2));
    if (!supports.back().depth.empty()) {
      table.columns.push_back({ReportWords::tr("Depth %1 by").arg(number), false});
    }
  }
  for (const Point2D& receiver : profileSurface(data)) {
    QStringList row{length(receiver.x, 2), length(receiver.z, 2)};
    for (std::size_t r = 0; r < data.cData.size(); ++r) {
      const computedData& refractor = data.cData[r];
      const auto same = std::find(refractor.x.begin(), refractor.x.end(), receiver.x);
      const auto j = static_cast<std::size_t>(same - refractor.x.begin());
      const RefractorSupport& support = supports[r];
      const ProfileErrors::Refractor* errors = errorsOf(builder, r);
      const double depth = at(refractor.depth, j);
      const double velocity = at(refractor.velocity, j);
      row << valueText(depth, errors == nullptr ? std::nan("") : errors->depth.errorOf(j, depth),
                       isCarried(support.depth, j), 2)
          << valueText(velocity,
                       errors == nullptr ? std::nan("") : errors->velocity.errorOf(j, velocity),
                       isCarried(support.velocity, j), 0);
      if (support.depth.empty()) continue;
      row << (j < support.depth.size() && std::isfinite(depth) ? supportText(support.depth[j])
                                                               : QString());
    }
    table.rows.push_back(row);
  }
  return table;
}

/// By how much of its velocity at the surface the first layer grows with depth.
QString growthText(const refractionDataStructure::FirstLayer& first) {
  const bool feet = lengthUnit() == LengthUnit::kFoot;
  const QString text = feet ? ReportWords::tr("%1 % of that at the surface per foot, down to %2")
                            : ReportWords::tr("%1 % of that at the surface per metre, down to %2");
  return text.arg(number(100.0 * first.growth * metresOf(1.0), 1),
                  withLengthUnit(length(first.growsTo, 1)));
}

/// 12000 as "12 000".
QString inThousands(double value) {
  const auto whole = static_cast<long long>(std::llround(value));
  if (whole < 1000) return QString::number(whole);
  return QStringLiteral("%1 %2").arg(whole / 1000).arg(whole % 1000, 3, 10, QLatin1Char('0'));
}

/// How fast the first layer of a fitted profile is.
void addFirstLayer(const refractionDataStructure::processingData& data, ReportTable& facts) {
  const refractionDataStructure::FirstLayer& first = data.first;
  Range surface;
  for (const double value : first.velocity) surface.take(value);
  facts.rows.push_back(
      {ReportWords::tr("Mean velocity of the first layer"), velocityText(data.v1, std::nan(""))});
  facts.rows.push_back({ReportWords::tr("Velocity of the first layer at the surface"),
                        velocities(surface.low, surface.high)});
  if (!(first.growth > 0.0)) return;
  facts.rows.push_back({ReportWords::tr("Growth of its velocity with depth"), growthText(first)});
}

/// What parentheses, and values with an error, are.
void addSupportLegend(ReportBuilder& builder) {
  if (builder.source.interpretation->refractData.isFitted()) {
    builder.paragraph(
        ReportWords::tr("A value in parentheses, and a dashed line, stands where no pick of the "
                        "refractor comes from or goes to: it lies between what others tell (gap). "
                        "Errors are not told of a profile that is fitted to all picks."));
    return;
  }
  if (builder.source.interpretation->phnt_A.empty()) return;  // what carries it is not known
  builder.paragraph(ReportWords::tr(
      "A value in parentheses, and a dashed line, is not carried by picks of the shots at both "
      "ends "
      "there: but by shifted arrivals of other shots (phantom), across more than two spacings "
      "without arrivals (gap), or by a continuation beyond the last ones."));
  if (builder.source.errors == nullptr) return;
  builder.paragraph(
      ReportWords::tr("Errors, and the bands round the lines, are half the width within which 68 "
                      "of 100 results lie when picks are moved by their errors, by %1 such "
                      "interpretations.")
          .arg(builder.source.errors->members));
}

}  // namespace

Status addRefraction(ReportBuilder& builder) {
  if (!isBuilt(builder)) return {};
  const auto& data = builder.source.interpretation->refractData;
  builder.heading(ReportWords::tr("Refraction interpretation"));
  if (picksChangedSince(builder.source.document, data)) {
    builder.paragraph(
        ReportWords::tr("The picks have changed since this profile was built: it is that of the "
                        "earlier picks."));
  }
  ReportTable facts = ReportTable::ofFacts();
  const ProfileErrors* errors = builder.source.errors;
  if (data.isFitted()) {
    addFirstLayer(data, facts);
  } else {
    facts.rows.push_back(
        {ReportWords::tr("Velocity of the first layer"),
         velocityText(data.v1, errors == nullptr ? std::nan("") : errors->v1Error)});
  }
  for (std::size_t r = 0; r < data.cData.size(); ++r) {
    Range velocity;
    for (const double value : data.cData[r].velocity) velocity.take(value);
    facts.rows.push_back({ReportWords::tr("Velocity of refractor %1").arg(r + 1),
                          velocities(velocity.low, velocity.high)});
    if (const ProfileErrors::Refractor* own = errorsOf(builder, r)) {
      facts.rows.push_back(
          {ReportWords::tr("Median velocity of refractor %1").arg(r + 1),
           velocityText(medianOfFinite(data.cData[r].velocity, std::nan("")), own->medianError)});
    }
    if (data.isFitted()) continue;  // it has no XY
    facts.rows.push_back({ReportWords::tr("Distance XY of refractor %1").arg(r + 1),
                          withLengthUnit(length(data.cData[r].chosenXY, 1))});
  }
  builder.table(ReportWords::tr("Layers and refractors"), facts);
  addLayerFit(builder);
  RefractionFigureOptions options;
  options.errors = errors;
  options.widthMm = builder.widthMm();
  options.heightMm = kProfileHeightMm;
  options.showTitle = false;
  FigureDrawing drawing;
  // Refractors without any depth have a table all the same.
  if (prepareRefractionFigure(builder.source.document, *builder.source.interpretation, options,
                              drawing)
          .ok()) {
    builder.figure(ReportWords::tr("Section of the layers"), std::move(drawing));
  }
  builder.table(ReportWords::tr("Depths below the surface and velocities of the refractors"),
                profileTable(builder));
  addSupportLegend(builder);
  if (hasGaps(data)) {
    builder.paragraph(
        ReportWords::tr("No velocity is given where the times lead to one outside %1 to %2. "
                        "No depth is given there, below a layer whose velocity or depth is not "
                        "known or which is faster, and where it came out deeper than the line is "
                        "long.")
            .arg(inThousands(shownLength(kLeastVelocity)),
                 withVelocityUnit(inThousands(shownLength(kGreatestVelocity)))));
  }
  return {};
}

void addMethod(ReportBuilder& builder) {
  builder.heading(ReportWords::tr("Method"));
  builder.paragraph(ReportWords::tr(
      "First breaks are the times at which the first seismic energy of a shot reaches each "
      "geophone. They were picked on the recorded traces."));
  if (builder.source.document.result->has_tomographic_info) {
    builder.paragraph(ReportWords::tr(
        "They were inverted by travel-time tomography. The ground beneath the line is divided into "
        "square cells of constant velocity, which follow the surface. From each shot the fastest "
        "paths to all geophones are searched for in the network of nodes on the sides of the "
        "cells; they are the rays. The differences between measured and computed times are "
        "distributed along the rays and correct the slowness of the cells that they cross, several "
        "times over on the same rays, within the limits of velocity. The corrected section is "
        "smoothed, and new rays are traced through it: that is one external iteration."));
    builder.paragraph(ReportWords::tr(
        "The misfit is the difference between computed and measured times. The computed times are "
        "those along fresh rays through the section as it is drawn. RMS is the root mean square of "
        "the misfit, in milliseconds or relative to the measured times in percent. The information "
        "density tells how completely rays cross the surroundings of a cell; where it is low, "
        "velocities are poorly supported by the data, and below the lowest rays the section is not "
        "drawn. Velocities that decrease with depth and thin layers may remain hidden from first "
        "arrivals."));
  }
  if (isBuilt(builder) && builder.source.interpretation->refractData.isFitted()) {
    builder.paragraph(ReportWords::tr(
        "First breaks were assigned to layers, and velocities and depths of the refractors were "
        "fitted to all of them at once: so that the direct and refracted times computed through "
        "the layers, which may change along the line, are those of the picks."));
  } else if (isBuilt(builder)) {
    builder.paragraph(ReportWords::tr(
        "The refractors were interpreted by the generalised reciprocal method. First breaks "
        "were assigned to layers, and the arrivals of each refractor from both ends of the "
        "line were completed by shifted arrivals of the other shots. The velocity-analysis "
        "function gives the velocity of the refractor, the time-depth function its depth "
        "beneath each geophone."));
  }
}

}  // namespace talvesk::report
