#include "refraction/LayerProposal.h"

#include "model/TravelTime.h"
#include "numerics/Medians.h"
#include "refraction/Branches.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kLeastRise = 1.15;          ///< of velocity from piece to piece
constexpr std::size_t kLeastArrivals = 3;    ///< of a piece that does not start at the shot
constexpr double kNearSpacings = 3.0;        ///< from a shot within the spread
constexpr std::size_t kLeastFarDirect = 4;   ///< arrivals of a direct wave farther out
constexpr double kSharpness = 2e-4;          ///< seconds; picks are no better than that
constexpr double kRelativeSharpness = 5e-3;  ///< of the latest time
constexpr std::size_t kMostBreaks = 300;     ///< places tried for a break, for the time it takes
constexpr double kImpossible = std::numeric_limits<double>::infinity();

/// A straight piece and how badly it fits.
struct Line {
  double slope = 0.0;  ///< s/m
  double intercept = 0.0;
  double misfit = kImpossible;  ///< sum of squares, s2
};

/// Fits lines to any part of a branch in constant time, by sums from its beginning.
class PieceFitter {
 public:
  PieceFitter(const std::vector<double>& offsets, const std::vector<double>& times) {
    mSums.resize(offsets.size() + 1);
    for (std::size_t i = 0; i < offsets.size(); ++i) {
      const double x = offsets[i];
      const double y = times[i];
      const Sums& s = mSums[i];
      mSums[i + 1] = {s.x + x, s.y + y, s.xx + x * x, s.xy + x * y, s.yy + y * y};
    }
  }

  Line throughOrigin(std::size_t end) const {
    Line line;
    const Sums& s = mSums[end];
    if (end == 0 || !(s.xx > 0.0)) return line;
    line.slope = s.xy / s.xx;
    line.misfit = std::max(0.0, s.yy - line.slope * s.xy);
    return line;
  }

  Line between(std::size_t begin, std::size_t end) const {
    Line line;
    if (end < begin + kLeastArrivals) return line;
    const double n = static_cast<double>(end - begin);
    const Sums& a = mSums[begin];
    const Sums& b = mSums[end];
    const double mx = (b.x - a.x) / n;
    const double my = (b.y - a.y) / n;
    const double cxx = (b.xx - a.xx) - n * mx * mx;
    const double cxy = (b.xy - a.xy) - n * mx * my;
    const double cyy = (b.yy - a.yy) - n * my * my;
    if (!(cxx > 0.0)) return line;
    line.slope = cxy / cxx;
    line.intercept = my - line.slope * mx;
    line.misfit = std::max(0.0, cyy - line.slope * cxy);
    return line;
  }

 private:
  struct Sums {
    double x = 0.0;
    double y = 0.0;
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
  };
  std::vector<Sums> mSums;
};

/// Tries all ways to cut a branch into pieces and remembers the best.
class BranchCutter {
 public:
  BranchCutter(const std::vector<double>& offsets, const std::vector<double>& times)
      : mFitter(offsets, times), mArrivals(offsets.size()) {
    const double latest = times.empty() ? 0.0 : *std::max_element(times.begin(), times.end());
    mFloor = std::max(kSharpness, kRelativeSharpness * latest);
    mStep = 1 + mArrivals / kMostBreaks;
    // Few arrivals far from the shot lie on a line through it by chance only.
    const double spacing =
        mArrivals < 2 ? 0.0
                      : (offsets.back() - offsets.front()) / static_cast<double>(mArrivals - 1);
    const bool near = mArrivals > 0 && offsets.front() <= kNearSpacings * spacing;
    mLeastDirect = near ? 1 : kLeastFarDirect;
  }

  BranchSegments best(int refractors) {
    for (const bool direct : {true, false}) {
      const int most = refractors + (direct ? 1 : 0);
      for (std::size_t first = direct ? mLeastDirect : 1; first <= mArrivals; first = next(first)) {
        const Line line = direct ? mFitter.throughOrigin(first) : mFitter.between(0, first);
        if (!(line.slope > 0.0) || line.intercept < 0.0) continue;
        BranchSegments cut;
        cut.direct = direct;
        grow(cut, line, first, line.misfit, most - 1);
      }
    }
    return mBest;
  }

 private:
  /// The next place for a break; the end is always one.
  std::size_t next(std::size_t place) const {
    if (place == mArrivals) return place + 1;
    return std::min(place + mStep, mArrivals);
  }

  void grow(BranchSegments cut, const Line& last, std::size_t end, double misfit, int more) {
    if (!std::isfinite(misfit)) return;
    cut.pieces.push_back({end, 1.0 / last.slope});
    if (end == mArrivals) {
      const double cost = costOf(cut, misfit);
      if (cost < mCost) {
        mCost = cost;
        mBest = cut;
      }
      return;
    }
    if (more == 0) return;
    // The last piece that may follow has to reach the end.
    for (std::size_t to = more == 1 ? mArrivals : next(end); to <= mArrivals; to = next(to)) {
      const Line line = mFitter.between(end, to);
      if (line.slope > 0.0 && line.slope * kLeastRise <= last.slope) {
        grow(cut, line, to, misfit + line.misfit, more - 1);
      }
    }
  }

  double costOf(const BranchSegments& cut, double misfit) const {
    const double n = static_cast<double>(mArrivals);
    const double breaks = static_cast<double>(cut.pieces.size() - 1);
    const double lines = static_cast<double>(cut.pieces.size()) * 2.0 - (cut.direct ? 1.0 : 0.0);
    return n * std::log(misfit / n + mFloor * mFloor) + (lines + breaks) * std::log(n + 1.0);
  }

