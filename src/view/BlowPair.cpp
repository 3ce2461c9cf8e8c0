#include "view/BlowPair.h"

#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kLongestInterval = 1e3;  ///< seconds; traces without one have the largest number
constexpr double kSameInterval = 1e-6;    ///< of it
constexpr double kWholeSample = 0.02;     ///< of a sample, by which headers round
constexpr double kMostInFront = 4.0;      ///< times the samples of both, of what is not recorded

/// Which traces of two blows belong together.
struct Match {
  std::size_t first;
  std::size_t second;
};

const TraceSet* tracesOf(const TomoDocument& document, const Blow& blow) {
  if (blow.shot >= document.ttArray.size()) return nullptr;
  return document.tracesOf(document.ttArray[blow.shot]);
}

const Samples& samplesOf(const Trace& trace, const Blow& blow, bool filtered) {
  if (blow.part == Blow::Part::kDX) return trace.samplesDX;
  if (blow.part == Blow::Part::kSX) return trace.samplesSX;
  return filtered && !trace.filtered.empty() ? trace.filtered : trace.samples;
}

bool hasSamples(const TraceSet& traces, const Blow& blow) {
  return std::any_of(traces.begin(), traces.end(),
                     [&](const Trace& trace) { return !samplesOf(trace, blow, false).empty(); });
}

bool hasInterval(const Trace& trace) {
  return trace.sampleInterval > 0.0 && trace.sampleInterval <= kLongestInterval;
}

/// When its first sample was taken, seconds after the shot.
double startOf(const Trace& trace) {
  return trace.delay + static_cast<double>(trace.droppedSamples) * trace.sampleInterval;
}

/// For traces of which none has a place of its own.
std::vector<Match> matchesByNumber(const std::vector<Point2D>& first,
                                   const std::vector<Point2D>& second) {
  std::vector<Match> matches;
  for (std::size_t i = 0; i < std::min(first.size(), second.size()); ++i) {
    matches.push_back({i, i});
  }
  return matches;
}

/// Whether all are at one place, as where a file says nothing of places.
bool areOneHeap(const std::vector<Point2D>& first, const std::vector<Point2D>& second,
                double tolerance) {
  if (first.empty() || second.empty()) return false;
  const double x = first.front().x;
  const auto isThere = [x](const Point2D& place) { return place.x == x; };
  return std::all_of(first.begin(), first.end(), isThere) &&
         std::all_of(second.begin(), second.end(),
                     [&](const Point2D& place) { return place.x == second.front().x; }) &&
         std::abs(second.front().x - x) <= tolerance;
}

/// Each trace of the first to the nearest of the second that is still free, the nearest first.
std::vector<Match> matchesOf(const std::vector<Point2D>& first, const std::vector<Point2D>& second,
                             double tolerance) {
  struct Near {
    double distance;
    Match match;
  };
  std::vector<std::size_t> byPlace;
  for (std::size_t j = 0; j < second.size(); ++j) {
    if (std::isfinite(second[j].x)) byPlace.push_back(j);
  }
  // Those at one place stay in the order of their numbers.
  std::stable_sort(byPlace.begin(), byPlace.end(),
                   [&](std::size_t a, std::size_t b) { return second[a].x < second[b].x; });
  std::vector<Near> near;
  for (std::size_t i = 0; i < first.size(); ++i) {
    if (!std::isfinite(first[i].x)) continue;
    auto at = std::lower_bound(byPlace.begin(), byPlace.end(), first[i].x - tolerance,
                               [&](std::size_t j, double x) { return second[j].x < x; });
    // Geophones in a heap would make this square; nobody lays out so many at one place.
    constexpr int kMostAtOnePlace = 64;
    for (int n = 0; at != byPlace.end() && n < kMostAtOnePlace; ++at, ++n) {
      const double distance = std::abs(second[*at].x - first[i].x);
      if (!(distance <= tolerance)) break;
      near.push_back({distance, {i, *at}});
    }
  }
  std::stable_sort(near.begin(), near.end(),
                   [](const Near& a, const Near& b) { return a.distance < b.distance; });
  std::vector<bool> takenFirst(first.size(), false);
  std::vector<bool> takenSecond(second.size(), false);
  std::vector<Match> matches;
  for (const Near& each : near) {
    if (takenFirst[each.match.first] || takenSecond[each.match.second]) continue;
    takenFirst[each.match.first] = takenSecond[each.match.second] = true;
    matches.push_back(each.match);
  }
  std::sort(matches.begin(), matches.end(),
            [](const Match& a, const Match& b) { return a.first < b.first; });
  return matches;
}

