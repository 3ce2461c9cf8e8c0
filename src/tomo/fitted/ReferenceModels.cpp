#include "tomo/fitted/ReferenceModels.h"

#include "grid/GridBuilder.h"
#include "numerics/Medians.h"
#include "numerics/RobustFit.h"
#include "tomo/fitted/GradientProfile.h"
#include "tomo/fitted/LayeredReading.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr int kCurvePoints = 100;
constexpr double kDoubt = 1.25;
constexpr double kSameSlope = 1e-6;
constexpr double kHuber = 1.345;  // robust deviations; 95 % as good as squares on clean data

/// Whole numbers.
Message speed(double value) {
  return Message::velocity(std::round(value), 1);
}

/// To a tenth of a metre, and in feet with no more digits.
Message depthText(double metres) {
  const double tenths = std::round(10.0 * metres) / 10.0;
  return Message::length(tenths, tenths < 10.0 ? 2 : tenths < 100.0 ? 3 : 4);
}

/// "4 m to 6.5 m": the depths along the line but for the tenth at either end.
Message rangeOf(std::vector<double> depths) {
  std::sort(depths.begin(), depths.end());
  const std::size_t tenth = depths.size() / 10;
  const Message least = depthText(depths[tenth]);
  const Message most = depthText(depths[depths.size() - 1 - tenth]);
  return least == most ? least : Message::tr("%1 to %2").arg(least).arg(most);
}

Message describe(const GradientProfile& profile) {
  return Message::tr("%1 at the surface, %2 where the deepest ray turns, %3 down")
      .arg(speed(profile.velocities.front()))
      .arg(speed(interpolated(profile.depths, profile.velocities, profile.deepestTurn)))
      .arg(depthText(profile.deepestTurn));
}

Message describe(const ReferenceModel& model) {
  const Message near = speed(medianOf(model.nearVelocities, 0.0));
  const ReferenceRefractor& first = model.refractors.front();
  if (model.kind == ReferenceKind::kThreeLayers) {
    const ReferenceRefractor& second = model.refractors.back();
    return Message::tr("%1, %2 from %3 down, %4 from %5 down")
        .arg(near)
        .arg(speed(first.velocity))
        .arg(rangeOf(first.depths))
        .arg(speed(second.velocity))
        .arg(rangeOf(second.depths));
  }
  if (model.kind == ReferenceKind::kOverburdenGradient) {
    return Message::tr("%1 with a gradient of %2 1/s, %3 from %4 down")
        .arg(near)
        .arg(std::round(model.gradient))
        .arg(speed(first.velocity))
        .arg(rangeOf(first.depths));
  }
  return Message::tr("%1, %2 from %3 down")
      .arg(near)
      .arg(speed(first.velocity))
      .arg(rangeOf(first.depths));
}

/// The level ground that is the usual one of the line.
TimeCurve usualCurve(const LinePicks& line, const ReferenceModel& model,
                     const std::vector<DelayTimes>& refractors) {
  const double slowness = 1.0 / medianOf(model.nearVelocities, 1.0);
  TimeBranches usual{{slowness, 0.5 * model.gradient * slowness}, {}, 0.0};
  for (const DelayTimes& refractor : refractors) {
    usual.far.push_back({2.0 * medianOf(refractor.delays, 0.0), refractor.slowness});
  }
  TimeCurve curve;
  for (int i = 0; i <= kCurvePoints; ++i) {
    curve.offsets.push_back(line.picks.back().offset * i / kCurvePoints);
    curve.times.push_back(usual.at(curve.offsets.back()));
  }
  return curve;
}

/// Where the wave of each refractor overtakes the wave before it on a line's usual curve.
double crossOver(const TimeCurve& curve, const DelayTimes& refractor) {
  const double intercept = 2.0 * medianOf(refractor.delays, 0.0);
  for (std::size_t i = 0; i < curve.offsets.size(); ++i) {
    const double time = intercept + curve.offsets[i] * refractor.slowness;
    if (time <= curve.times[i] * (1.0 + 1e-9)) return curve.offsets[i];
  }
  return curve.offsets.back();
}

