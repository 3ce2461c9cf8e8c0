#include "refraction/BuildProfiles.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "refraction/Branches.h"
#include "refraction/Phantoming.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/PlausibleResults.h"
#include "refraction/Profile.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <ostream>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

using Kind = RefractionWarning::Kind;
using Warnings = std::vector<RefractionWarning>;

constexpr std::uint32_t kFirstRefractor = 2;
constexpr std::uint32_t kSecondRefractor = 3;
constexpr std::size_t kSkippedEnds = 0;
constexpr double kRounding = 1e-9;
constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

struct Curves {
  ShotPair pair;
  phantom forward;
  phantom reverse;
  std::vector<Point2D> receivers;  ///< that tV and tG are evaluated at
};

/// The receivers of the forward curve that the reverse one reaches, too: the method reads both at
/// every receiver, and beyond its last picks a spline is a cubic that soon leaves the ground.
std::vector<Point2D> receiversOfBoth(const Curves& curves) {
  const double first = curves.reverse.points.front().x;
  const double last = curves.reverse.points.back().x;
  std::vector<Point2D> receivers;
  std::copy_if(curves.forward.points.begin(), curves.forward.points.end(),
               std::back_inserter(receivers),
               [first, last](const Point2D& at) { return at.x >= first && at.x <= last; });
  return receivers;
}

/// Forward and reverse curve of a refractor; false when there are none, with the reason.
bool makeCurves(const std::vector<ShotArrivals>& shots, std::uint32_t refractor,
                std::vector<layerStruct>& marks, Curves& curves, Warnings& warnings) {
  curves.pair = findShotPair(shots, marks, refractor);
  if (!curves.pair.complete()) {
    const bool first = refractor == kFirstRefractor;
    warnings.push_back({first ? Kind::kNoShotPair : Kind::kNoShotPairBelow, refractor});
    return false;
  }
  if (refractor == kSecondRefractor) console::log("Phantom 3");
  CurveOutcome forward = buildCurve(shots, curves.pair.a, refractor, Side::kRight, marks);
  CurveOutcome reverse = buildCurve(shots, curves.pair.b, refractor, Side::kLeft, marks);
  const bool usable = forward.usable() && reverse.usable();
  if (!forward.usable()) warnings.push_back({Kind::kFewForward, refractor, forward.ownPicks});
  if (!reverse.usable()) warnings.push_back({Kind::kFewReverse, refractor, reverse.ownPicks});
  curves.forward = std::move(forward.curve);
  curves.reverse = std::move(reverse.curve);
  if (!usable) return false;
  curves.receivers = receiversOfBoth(curves);
  if (curves.receivers.size() >= 2) return true;
  warnings.push_back({Kind::kFewCommon, refractor, curves.receivers.size()});
  return false;
}

/// Whether an XY is beyond the family, and allowed all the same.
bool isWide(double xy, const std::vector<double>& x) {
  return !isOfFamily(xy) && std::fabs(xy) <= widestXY(x) * (1.0 + kRounding);
}

/// tV and tG of a refractor from its curves.
void interpretRefractor(const std::vector<ShotArrivals>& shots, std::uint32_t refractor,
                        Curves& curves, computedData& result) {
  const double xA = shots[static_cast<std::size_t>(curves.pair.a)].shot.x;
  const double xB = shots[static_cast<std::size_t>(curves.pair.b)].shot.x;
  const double tAB = reciprocalTime(curves.forward, curves.reverse, xA, xB);
  if (refractor == kSecondRefractor) {
    console::log(" TAB 3 ");
    console::log("TAB3 : " + formatDouble(tAB));
  }
  for (const Point2D& point : curves.receivers) {
    result.x.push_back(point.x);
    result.elevation.push_back(point.z);
  }
  const bool wide = isWide(result.chosenXY, result.x);
  const std::size_t chosen = indexOfXY(result.chosenXY);
  if (!wide) result.chosenXY = kXYFamily[chosen];
  const double xy = result.chosenXY;
  result.tVs = buildTV(curves.forward, curves.reverse, result.x, tAB);
  result.tV =
      wide ? tVAt(xy, curves.forward, curves.reverse, result.x, tAB) : memberOf(result.tVs, chosen);
  result.tGs = buildTG(curves.forward, curves.reverse, result.x, tAB, result.tV);
  result.tG = wide ? tGAt(xy, curves.forward, curves.reverse, result.x, tAB, result.tV)
                   : memberOf(result.tGs, chosen);
}

void findVelocity(std::uint32_t refractor, computedData& result, Warnings& warnings) {
  RefractorVelocity found = refractorVelocity(result.x, result.tV);
  result.velocity = std::move(found.velocity);
  if (found.fallback == VelocityFallback::kNotPositive) {
    warnings.push_back({Kind::kVelocityNegative, refractor});
  } else if (found.fallback == VelocityFallback::kStrongVariation) {
    warnings.push_back({Kind::kStrongVariation, refractor});
  }
  if (const std::size_t bad = leaveOutVelocities(result.velocity); bad > 0) {
    warnings.push_back({Kind::kBadVelocity, refractor, bad, result.velocity.size()});
  }
}