/// Of the samples of many traces.
struct MeanSquare {
  double sum = 0.0;
  double count = 0.0;

  /// \param samples those from the first on that count
  void add(const std::vector<double>& values, double samples) {
    for (std::size_t k = 0; k < values.size() && static_cast<double>(k) < samples; ++k) {
      if (!std::isfinite(values[k])) continue;
      sum += values[k] * values[k];
      count += 1.0;
    }
  }
  double root() const { return std::sqrt(sum / count); }
};

/// Lays the traces out, one pair after the other.
class Overlay {
 public:
  Overlay(const TomoDocument& document, const BlowPairOptions& options, BlowPair& pair)
      : mDocument(document),
        mOptions(options),
        mPair(pair),
        mFirst(document.ttArray[pair.first.shot]),
        mSecond(document.ttArray[pair.second.shot]),
        mFirstTraces(*document.tracesOf(mFirst)),
        mSecondTraces(*document.tracesOf(mSecond)) {}

  Status make() {
    const std::vector<Point2D> first = placesOf(mFirst, mFirstTraces);
    const std::vector<Point2D> second = placesOf(mSecond, mSecondTraces);
    const bool oneHeap = areOneHeap(first, second, mOptions.tolerance);
    std::vector<Match> matches =
        oneHeap ? matchesByNumber(first, second) : matchesOf(first, second, mOptions.tolerance);
    mPair.unmatchedFirst = first.size() - matches.size();
    mPair.unmatchedSecond = second.size() - matches.size();
    leaveOutKilled(matches);
    leaveOutTooFarInTime(matches);
    if (matches.empty()) return Status::failure(whyNothing());
    mPair.matched = matches.size();
    mPair.shotsApart = std::hypot(mSecond.shotPos2d.x - mFirst.shotPos2d.x,
                                  mSecond.shotPos2d.z - mFirst.shotPos2d.z);
    mPair.spacing = spacingOf(first);
    mPair.withoutPlaces = oneHeap && matches.size() > 1;
    layOut(matches, first);
    measure();
    combine();
    install();
    return {};
  }

 private:
  std::vector<Point2D> placesOf(const TravelTime& record, const TraceSet& traces) const {
    std::vector<Point2D> places = mDocument.receiversOf(record);
    for (std::size_t i = places.size(); i < traces.size(); ++i) {
      places.push_back(traces[i].receiverPosition);
    }
    places.resize(traces.size());
    return places;
  }

  bool isKilled(const TravelTime& record, std::size_t trace) const {
    const auto set = static_cast<std::size_t>(record.traceSetID);
    return mendOf(mendsOf(mDocument.recordings->mends, set), trace).killed;
  }

  void leaveOutKilled(std::vector<Match>& matches) {
    const auto gone = [this](const Match& match) {
      const Trace& a = mFirstTraces[match.first];
      const Trace& b = mSecondTraces[match.second];
      return isKilled(mFirst, match.first) || isKilled(mSecond, match.second) || !hasInterval(a) ||
             !hasInterval(b) || countOf(a, mPair.first) == 0.0 || countOf(b, mPair.second) == 0.0;
    };
    mPair.killed = leaveOut(matches, gone);
  }

  double countOf(const Trace& trace, const Blow& blow) const {
    return static_cast<double>(samplesOf(trace, blow, mOptions.filtered).size());
  }

