#include "processing/DoubtfulPicks.h"

#include "model/Parameters.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "processing/PickCurve.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace talvesk {
namespace {

constexpr double kGood = 1e-3 * parameters::kGoodPick.value;  // seconds
/// Standard deviations beyond which a difference is no chance: one good pick in eighty.
constexpr double kTolerated = 2.5;
/// Of the median of magnitudes, the standard deviation of normal residuals.
constexpr double kSigmaOfMedian = 1.4826;

bool worse(const DoubtfulPick& a, const DoubtfulPick& b) {
  return std::make_tuple(-a.severity, a.shot, a.trace) <
         std::make_tuple(-b.severity, b.shot, b.trace);
}

double errorOf(const TravelTime& record, std::size_t trace) {
  const double known = record.errorOf(trace);
  return known > 0.0 ? known : kGood;
}

/// The reasons found so far, of every pick of a survey.
class Doubts {
 public:
  explicit Doubts(const TomoDocument& document) : mDocument(document) {
    for (const TravelTime& record : document.ttArray) mPicks.emplace_back(record.ttMisurati.size());
  }

  const TravelTime& record(std::size_t shot) const { return mDocument.ttArray[shot]; }

  /// What is known of a pick. \param value seconds \param tolerated seconds, above 0
  void take(std::size_t shot, std::size_t trace, std::optional<double> DoubtfulPick::*reason,
            double value, double tolerated) {
    Known& known = mPicks[shot][trace];
    known.judged = true;
    const double severity = std::fabs(value) / tolerated;
    // Several shots may have recorded one way back: what differs most counts.
    const std::optional<double>& before = known.pick.*reason;
    if (!(severity > 1.0) || (before && std::fabs(*before) >= std::fabs(value))) return;
    known.pick.*reason = value;
    known.pick.severity = std::max(known.pick.severity, severity);
  }

  PickReview review() const {
    PickReview review;
    for (std::size_t shot = 0; shot < mPicks.size(); ++shot) {
      for (std::size_t trace = 0; trace < mPicks[shot].size(); ++trace) {
        if (!hasPick(record(shot).ttMisurati[trace])) continue;
        if (!record(shot).waits(trace)) {
          ++review.settled;
          continue;
        }
        ++review.waiting;
        const Known& known = mPicks[shot][trace];
        if (!known.judged) ++review.unknown;
        if (!(known.pick.severity > 1.0)) continue;
        review.doubtful.push_back(known.pick);
        review.doubtful.back().shot = static_cast<std::int32_t>(shot);
        review.doubtful.back().trace = static_cast<std::int32_t>(trace);
      }
    }
    std::sort(review.doubtful.begin(), review.doubtful.end(), worse);
    return review;
  }

 private:
  struct Known {
    DoubtfulPick pick;
    bool judged = false;  ///< something is known of it
  };

  const TomoDocument& mDocument;
  std::vector<std::vector<Known>> mPicks;
};

void takeErrors(const TomoDocument& document, Doubts& doubts) {
  for (std::size_t shot = 0; shot < document.ttArray.size(); ++shot) {
    const TravelTime& record = document.ttArray[shot];
    for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
      const double error = record.errorOf(trace);
      if (error > 0.0) doubts.take(shot, trace, &DoubtfulPick::error, error, kGood);
    }
  }
}

/// A section that fits badly everywhere says little of any one pick.
void takeResiduals(const TomoDocument& document, Doubts& doubts) {
  if (sectionMisfitOf(document).count == 0) return;
  const std::vector<Residual> residuals = residualsOf(document);
  std::vector<double> sizes;
  for (const Residual& each : residuals) sizes.push_back(std::fabs(each.residual));
  const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
  std::nth_element(sizes.begin(), middle, sizes.end());
  const double misfit = kSigmaOfMedian * *middle;
  for (const Residual& each : residuals) {
    const double error = errorOf(doubts.record(each.record), each.receiver);
    doubts.take(each.record, each.receiver, &DoubtfulPick::residual, each.residual,
                kTolerated * std::hypot(error, misfit));
  }
}

/// The traces nearest to a place: two where it lies in the middle between them.
std::vector<std::size_t> nearestTraces(const PickCurve& curve, double x) {
  double nearest = std::numeric_limits<double>::infinity();
  for (const Point2D& p : curve.arrivals.points) nearest = std::min(nearest, std::fabs(p.x - x));
  const double rounding = 1e-6 * nearest;
  std::vector<std::size_t> traces;
  for (std::size_t i = 0; i < curve.traces.size(); ++i) {
    const double away = std::fabs(curve.arrivals.points[i].x - x);
    if (away <= nearest + rounding) traces.push_back(curve.traces[i]);
  }
  return traces;
}

double meanError(const TravelTime& record, const std::vector<std::size_t>& traces) {
  double sum = 0.0;
  for (const std::size_t trace : traces) sum += errorOf(record, trace);
  return sum / static_cast<double>(traces.size());
}

void takeReciprocals(const TomoDocument& document, Doubts& doubts) {
  std::vector<PickCurve> curves;
  std::vector<ArrivalCurve> arrivals;
  for (const TravelTime& record : document.ttArray) {
    curves.push_back(pickCurveOf(document, record));
    arrivals.push_back(curves.back().arrivals);
  }
  for (const ReciprocalPair& pair : Reciprocity(arrivals).pairs()) {
    const double sources[] = {arrivals[pair.first].source, arrivals[pair.second].source};
    const std::vector<std::size_t> there = nearestTraces(curves[pair.first], sources[1]);
    const std::vector<std::size_t> back = nearestTraces(curves[pair.second], sources[0]);
    const double tolerated = kTolerated * std::hypot(meanError(doubts.record(pair.first), there),
                                                     meanError(doubts.record(pair.second), back));
    const double later = pair.back - pair.there;
    for (const std::size_t trace : there) {
      doubts.take(pair.first, trace, &DoubtfulPick::reciprocal, later, tolerated);
    }
    for (const std::size_t trace : back) {
      doubts.take(pair.second, trace, &DoubtfulPick::reciprocal, -later, tolerated);
    }
  }
}

}  // namespace

PickReview reviewPicks(const TomoDocument& document) {
  Doubts doubts(document);
  takeErrors(document, doubts);
  takeResiduals(document, doubts);
  takeReciprocals(document, doubts);
  return doubts.review();
}

ReviewStep stepThrough(const std::vector<DoubtfulPick>& picks, const DoubtfulPick* from,
                       bool forward) {
  const std::size_t last = picks.size() - 1;
  if (from == nullptr) return {forward ? 0 : last, false};
  if (forward) {
    const auto next = std::upper_bound(picks.begin(), picks.end(), *from, worse);
    if (next == picks.end()) return {0, true};
    return {static_cast<std::size_t>(next - picks.begin()), false};
  }
  const auto place = std::lower_bound(picks.begin(), picks.end(), *from, worse);
  if (place == picks.begin()) return {last, true};
  return {static_cast<std::size_t>(place - picks.begin()) - 1, false};
}

}  // namespace talvesk
