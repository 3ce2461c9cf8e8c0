#include "SyntheticLine.h"

#include "model/Recordings.h"
#include "model/SurveyLine.h"

#include <algorithm>
#include <cmath>

namespace talvesk::test {
namespace {

constexpr double kPi = 3.14159265358979323846;

/// Of a largest amplitude of about 0.75.
double wavelet(double t, double frequency) {
  return t < 0.0 ? 0.0 : std::sin(2.0 * kPi * frequency * t) * std::exp(-t * frequency);
}

double depthAt(const Ground& ground, double x) {
  return ground.depth + ground.dip * x / ground.length();
}

/// Of the wave along the layer's floor, seconds after the shot; of small dips.
double refractedTime(const Ground& ground, double shot, double geophone) {
  const double down =
      std::sqrt(1.0 / (ground.slow * ground.slow) - 1.0 / (ground.fast * ground.fast));
  return down * (depthAt(ground, shot) + depthAt(ground, geophone)) +
         std::fabs(geophone - shot) / ground.fast;
}

class Noise {
 public:
  Noise(double colour, std::mt19937& random) : mColour(colour), mRandom(random) {}
  /// Of RMS 1 in the long run.
  double next() {
    mLast = mColour * mLast + std::sqrt(1.0 - mColour * mColour) * mNormal(mRandom);
    return mLast;
  }

 private:
  double mColour;
  std::mt19937& mRandom;
  std::normal_distribution<double> mNormal;
  double mLast = 0.0;
};

Trace traceAt(const Ground& ground, double shot, double geophone, std::mt19937& random) {
  const double distance = std::fabs(geophone - shot);
  const double amplitude = 1.0 / (1.0 + distance / ground.spacing / 2.0);
  const double direct = ground.lead + distance / ground.slow;
  const double refracted = ground.lead + refractedTime(ground, shot, geophone);
  const double surface = ground.lead + distance / (0.4 * ground.slow);
  const double span = ground.spacing * static_cast<double>(ground.channels);
  const double length = ground.lead + 0.1 + 1.5 * span / ground.slow;
  const bool refractedFirst = refracted < direct;
  // The refracted wave is weaker than what it overtakes; noise is told by the first arrival.
  const double first = refractedFirst ? ground.refracted : 1.0;
  Trace trace;
  trace.waveKind = Trace::kFromFile;
  trace.sampleInterval = ground.interval;
  trace.delay = -ground.lead;
  Noise noise(ground.colour, random);
  std::vector<double>& samples = trace.samples.edit();
  for (double t = 0.0; t < length; t += ground.interval) {
    double sum = wavelet(t - direct, ground.frequency);
    if (refractedFirst) sum += ground.refracted * wavelet(t - refracted, ground.frequency);
    sum += ground.surface * first * wavelet(t - surface, 0.4 * ground.frequency);
    samples.push_back(amplitude * (sum + ground.noise * 0.75 * first * noise.next()));
  }
  return trace;
}

}  // namespace

double Ground::time(double shot, double geophone) const {
  return std::min(std::fabs(geophone - shot) / slow, refractedTime(*this, shot, geophone));
}

TomoDocument lineOver(const Ground& ground, const std::vector<double>& shots) {
  TomoDocument document;
  std::vector<Point2D> geophones;
  for (std::size_t c = 0; c < ground.channels; ++c) {
    geophones.push_back({ground.spacing * static_cast<double>(c), 0.0});
  }
  document.line.edit().goephonesStringSet = {geophones};
  std::mt19937 random(ground.seed);
  for (const double shot : shots) {
    TraceSet set;
    for (const Point2D& geophone : geophones) {
      set.push_back(traceAt(ground, shot, geophone.x, random));
      set.back().receiverPosition = geophone;
      set.back().sourcePosition = {shot, 0.0};
    }
    TravelTime record;
    record.shotPos2d = {shot, 0.0};
    record.traceSetID = static_cast<std::int32_t>(document.ttArray.size());
    record.ttMisurati = std::vector<double>(set.size(), kUnpicked);
    record.ttCalcolati = std::vector<double>(set.size(), kNoTime);
    document.recordings.edit().traceSets.push_back(std::move(set));
    document.ttArray.edit().push_back(record);
  }
  return document;
}

std::vector<std::int32_t> allShots(const TomoDocument& document) {
  std::vector<std::int32_t> shots;
  for (std::size_t s = 0; s < document.ttArray.size(); ++s) {
    shots.push_back(static_cast<std::int32_t>(s));
  }
  return shots;
}

}  // namespace talvesk::test