  template <typename Gone>
  static std::size_t leaveOut(std::vector<Match>& matches, Gone gone) {
    const auto end = std::remove_if(matches.begin(), matches.end(), gone);
    const auto count = static_cast<std::size_t>(matches.end() - end);
    matches.erase(end, matches.end());
    return count;
  }

  /// Delays are what headers claim. Records that never meet have nothing to be compared, and what
  /// comes before the second would be as long as somebody likes.
  void leaveOutTooFarInTime(std::vector<Match>& matches) {
    mPair.tooFarInTime = leaveOut(matches, [this](const Match& match) {
      const Trace& a = mFirstTraces[match.first];
      const Trace& b = mSecondTraces[match.second];
      const double countA = countOf(a, mPair.first);
      const double countB = countOf(b, mPair.second);
      const double later = startOf(b) - startOf(a);
      const bool meet = later < countA * a.sampleInterval && -later < countB * b.sampleInterval;
      return !meet || later / b.sampleInterval > kMostInFront * (countA + countB);
    });
  }

  Message whyNothing() const {
    const Message why =
        mPair.tooFarInTime > 0
            ? Message::tr(
                  "the records of shot %1 and shot %2 begin too far apart in time to be "
                  "laid over each other; look at the delays in their headers")
            : Message::tr(
                  "no geophones of shot %1 and shot %2 that can be compared are at one "
                  "place");
    return Message(why).arg(mPair.first.shot + 1).arg(mPair.second.shot + 1);
  }

  /// Usual distance between neighbours; 0 where all are at one place.
  static double spacingOf(const std::vector<Point2D>& places) {
    std::vector<double> xs;
    for (const Point2D& place : places) {
      if (std::isfinite(place.x)) xs.push_back(place.x);
    }
    std::sort(xs.begin(), xs.end());
    return xs.empty() || xs.front() == xs.back() ? 0.0 : medianGap(xs);
  }

  /// Samples of the second that its record begins later, positive, or earlier.
  static double shiftOf(const Trace& first, const Trace& second) {
    return (startOf(second) - startOf(first)) / second.sampleInterval;
  }

  double pickOf(const TravelTime& record, std::size_t trace, double later) const {
    const bool picked = trace < record.ttMisurati.size() && hasPick(record.ttMisurati[trace]);
    const double time = picked ? record.ttMisurati[trace] + later : kUnpicked;
    return time > 0.0 ? time : kUnpicked;
  }

  void layOut(const std::vector<Match>& matches, const std::vector<Point2D>& places) {
    mPair.secondLater = startOf(mSecondTraces[matches.front().second]) -
                        startOf(mFirstTraces[matches.front().first]);
    for (const Match& match : matches) {
      const Trace& a = mFirstTraces[match.first];
      const Trace& b = mSecondTraces[match.second];
      mPlaces.push_back(places[match.first]);
      const Samples& first = samplesOf(a, mPair.first, mOptions.filtered);
      mA.emplace_back(first.begin(), first.end());
      mB.push_back(moved(samplesOf(b, mPair.second, mOptions.filtered), shiftOf(a, b)));
      mPicksA.push_back(pickOf(mFirst, match.first, 0.0));
      mPicksB.push_back(pickOf(mSecond, match.second, startOf(b) - startOf(a)));
      mErrorsA.push_back(mFirst.errorOf(match.first));
      mErrorsB.push_back(mSecond.errorOf(match.second));
      mTracesA.push_back(a);
      mTracesB.push_back(b);
    }
  }

  /// By the nearest whole sample; what was not recorded is not a number.
  static std::vector<double> moved(const Samples& samples, double shift) {
    const double whole = std::round(shift);
    std::vector<double> result;
    if (whole > 0.0) {
      result.assign(static_cast<std::size_t>(whole), std::numeric_limits<double>::quiet_NaN());
      result.insert(result.end(), samples.begin(), samples.end());
    } else {
      const auto dropped =
          static_cast<std::size_t>(std::min(-whole, static_cast<double>(samples.size())));
      result.assign(samples.begin() + static_cast<std::ptrdiff_t>(dropped), samples.end());
    }
    return result;
  }