  PieceFitter mFitter;
  std::size_t mArrivals;
  std::size_t mStep = 1;
  std::size_t mLeastDirect = 1;
  double mFloor = kSharpness;
  double mCost = kImpossible;
  BranchSegments mBest;
};

/// The arrivals of one side of a shot, from the shot outward.
struct Arrivals {
  std::size_t shot = 0;
  std::vector<std::size_t> traces;
  std::vector<double> offsets;
  std::vector<double> times;
  BranchSegments segments;

  std::size_t refractors() const {
    return segments.pieces.size() - (segments.direct && !segments.pieces.empty() ? 1 : 0);
  }
};

Arrivals arrivalsOn(const ShotArrivals& shot, std::size_t index, Side side) {
  Arrivals arrivals;
  arrivals.shot = index;
  for (std::size_t i = 0; i < shot.times.size(); ++i) {
    if (hasPick(shot.times[i]) && shot.onSide(i, side)) arrivals.traces.push_back(i);
  }
  const auto offset = [&shot](std::size_t i) {
    return std::fabs(shot.receivers[i].x - shot.shot.x);
  };
  std::stable_sort(arrivals.traces.begin(), arrivals.traces.end(),
                   [&](std::size_t a, std::size_t b) { return offset(a) < offset(b); });
  for (const std::size_t i : arrivals.traces) {
    arrivals.offsets.push_back(offset(i));
    arrivals.times.push_back(shot.times[i]);
  }
  return arrivals;
}

void segment(std::vector<Arrivals>& branches, int refractors) {
  for (Arrivals& branch : branches) {
    branch.segments = segmentBranch(branch.offsets, branch.times, refractors);
  }
}

/// Typical velocity of a layer (1 to 3) in branches that show all layers down to it from the shot
/// on; 0 when there are none.
double typicalVelocity(const std::vector<Arrivals>& branches, std::size_t layer,
                       std::size_t refractors) {
  std::vector<double> velocities;
  for (const Arrivals& branch : branches) {
    if (!branch.segments.direct || branch.refractors() != refractors) continue;
    velocities.push_back(branch.segments.pieces[layer - 1].velocity);
  }
  return medianOf(std::move(velocities), 0.0);
}

/// A third layer is more than a bend of one curve.
bool showThirdLayer(const std::vector<Arrivals>& branches) {
  std::size_t three = 0;
  std::size_t refracted = 0;
  for (const Arrivals& branch : branches) {
    if (!branch.segments.direct || branch.refractors() == 0) continue;
    ++refracted;
    if (branch.refractors() == 2) ++three;
  }
  return three >= 2 && 3 * three >= refracted;
}

std::uint32_t nearestLayer(const std::vector<double>& typical, double velocity,
                           std::uint32_t least) {
  std::uint32_t nearest = std::max<std::uint32_t>(least, 2);
  double distance = kImpossible;
  for (std::size_t i = least - 1; i < typical.size(); ++i) {
    if (!(typical[i] > 0.0)) continue;
    const double d = std::fabs(std::log(velocity / typical[i]));
    if (d < distance) {
      distance = d;
      nearest = static_cast<std::uint32_t>(i) + 1;
    }
  }
  return std::min(nearest, static_cast<std::uint32_t>(typical.size()));
}

void mark(const Arrivals& branch, const std::vector<double>& typical,
          std::vector<std::uint32_t>& layers) {
  std::size_t begin = 0;
  std::uint32_t least = 1;
  for (std::size_t piece = 0; piece < branch.segments.pieces.size(); ++piece) {
    const BranchSegment& part = branch.segments.pieces[piece];
    const bool direct = piece == 0 && branch.segments.direct;
    const std::uint32_t layer = direct ? 1 : nearestLayer(typical, part.velocity, least);
    for (std::size_t i = begin; i < part.end; ++i) layers[branch.traces[i]] = layer;
    begin = part.end;
    least = std::min<std::uint32_t>(layer + 1, static_cast<std::uint32_t>(typical.size()));
  }
}

void markAll(const std::vector<Arrivals>& branches, std::size_t refractors,
             std::vector<layerStruct>& marks) {
  std::vector<double> typical;
  for (std::size_t layer = 1; layer <= refractors + 1; ++layer) {
    typical.push_back(typicalVelocity(branches, layer, refractors));
  }
  for (const Arrivals& branch : branches) mark(branch, typical, marks[branch.shot].layer);
}

}  // namespace

BranchSegments segmentBranch(const std::vector<double>& offsets, const std::vector<double>& times,
                             int refractors) {
  return BranchCutter(offsets, times).best(refractors);
}

std::vector<layerStruct> proposeLayers(const std::vector<ShotArrivals>& shots,
                                       const std::vector<layerStruct>& before) {
  std::vector<Arrivals> branches;
  std::vector<layerStruct> marks;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    layerStruct own;
    own.shotID = static_cast<std::uint32_t>(shot);
    const layerStruct* kept = marksOf(before, shot);
    if (kept != nullptr) own.enabled = kept->enabled;
    const std::size_t traces =
        std::max(shots[shot].times.size(), kept != nullptr ? kept->layer.size() : 0);
    own.layer.assign(traces, kNoLayer);
    own.trasla.assign(traces, 0.0);
    marks.push_back(std::move(own));
    for (const Side side : {Side::kRight, Side::kLeft}) {
      branches.push_back(arrivalsOn(shots[shot], shot, side));
    }
  }
  segment(branches, 2);
  if (showThirdLayer(branches)) {
    markAll(branches, 2, marks);
    // Without shots at both ends that show the layer in between nothing could be built: it is
    // better seen as part of the layer below.
    if (findShotPair(shots, marks, 2).complete()) return marks;
  }
  segment(branches, 1);
  markAll(branches, 1, marks);
  return marks;
}

}  // namespace talvesk
