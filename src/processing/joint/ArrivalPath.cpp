#include "processing/joint/ArrivalPath.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numeric>
#include <utility>

namespace talvesk {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kMostOnsets = 40;    ///< of a channel
constexpr std::size_t kMostSlopes = 4;     ///< paths kept per onset
constexpr std::size_t kMostPassing = 60;   ///< paths kept that pass a channel by
constexpr double kLeastShare = 0.05;       ///< of the reference likelihood
constexpr double kLargestGain = 20.0;      ///< of an onset
constexpr double kLikenessGain = 5.0;      ///< of equal waveforms
constexpr double kPassingGain = 1.0;       ///< of a channel that is passed by
constexpr double kLaterLoss = 3.0;         ///< per millisecond
constexpr double kEarlierLoss = 0.4;       ///< per millisecond
constexpr double kMostBend = 20.0;         ///< milliseconds that count
constexpr double kStepOfBends = 5.0;       ///< milliseconds; longer steps bend in proportion
constexpr double kClearLikelihood = 15.0;  ///< beyond it no onset counts for more
constexpr double kEarlierShare = 0.8;      ///< of what an earlier onset gains
constexpr double kApart = 12.0;            ///< ms: what is nearer is one onset
constexpr double kReciprocalSigma = 2.0;   ///< milliseconds
constexpr double kMostReciprocal = 15.0;
constexpr double kMostOffGuide = 10.0;  ///< what an onset at the edge of a guide's reach loses
constexpr double kLikenessFrom = -4.0;  ///< milliseconds about the onsets
constexpr double kLikenessTo = 15.0;
constexpr double kLikenessStep = 0.5;

/// Milliseconds of the constants above, which stretch with the arrivals' period.
struct Clock {
  double second;  ///< how many are in one
  explicit Clock(double stretch) : second(1e3 / stretch) {}
  double fromSeconds(double seconds) const { return seconds * second; }
  double toSeconds(double time) const { return time / second; }
};

struct Onset {
  double time;  ///< after the shot, of the clock
  double gain;
};

struct Station {
  std::size_t channel;
  double offset;  ///< metres, at least 0
  std::vector<Onset> onsets;
  bool fixed = false;
};

/// A path up to some station.
struct Path {
  double score = 0.0;
  double time = 0.0;     ///< ms, of its last onset
  double offset = 0.0;   ///< m, of its last onset
  double slope = kNone;  ///< ms per m there
  std::int32_t station = -1;
  std::int32_t onset = -1;
  std::int32_t parent = -1;  ///< among all paths ever kept
};

std::vector<std::size_t> peaksOf(const OnsetTrace& trace, double least) {
  std::vector<std::size_t> peaks;
  const std::vector<float>& l = trace.likelihood;
  for (std::size_t i = trace.from; i < trace.to; ++i) {
    const bool rises = i == trace.from || l[i] > l[i - 1];
    const bool falls = i + 1 >= trace.to || l[i] >= l[i + 1];
    if (rises && falls && static_cast<double>(l[i]) >= least) peaks.push_back(i);
  }
  if (peaks.size() > kMostOnsets) {
    const auto larger = [&l](std::size_t a, std::size_t b) {
      return l[a] != l[b] ? l[a] > l[b] : a < b;
    };
    std::nth_element(peaks.begin(), peaks.begin() + kMostOnsets, peaks.end(), larger);
    peaks.resize(kMostOnsets);
    std::sort(peaks.begin(), peaks.end());
  }
  return peaks;
}

double reciprocalLoss(const ArrivalChannel& channel, double time, const Clock& clock) {
  const double late = time - clock.fromSeconds(channel.reciprocal);
  if (!(late > 0.0)) return 0.0;
  const double sigmas = late / kReciprocalSigma;
  return std::min(0.5 * sigmas * sigmas, kMostReciprocal);
}

/// What is out of a guide's reach goes, and what is off it is less likely.
void heedGuide(const ArrivalChannel& channel, const Clock& clock, std::vector<Onset>& onsets) {
  if (std::isnan(channel.guide)) return;
  const double guide = clock.fromSeconds(channel.guide);
  const double reach = clock.fromSeconds(channel.reach);
  const auto out = [&](const Onset& onset) { return !(std::fabs(onset.time - guide) <= reach); };
  onsets.erase(std::remove_if(onsets.begin(), onsets.end(), out), onsets.end());
  for (Onset& onset : onsets) {
    const double off = reach > 0.0 ? (onset.time - guide) / reach : 0.0;
    onset.gain -= kMostOffGuide * off * off;
  }
}

/// What begins after something else has begun is no first arrival, so far as that is sure.
void forgetLater(std::vector<Onset>& onsets) {
  double earlier = 0.0;
  std::size_t behind = 0;
  std::vector<Onset> all = onsets;
  for (Onset& onset : onsets) {
    while (all[behind].time < onset.time - kApart) earlier = std::max(earlier, all[behind++].gain);
    onset.gain -= kEarlierShare * earlier;
  }
}

Station stationOf(const std::vector<ArrivalChannel>& channels, std::size_t c, double reference,
                  const Clock& clock) {
  const ArrivalChannel& channel = channels[c];
  Station station{c, std::fabs(channel.offset), {}};
  if (!std::isnan(channel.fixed)) {
    station.fixed = true;
    station.onsets.push_back({clock.fromSeconds(channel.fixed - channel.zero), kLargestGain});
    return station;
  }
  const OnsetTrace& trace = *channel.onset;
  const double scale =
      std::min(std::max(static_cast<double>(trace.largest), reference), kClearLikelihood);
  if (!(scale > 0.0)) return station;
  for (const std::size_t i : peaksOf(trace, kLeastShare * scale)) {
    const double share = std::min(static_cast<double>(trace.likelihood[i]) / scale, 1.0);
    const double time = clock.fromSeconds(static_cast<double>(i) * trace.interval - channel.zero);
    station.onsets.push_back({time, kLargestGain * share * share});
  }
  heedGuide(channel, clock, station.onsets);
  forgetLater(station.onsets);
  for (Onset& onset : station.onsets) onset.gain -= reciprocalLoss(channel, onset.time, clock);
  return station;
}

double sampleAt(const OnsetTrace& trace, double seconds) {
  const double position = seconds / trace.interval;
  if (!(position >= 0.0)) return 0.0;
  const auto i = static_cast<std::size_t>(position);
  if (i + 1 >= trace.signal.size()) return 0.0;
  const double part = position - static_cast<double>(i);
  return trace.signal[i] * (1.0 - part) + trace.signal[i + 1] * part;
}

class Side {
 public:
  Side(const std::vector<ArrivalChannel>& channels, std::vector<Station> stations,
       const Clock& clock)
      : mChannels(channels), mStations(std::move(stations)), mClock(clock) {}