  /// How strong the second is, and makes it as strong as the first where that is wanted.
  void measure() {
    MeanSquare a;
    MeanSquare b;
    for (std::size_t i = 0; i < mA.size(); ++i) {
      const double stepA = mTracesA[i].sampleInterval;
      const double stepB = mTracesB[i].sampleInterval;
      const double common = std::min(stepA * static_cast<double>(mA[i].size()),
                                     stepB * static_cast<double>(mB[i].size()));
      a.add(mA[i], common / stepA - 0.5);  // a last sample more or less is no matter of rounding
      b.add(mB[i], common / stepB - 0.5);
    }
    const double ratio = b.root() / a.root();
    mPair.strength = std::isfinite(ratio) && ratio > 0.0 ? ratio : 1.0;
    mPair.factor = mOptions.balanced ? 1.0 / mPair.strength : 1.0;
    if (mPair.factor == 1.0) return;
    for (std::vector<double>& trace : mB) {
      for (double& sample : trace) sample *= mPair.factor;
    }
  }

  Message whyNoSum() const {
    for (std::size_t i = 0; i < mA.size(); ++i) {
      const Trace& a = mTracesA[i];
      const Trace& b = mTracesB[i];
      if (std::abs(b.sampleInterval - a.sampleInterval) > kSameInterval * a.sampleInterval) {
        return Message::tr("no difference and no sum: the samples are %1 ms and %2 ms apart")
            .arg(1e3 * a.sampleInterval)
            .arg(1e3 * b.sampleInterval);
      }
      const double shift = shiftOf(a, b);
      if (std::abs(shift - std::round(shift)) > kWholeSample) {
        return Message::tr(
                   "no difference and no sum: the records begin %1 samples apart, which is "
                   "no whole number")
            .arg(shift);
      }
    }
    return {};
  }

  void combine() {
    mPair.noSum = whyNoSum();
    if (!mPair.hasSum()) return;
    for (std::size_t i = 0; i < mA.size(); ++i) {
      const std::size_t end = std::min(mA[i].size(), mB[i].size());
      std::vector<double> difference(end, 0.0);
      std::vector<double> sum(end, 0.0);
      std::size_t zeros = 0;
      for (std::size_t k = 0; k < end; ++k) {
        if (!std::isfinite(mB[i][k])) {
          ++zeros;  // in front only: samples of recordings are finite
          continue;
        }
        difference[k] = mA[i][k] - mB[i][k];
        sum[k] = mA[i][k] + mB[i][k];
      }
      mPair.zerosAtStart = std::max(mPair.zerosAtStart, zeros);
      mPair.cutAtEnd = std::max(mPair.cutAtEnd, mA[i].size() - end);
      mDifference.push_back(std::move(difference));
      mSum.push_back(std::move(sum));
    }
  }

  void add(const std::vector<Trace>& headers, std::vector<std::vector<double>>& samples,
           const TravelTime& source, const std::vector<double>* picks,
           const std::vector<double>* errors) {
    TraceSet set(samples.size());
    TravelTime record;
    record.shotPos2d = source.shotPos2d;
    record.traceSetID = static_cast<std::int32_t>(mPair.document.recordings->traceSets.size());
    record.ttMisurati.edit().assign(samples.size(), kUnpicked);
    record.ttCalcolati.edit().assign(samples.size(), kNoTime);
    for (std::size_t i = 0; i < samples.size(); ++i) {
      set[i].waveKind = Trace::kFromFile;
      set[i].samples = std::move(samples[i]);
      set[i].sampleInterval = headers[i].sampleInterval;
      set[i].sourcePosition = source.shotPos2d;
      set[i].receiverPosition = mPlaces[i];
      // Samples that were taken off the front are gone: what is left begins there.
      set[i].delay = std::min(startOf(mTracesA[i]), 0.0);
      if (picks == nullptr) continue;
      record.ttMisurati.edit()[i] = (*picks)[i];
      if ((*picks)[i] != kUnpicked) record.setError(i, (*errors)[i]);
    }
    mPair.document.recordings.edit().traceSets.push_back(std::move(set));
    mPair.document.ttArray.edit().push_back(std::move(record));
  }