/// \return squared errors that a curve gains, see LayeredReading
double addLayers(ReferenceKind kind, const LinePicks& line, const FitData& data,
                 const GridGeometry& geometry, const VelocityBounds& bounds,
                 ReferenceModels& result) {
  const std::size_t refractors = kind == ReferenceKind::kThreeLayers ? 2 : 1;
  const bool curved = kind == ReferenceKind::kOverburdenGradient;
  const LayeredReading reading =
      readLayers(line, refractors, curved ? NearShape::kCurved : NearShape::kStraight, bounds);
  if (!reading.refused.empty()) {
    result.refused.push_back(joined(nameOf(kind), reading.refused));
    return 0.0;
  }
  ReferenceModel model;
  model.kind = kind;
  model.name = nameOf(kind);
  model.positions = line.positions;
  for (const double slowness : reading.nearSlownesses)
    model.nearVelocities.push_back(1.0 / slowness);
  model.gradient = reading.gradient;
  model.curve = usualCurve(line, model, reading.refractors);
  for (std::size_t i = 0; i < refractors; ++i) {
    const DelayTimes& refractor = reading.refractors[i];
    model.refractors.push_back(
        {1.0 / refractor.slowness, crossOver(model.curve, refractor), reading.depths[i]});
  }
  model.slownesses = cellSlownesses(
      geometry, [&](double x) { return reading.column(line, x); }, bounds);
  model.times.assign(data.picks.size(), 0.0);
  for (const LinePick& pick : line.picks) model.times[pick.pick] = reading.at(line, pick);
  model.decided = reading.decided();
  model.description = describe(model);
  result.models.push_back(std::move(model));
  return reading.curveGain;
}

/// By rays two layers and an overburden gradient often fit alike, as a depth makes up for a
/// gradient; errors of the delays decide then. The waves along the surface alone do not know of
/// them.
void doubtOneOverburden(double curveGain, std::vector<ReferenceModel>& models) {
  const auto find = [&](ReferenceKind kind) {
    return std::find_if(models.begin(), models.end(),
                        [kind](const ReferenceModel& model) { return model.kind == kind; });
  };
  const auto even = find(ReferenceKind::kTwoLayers);
  const auto curved = find(ReferenceKind::kOverburdenGradient);
  if (even == models.end() || curved == models.end()) return;
  (curveGain > 0.0 ? even : curved)->doubt = kDoubt;
}

/// How many stretches of a line a curve consists of.
double slopesOf(const TimeCurve& curve) {
  double count = 0.0, before = 0.0;
  for (std::size_t i = 1; i < curve.offsets.size(); ++i) {
    const double slope =
        (curve.times[i] - curve.times[i - 1]) / (curve.offsets[i] - curve.offsets[i - 1]);
    if (i == 1 || std::fabs(slope - before) > kSameSlope * before) ++count;
    before = slope;
  }
  return count;
}

void addGradient(const LinePicks& line, const FitData& data, const GridGeometry& geometry,
                 const VelocityBounds& bounds, ReferenceModels& result) {
  const GradientProfile profile = gradientProfile(line, bounds);
  if (profile.depths.empty()) {
    result.refused.push_back(
        joined(nameOf(ReferenceKind::kGradient),
               Message::tr("it takes times that grow with offset, at three offsets or more")));
    return;
  }
  ReferenceModel model;
  model.kind = ReferenceKind::kGradient;
  model.name = nameOf(model.kind);
  model.positions = line.positions;
  model.nearVelocities.assign(line.positions.size(), profile.velocities.front());
  model.profile = {profile.depths, profile.velocities};
  model.curve = {profile.offsets, profile.times};
  const GroundColumn column = profile.column();
  model.slownesses = cellSlownesses(
      geometry, [&column](double) { return column; }, bounds);
  model.times.assign(data.picks.size(), 0.0);
  for (const LinePick& pick : line.picks) {
    model.times[pick.pick] = interpolated(profile.offsets, profile.times, pick.offset);
  }
  model.decided = slopesOf(model.curve);
  model.description = describe(profile);
  result.models.push_back(std::move(model));
}