  void follow(std::vector<double>& times);

 private:
  double likeness(const Path& path, std::size_t station, std::size_t onset);
  double bendLoss(const Path& path, const Station& station, double time) const;
  void extend(const std::vector<std::int32_t>& live, std::size_t s, std::vector<Path>& next);
  std::vector<std::int32_t> keep(std::vector<Path> next);

  const std::vector<ArrivalChannel>& mChannels;
  std::vector<Station> mStations;
  Clock mClock;
  std::vector<Path> mPaths;
  std::map<std::pair<std::uint64_t, std::uint64_t>, double> mLikeness;
};

/// Normalised correlation about both onsets, 0 to 1.
double Side::likeness(const Path& path, std::size_t s, std::size_t onset) {
  if (path.station < 0) return 0.0;
  const auto last = static_cast<std::size_t>(path.station);
  const auto key =
      std::make_pair((std::uint64_t{last} << 32) | static_cast<std::uint32_t>(path.onset),
                     (std::uint64_t{s} << 32) | onset);
  const auto known = mLikeness.find(key);
  if (known != mLikeness.end()) return known->second;
  const ArrivalChannel& a = mChannels[mStations[last].channel];
  const ArrivalChannel& b = mChannels[mStations[s].channel];
  const double atA = mClock.toSeconds(path.time) + a.zero;
  const double atB = mClock.toSeconds(mStations[s].onsets[onset].time) + b.zero;
  const double from = mClock.toSeconds(kLikenessFrom);
  const double to = mClock.toSeconds(kLikenessTo);
  const double step =
      std::max({mClock.toSeconds(kLikenessStep), a.onset->interval, b.onset->interval});
  double ab = 0.0;
  double aa = 0.0;
  double bb = 0.0;
  for (double t = from; t <= to; t += step) {
    const double x = sampleAt(*a.onset, atA + t);
    const double y = sampleAt(*b.onset, atB + t);
    ab += x * y;
    aa += x * x;
    bb += y * y;
  }
  const double value = aa > 0.0 && bb > 0.0 ? std::max(ab / std::sqrt(aa * bb), 0.0) : 0.0;
  mLikeness.emplace(key, value);
  return value;
}

double Side::bendLoss(const Path& path, const Station& station, double time) const {
  if (std::isnan(path.slope)) return 0.0;
  const double step = path.slope * (station.offset - path.offset);
  double bend = time - (path.time + step);
  bend /= std::sqrt(std::max(1.0, std::fabs(step) / kStepOfBends));
  return bend > 0.0 ? kLaterLoss * std::min(bend, kMostBend)
                    : kEarlierLoss * std::min(-bend, kMostBend);
}

void Side::extend(const std::vector<std::int32_t>& live, std::size_t s, std::vector<Path>& next) {
  const Station& station = mStations[s];
  for (const std::int32_t p : live) {
    const Path path = mPaths[static_cast<std::size_t>(p)];
    if (!station.fixed) {
      Path passing = path;
      passing.score += kPassingGain;
      passing.parent = p;
      next.push_back(passing);
    }
    for (std::size_t o = 0; o < station.onsets.size(); ++o) {
      const Onset& onset = station.onsets[o];
      const double loss = bendLoss(path, station, onset.time);
      const bool backward = path.station >= 0 && onset.time < path.time - kMostBend;
      if (backward && !station.fixed) continue;
      Path longer = path;
      longer.score += onset.gain - loss;
      if (loss < kLaterLoss * kMostBend) longer.score += kLikenessGain * likeness(path, s, o);
      longer.time = onset.time;
      longer.offset = station.offset;
      const double distance = station.offset - path.offset;
      if (distance > 0.0) {
        const double slope = (onset.time - path.time) / distance;
        longer.slope =
            std::isnan(path.slope) || path.station < 0 ? slope : 0.5 * (slope + path.slope);
      }
      longer.station = static_cast<std::int32_t>(s);
      longer.onset = static_cast<std::int32_t>(o);
      longer.parent = p;
      next.push_back(longer);
    }
  }
}

bool likeSlope(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) == std::isnan(b);
  return std::fabs(a - b) <= 0.1 * std::max(std::fabs(a), std::fabs(b));
}