/// Tells where depths are unknown although velocity and layer above are known, and where they are
/// out of the question.
/// \param above of the layer above, per receiver; not a number where it is unknown
void checkDepths(const std::vector<double>& above, double length, std::uint32_t refractor,
                 computedData& result, Warnings& warnings) {
  const std::size_t n = result.depth.size();
  std::size_t slow = 0;
  for (std::size_t j = 0; j < n; ++j) {
    const bool given = std::isfinite(result.velocity[j]) && std::isfinite(above[j]);
    if (given && !std::isfinite(result.depth[j])) ++slow;
  }
  if (slow > 0) warnings.push_back({Kind::kSlowRefractor, refractor, slow, n});
  if (const std::size_t deep = leaveOutDepths(result.depth, length); deep > 0) {
    warnings.push_back({Kind::kTooDeep, refractor, deep, n});
  }
}

/// \param v1 m/s; without it there are no depths
void findFirstDepth(double v1, double length, computedData& result, Warnings& warnings) {
  RefractorDepth found = depthFirstRefractor(result.tG, result.velocity, v1, kSkippedEnds);
  result.depth = std::move(found.depth);
  if (found.tGNotPositive) warnings.push_back({Kind::kTgNegative, kFirstRefractor});
  checkDepths(std::vector<double>(result.depth.size(), v1), length, kFirstRefractor, result,
              warnings);
}

void findSecondDepth(double v1, double length, const computedData& upper, computedData& result,
                     Warnings& warnings) {
  std::vector<double> z1;
  std::vector<double> v2;
  std::size_t outside = 0;
  for (const double x : result.x) {
    const auto depth = valueAt(upper, upper.depth, x);
    z1.push_back(depth.value_or(kUnknown));
    v2.push_back(valueAt(upper, upper.velocity, x).value_or(kUnknown));
    if (!depth) ++outside;
  }
  result.depth = depthSecondRefractor(result.tG, z1, v2, result.velocity, v1, kSkippedEnds);
  if (outside > 0) {
    warnings.push_back({Kind::kOutsideUpper, kSecondRefractor, outside, result.x.size()});
  }
  checkDepths(z1, length, kSecondRefractor, result, warnings);
}

/// The velocity of the first layer; not a number, with the reason, when there is none.
double firstVelocity(const std::vector<ShotArrivals>& shots, const std::vector<layerStruct>& marks,
                     Warnings& warnings) {
  const double v1 = layerVelocity(shots, marks, 1);
  if (isPlausibleVelocity(v1)) return v1;
  const Kind why = std::isnan(v1) ? Kind::kNoFirstLayer : Kind::kBadFirstLayer;
  warnings.push_back({why, 1});
  return kUnknown;
}

/// What is kept of a refractor when it is built anew.
computedData rebuilt(const processingData& results, std::size_t index) {
  computedData fresh;
  if (index < results.cData.size()) fresh.chosenXY = results.cData[index].chosenXY;
  return fresh;
}

}  // namespace

ProfileOutcome buildProfiles(const std::vector<ShotArrivals>& shots,
                             Interpretation& interpretation) {
  ProfileOutcome outcome;
  Interpretation work = interpretation;
  forgetResults(work);
  processingData& results = work.refractData;
  const auto interpret = [&](std::uint32_t refractor) {
    Curves curves;
    computedData result = rebuilt(interpretation.refractData, refractor - kFirstRefractor);
    if (!makeCurves(shots, refractor, work.ttLayer, curves, outcome.warnings)) return false;
    interpretRefractor(shots, refractor, curves, result);
    work.phnt_A.push_back(std::move(curves.forward));
    work.phnt_R.push_back(std::move(curves.reverse));
    results.cData.push_back(std::move(result));
    return true;
  };

  if (!interpret(kFirstRefractor)) return outcome;
  const double length = lineLength(shots);
  results.v1 = firstVelocity(shots, work.ttLayer, outcome.warnings);
  findVelocity(kFirstRefractor, results.cData[0], outcome.warnings);
  findFirstDepth(results.v1, length, results.cData[0], outcome.warnings);
  results.v2 = results.cData[0].velocity;
  if (isAssigned(work.ttLayer, kSecondRefractor) && interpret(kSecondRefractor)) {
    findVelocity(kSecondRefractor, results.cData[1], outcome.warnings);
    findSecondDepth(results.v1, length, results.cData[0], results.cData[1], outcome.warnings);
    results.v3 = results.cData[1].velocity;
  }
  console::out() << profileTable(results) << std::flush;
  results.picks = fingerprintOf(shots);
  outcome.built = true;
  interpretation = std::move(work);
  return outcome;
}

std::vector<RefractionWarning> buildPhantoms(const std::vector<ShotArrivals>& shots,
                                             Interpretation& interpretation) {
  Warnings warnings;
  std::vector<phantom> forward;
  std::vector<phantom> reverse;
  clearShifts(interpretation.ttLayer);
  for (const std::uint32_t refractor : {kFirstRefractor, kSecondRefractor}) {
    if (refractor == kSecondRefractor && !isAssigned(interpretation.ttLayer, refractor)) break;
    Curves curves;
    if (!makeCurves(shots, refractor, interpretation.ttLayer, curves, warnings)) break;
    forward.push_back(std::move(curves.forward));
    reverse.push_back(std::move(curves.reverse));
  }
  interpretation.phnt_A = std::move(forward);
  interpretation.phnt_R = std::move(reverse);
  return warnings;
}

void chooseXY(Interpretation& interpretation, std::uint32_t refractor, double xy) {
  if (refractor < kFirstRefractor || refractor > kSecondRefractor) return;
  auto& data = interpretation.refractData.cData;
  const std::size_t index = refractor - kFirstRefractor;
  if (data.size() <= index) data.resize(index + 1);
  data[index].chosenXY = std::isfinite(xy) ? xy : kXYFamily[indexOfXY(xy)];
}

}  // namespace talvesk