/// Residuals over their errors.
std::vector<double> scaledResiduals(const FitData& data, const std::vector<double>& times) {
  std::vector<double> residuals;
  for (std::size_t i = 0; i < data.picks.size(); ++i) {
    residuals.push_back((data.picks[i].time - times[i]) / data.picks[i].sigma);
  }
  return residuals;
}

/// \param limit of the residuals that count by their square in the Huber mean
StartFit fitOf(const FitData& data, const ReferenceModel& model, std::vector<double> times,
               double limit) {
  StartFit fit;
  const std::vector<double> residuals = scaledResiduals(data, times);
  for (const double residual : residuals) {
    const double size = std::fabs(residual);
    fit.chi2 += size * size;
    fit.huber += size <= limit ? size * size : limit * (2.0 * size - limit);
  }
  const double count = std::max<double>(1.0, static_cast<double>(residuals.size()));
  fit.chi2 /= count;
  fit.huber /= count;
  fit.score = model.doubt * (fit.huber + model.decided * std::log(count) / count);
  fit.times = std::move(times);
  fit.known = true;
  return fit;
}

}  // namespace

std::vector<double> defaultSlownesses(const GridGeometry& geometry) {
  std::vector<double> slownesses;
  for (std::uint32_t row = 0; row < geometry.righe(); ++row) {
    slownesses.insert(slownesses.end(), geometry.col(),
                      1.0 / defaultVelocity(row * geometry.aLato()));
  }
  return slownesses;
}

Message nameOf(ReferenceKind kind) {
  switch (kind) {
    case ReferenceKind::kGradient:
      return Message::tr("Gradient");
    case ReferenceKind::kTwoLayers:
      return Message::tr("Two layers");
    case ReferenceKind::kThreeLayers:
      return Message::tr("Three layers");
    case ReferenceKind::kOverburdenGradient:
      return Message::tr("Overburden gradient");
    case ReferenceKind::kDefault:
      return Message::tr("Default model");
    case ReferenceKind::kPresent:
      return Message::tr("Present section");
    case ReferenceKind::kLayers:
      return Message::tr("Layered interpretation");
    case ReferenceKind::kFile:
      return Message::tr("Section of another project");
    case ReferenceKind::kGiven:
      break;
  }
  return {};
}

ReferenceModels referenceModels(const FitData& data, const GridGeometry& geometry,
                                const VelocityBounds& bounds) {
  ReferenceModels result;
  const LinePicks line = linePicksOf(data, geometry);
  addGradient(line, data, geometry, bounds, result);
  const auto add = [&](ReferenceKind kind) {
    return addLayers(kind, line, data, geometry, bounds, result);
  };
  add(ReferenceKind::kTwoLayers);
  add(ReferenceKind::kThreeLayers);
  doubtOneOverburden(add(ReferenceKind::kOverburdenGradient), result.models);
  return result;
}

bool rankByStart(std::vector<ReferenceModel>& models, const FitData& data, RayTracer& tracer,
                 const std::function<bool()>& goOn) {
  std::vector<std::vector<double>> times;
  // One limit for all: with limits of their own the model with the narrower one would win by what
  // its gross errors cost less.
  double limit = std::numeric_limits<double>::infinity();
  for (const ReferenceModel& model : models) {
    TracedRays traced;
    if (!tracer.trace(model.slownesses, traced, goOn)) return false;
    limit = std::min(limit, kHuber * robustScale(scaledResiduals(data, traced.times)));
    times.push_back(std::move(traced.times));
  }
  for (std::size_t i = 0; i < models.size(); ++i) {
    models[i].fit = fitOf(data, models[i], std::move(times[i]), limit);
  }
  std::stable_sort(
      models.begin(), models.end(),
      [](const ReferenceModel& a, const ReferenceModel& b) { return a.fit.score < b.fit.score; });
  return true;
}

}  // namespace talvesk