  void install() {
    mPair.document.line.edit().goephonesStringSet = {mPlaces};
    add(mTracesA, mA, mFirst, &mPicksA, &mErrorsA);
    add(mTracesB, mB, mSecond, &mPicksB, &mErrorsB);
    if (!mPair.hasSum()) return;
    add(mTracesA, mDifference, mFirst, nullptr, nullptr);
    add(mTracesA, mSum, mFirst, nullptr, nullptr);
  }

  const TomoDocument& mDocument;
  const BlowPairOptions& mOptions;
  BlowPair& mPair;
  const TravelTime& mFirst;
  const TravelTime& mSecond;
  const TraceSet& mFirstTraces;
  const TraceSet& mSecondTraces;
  std::vector<Point2D> mPlaces;
  std::vector<Trace> mTracesA;  ///< as recorded; their samples are shared
  std::vector<Trace> mTracesB;
  std::vector<std::vector<double>> mA;
  std::vector<std::vector<double>> mB;
  std::vector<std::vector<double>> mDifference;
  std::vector<std::vector<double>> mSum;
  std::vector<double> mPicksA;
  std::vector<double> mPicksB;
  std::vector<double> mErrorsA;
  std::vector<double> mErrorsB;
};

}  // namespace

std::vector<Blow> blowsOf(const TomoDocument& document) {
  std::vector<Blow> blows;
  for (std::size_t shot = 0; shot < document.ttArray.size(); ++shot) {
    const TraceSet* traces = document.tracesOf(document.ttArray[shot]);
    if (traces == nullptr) continue;
    const Blow dx{shot, Blow::Part::kDX};
    const Blow sx{shot, Blow::Part::kSX};
    if (hasSamples(*traces, dx) && hasSamples(*traces, sx)) {
      blows.insert(blows.end(), {dx, sx});
    } else if (hasSamples(*traces, {shot, Blow::Part::kWhole})) {
      blows.push_back({shot, Blow::Part::kWhole});
    }
  }
  return blows;
}

std::optional<Blow> counterpartOf(const TomoDocument& document, const Blow& blow) {
  std::optional<Blow> best;
  double nearest = std::numeric_limits<double>::infinity();
  if (blow.shot >= document.ttArray.size()) return best;
  const Point2D at = document.ttArray[blow.shot].shotPos2d;
  const std::vector<Blow> blows = blowsOf(document);
  // From the one after this on, and round: of repeats at one place the next is meant.
  const auto own = std::find(blows.begin(), blows.end(), blow);
  const auto from =
      own == blows.end() ? std::size_t{0} : static_cast<std::size_t>(own - blows.begin());
  for (std::size_t step = 0; step < blows.size(); ++step) {
    const Blow& other = blows[(from + step) % blows.size()];
    if (other == blow) continue;
    if (other.shot == blow.shot) return other;
    if (other.part != blow.part) continue;
    const Point2D place = document.ttArray[other.shot].shotPos2d;
    const double distance = std::hypot(place.x - at.x, place.z - at.z);
    if (!best || distance < nearest) {
      best = other;
      nearest = distance;
    }
  }
  return best;
}

Status layOver(const TomoDocument& document, const Blow& first, const Blow& second,
               const BlowPairOptions& options, BlowPair& pair) {
  for (const Blow& blow : {first, second}) {
    const TraceSet* traces = tracesOf(document, blow);
    if (traces != nullptr && hasSamples(*traces, blow)) continue;
    return Status::failure(Message::tr("shot %1 has no samples").arg(blow.shot + 1));
  }
  BlowPair made;
  made.first = first;
  made.second = second;
  Status status = Overlay(document, options, made).make();
  if (status.ok()) pair = std::move(made);
  return status;
}

}  // namespace talvesk
