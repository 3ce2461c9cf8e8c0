#include "refraction/methods/LayerMethods.h"

#include "base/Console.h"
#include "numerics/Medians.h"
#include "refraction/Branches.h"
#include "refraction/BuildProfiles.h"
#include "refraction/PlausibleResults.h"
#include "refraction/methods/RefractorReading.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

std::vector<Point2D> receiversOf(const std::vector<ShotArrivals>& shots) {
  std::vector<Point2D> receivers;
  for (const ShotArrivals& shot : shots) {
    std::copy_if(shot.receivers.begin(), shot.receivers.end(), std::back_inserter(receivers),
                 [](const Point2D& at) { return isFinite(at); });
  }
  keepFirstOfEachX(receivers);
  return receivers;
}

MethodLayer emptyLayer(std::uint32_t number, std::size_t n) {
  MethodLayer layer;
  layer.layer = number;
  layer.depth.assign(n, kUnknown);
  layer.velocity.assign(n, kUnknown);
  layer.depthSupport.assign(n, Support::kPicks);
  layer.velocitySupport.assign(n, Support::kPicks);
  return layer;
}

/// The prescribed profile at the receivers of the line.
void takeReciprocal(const LayerPicks& picks, MethodResult& result) {
  Interpretation work = picks.interpretation;
  const ProfileOutcome outcome = buildProfiles(picks.shots, work);
  for (const RefractionWarning& warning : outcome.warnings) {
    result.remarks.emplace_back(warning.text());
  }
  if (!outcome.built) return;
  for (std::size_t i = 0; i < work.refractData.cData.size(); ++i) {
    const computedData& data = work.refractData.cData[i];
    const auto number = static_cast<std::uint32_t>(i) + 2;
    const RefractorSupport support = supportOf(picks.shots, work, number);
    MethodLayer layer = emptyLayer(number, result.receivers.size());
    for (std::size_t j = 0, k = 0; j < data.x.size(); ++j) {
      while (result.receivers[k].x < data.x[j]) ++k;
      layer.depth[k] = data.depth[j];
      layer.velocity[k] = data.velocity[j];
      layer.depthSupport[k] = support.depth[j];
      layer.velocitySupport[k] = support.velocity[j];
    }
    result.layers.push_back(std::move(layer));
  }
}

using Reader = RefractorReading (*)(const LineView& line, std::uint32_t refractor);

Reader readerOf(LayerMethod method) {
  switch (method) {
    case LayerMethod::kReciprocal:
      break;
    case LayerMethod::kDelayTimes:
      return readDelayTimes;
    case LayerMethod::kIntercept:
      return readIntercepts;
    case LayerMethod::kPlusMinus:
      return readPlusMinus;
  }
  return nullptr;
}

/// Leaves out what cannot be, with a remark.
void leaveOut(double length, MethodLayer& layer, std::vector<Message>& remarks) {
  const auto known = [](const std::vector<double>& values) {
    return std::count_if(values.begin(), values.end(), [](double v) { return !std::isnan(v); });
  };
  const auto before = known(layer.velocity);
  leaveOutVelocities(layer.velocity);
  const auto left = before - known(layer.velocity);
  const auto deep = leaveOutDepths(layer.depth, length);
  for (std::size_t j = 0; j < layer.depth.size(); ++j) {
    if (std::isnan(layer.velocity[j])) layer.depth[j] = kUnknown;
  }
  if (left > 0) {
    remarks.push_back(
        Message::tr("Layer %1: no velocity and no depth at %2 receivers, where the velocity comes "
                    "out outside %3 to %4.")
            .arg(layer.layer)
            .arg(left)
            .arg(Message::velocity(kLeastVelocity))
            .arg(Message::velocity(kGreatestVelocity)));
  }
  if (deep > 0) {
    remarks.push_back(Message::tr("Layer %1: no depth at %2 receivers, where it comes out deeper "
                                  "than the line is long.")
                          .arg(layer.layer)
                          .arg(deep));
  }
}

/// A wave that went down and up again took some time for it.
void leaveOutDelays(std::uint32_t refractor, std::vector<double>& delays,
                    std::vector<Message>& remarks) {
  const auto left = std::count_if(delays.begin(), delays.end(), [](double d) { return d <= 0.0; });
  if (left == 0) return;
  std::replace_if(
      delays.begin(), delays.end(), [](double d) { return d <= 0.0; }, kUnknown);
  remarks.push_back(Message::tr("Layer %1: no depth at %2 receivers, where the ground above it "
                                "comes out to cost no time.")
                        .arg(refractor)
                        .arg(left));
}

void takeReadings(const LayerPicks& picks, MethodResult& result) {
  std::vector<double> x;
  for (const Point2D& receiver : result.receivers) x.push_back(receiver.x);
  const double length = lineLength(picks.shots);
  const Reader reader = readerOf(result.method);
  result.layers.reserve(2);  // the line keeps a pointer to the first
  LineView line{picks, result.receivers, medianGap(x), result.v1};
  for (std::uint32_t refractor = 2; refractor <= kLastLayer; ++refractor) {
    if (!isAssigned(picks.interpretation.ttLayer, refractor)) break;
    RefractorReading reading = reader(line, refractor);
    if (!reading.refused.empty()) {
      result.remarks.push_back(
          Message::tr("Layer %1: %2.").arg(refractor).arg(std::move(reading.refused)));
      break;
    }
    MethodLayer layer = emptyLayer(refractor, result.receivers.size());
    leaveOutDelays(refractor, reading.delays, result.remarks);
    layer.depth = depthsOf(line, reading.delays, reading.velocities);
    layer.velocity = std::move(reading.velocities);
    layer.depthSupport = std::move(reading.delaySupport);
    layer.velocitySupport = std::move(reading.velocitySupport);
    leaveOut(length, layer, result.remarks);
    result.layers.push_back(std::move(layer));
    line.upper = &result.layers.back();
  }
}

}  // namespace

MethodResult interpretBy(LayerMethod method, const LayerPicks& picks) {
  const console::Silence silence;
  MethodResult result;
  result.method = method;
  result.receivers = receiversOf(picks.shots);
  result.v1 = layerVelocity(picks.shots, picks.interpretation.ttLayer, 1);
  if (!isPlausibleVelocity(result.v1)) {
    result.v1 = kUnknown;
    if (method != LayerMethod::kReciprocal) {
      result.remarks.push_back(
          Message::tr("The first layer has no velocity, so there are no "
                      "depths."));
    }
  }
  if (method == LayerMethod::kReciprocal) {
    takeReciprocal(picks, result);
  } else if (!result.receivers.empty()) {
    takeReadings(picks, result);
  }
  return result;
}

}  // namespace talvesk