/// The best paths: a few of each onset, and of those that pass.
std::vector<std::int32_t> Side::keep(std::vector<Path> next) {
  std::stable_sort(next.begin(), next.end(),
                   [](const Path& a, const Path& b) { return a.score > b.score; });
  std::map<std::pair<std::int32_t, std::int32_t>, std::vector<double>> kept;
  const std::int32_t newest =
      std::accumulate(next.begin(), next.end(), -1,
                      [](std::int32_t m, const Path& path) { return std::max(m, path.station); });
  std::vector<std::int32_t> live;
  std::size_t passing = 0;
  for (const Path& path : next) {
    std::vector<double>& slopes = kept[{path.station, path.onset}];
    if (slopes.size() >= kMostSlopes) continue;
    if (std::any_of(slopes.begin(), slopes.end(),
                    [&](double slope) { return likeSlope(slope, path.slope); })) {
      continue;
    }
    if (path.station != newest && ++passing > kMostPassing) continue;
    slopes.push_back(path.slope);
    live.push_back(static_cast<std::int32_t>(mPaths.size()));
    mPaths.push_back(path);
  }
  return live;
}

void Side::follow(std::vector<double>& times) {
  mPaths = {Path()};
  std::vector<std::int32_t> live = {0};
  for (std::size_t s = 0; s < mStations.size(); ++s) {
    std::vector<Path> next;
    extend(live, s, next);
    live = keep(std::move(next));
  }
  const auto best =
      *std::max_element(live.begin(), live.end(), [this](std::int32_t a, std::int32_t b) {
        return mPaths[static_cast<std::size_t>(a)].score <
               mPaths[static_cast<std::size_t>(b)].score;
      });
  for (std::int32_t p = best; p >= 0; p = mPaths[static_cast<std::size_t>(p)].parent) {
    const Path& path = mPaths[static_cast<std::size_t>(p)];
    if (path.station < 0) continue;
    const Station& station = mStations[static_cast<std::size_t>(path.station)];
    const ArrivalChannel& channel = mChannels[station.channel];
    times[station.channel] =
        station.fixed ? channel.fixed : mClock.toSeconds(path.time) + channel.zero;
  }
}

double referenceOf(const std::vector<ArrivalChannel>& channels) {
  std::vector<double> largest;
  for (const ArrivalChannel& channel : channels) {
    if (!channel.onset->dead()) largest.push_back(static_cast<double>(channel.onset->largest));
  }
  if (largest.empty()) return 0.0;
  const auto share = static_cast<std::ptrdiff_t>(3 * (largest.size() - 1) / 4);
  std::nth_element(largest.begin(), largest.begin() + share, largest.end());
  return largest[static_cast<std::size_t>(share)];
}

}  // namespace

std::vector<double> followArrivals(const std::vector<ArrivalChannel>& channels, double stretch) {
  const Clock clock(stretch);
  std::vector<double> times(channels.size(), kNone);
  const double reference = referenceOf(channels);
  for (const bool right : {false, true}) {
    std::vector<Station> stations;
    for (std::size_t c = 0; c < channels.size(); ++c) {
      if ((channels[c].offset > 0.0) == right)
        stations.push_back(stationOf(channels, c, reference, clock));
    }
    std::stable_sort(stations.begin(), stations.end(),
                     [](const Station& a, const Station& b) { return a.offset < b.offset; });
    if (!stations.empty()) Side(channels, std::move(stations), clock).follow(times);
  }
  return times;
}

}  // namespace talvesk
