#include "batch/DemoShots.h"

#include "batch/DemoNoise.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace talvesk {
namespace {

constexpr double kSampleInterval = 0.0000625;  // seconds
constexpr double kLead = 0.010;                // seconds of record before the shot
constexpr std::size_t kSamples = 4000;

constexpr double kNoiseLevel = 16.0;          // sample units, standard deviation
constexpr double kSwingAtOneMetre = 12000.0;  // sample units
constexpr double kNearest = 1.0;              // metres: nearer geophones shake no harder

constexpr double kLaterSpeed = 350.0;  // m/s
constexpr double kLaterShare = 0.5;    // of the first arrival's swing

constexpr int kFiner = 16;  // steps of a wavelet's table per sample
constexpr double kStep = kSampleInterval / kFiner;
constexpr double kPi = 3.14159265358979323846;

/// A swing that begins at time 0 and dies away, as of a damped spring: its energy comes as early as
/// its spectrum allows, and its first break is sharp. The first swing has the height 1.
class Wavelet {
 public:
  /// \param frequency of the swings, Hz; \param decay to 1/e, seconds
  Wavelet(double frequency, double decay) {
    // A pointer that turns and shrinks by the same little amount from step to step.
    const double angle = 2.0 * kPi * frequency * kStep;
    const double square = angle * angle;
    const double shrink = 1.0 - kStep / decay;
    const double c = shrink * (1.0 - square / 2.0 + square * square / 24.0);
    const double s = shrink * angle * (1.0 - square / 6.0 + square * square / 120.0);
    double x = 1.0;
    double y = 0.0;
    double peak = 0.0;
    while (std::fabs(x) + std::fabs(y) > kNegligible) {
      mTable.push_back(y);
      peak = std::max(peak, y);
      const double turned = c * x - s * y;
      y = s * x + c * y;
      x = turned;
    }
    for (double& value : mTable) value /= peak;
  }

  /// \param time seconds since the arrival
  double at(double time) const {
    const double place = time / kStep;
    if (place <= 0.0 || place >= static_cast<double>(mTable.size() - 1)) return 0.0;
    const auto below = static_cast<std::size_t>(place);
    const double share = place - static_cast<double>(below);
    return mTable[below] + share * (mTable[below + 1] - mTable[below]);
  }

 private:
  static constexpr double kNegligible = 1e-6;
  std::vector<double> mTable;
};

double swingAt(double offset) {
  return kSwingAtOneMetre / std::max(std::fabs(offset), kNearest);
}

/// Waves of one trace. \param firstBreak seconds after the shot
void addWaves(std::vector<float>& samples, double offset, double firstBreak) {
  static const Wavelet first(150.0, 0.010);
  static const Wavelet later(60.0, 0.012);
  const double swing = swingAt(offset);
  const double laterTime = firstBreak + std::fabs(offset) / kLaterSpeed;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double time = static_cast<double>(i) * kSampleInterval - kLead;
    const double value = first.at(time - firstBreak) + kLaterShare * later.at(time - laterTime);
    samples[i] += static_cast<float>(swing * value);
  }
}

/// Of a narrower band than the sampling could hold, as behind the filter of a recorder.
void addNoise(std::vector<float>& samples, std::uint64_t seed) {
  constexpr double kUnitPower = 0.40824829046386302;  // 1 / sqrt(1 + 4 + 1)
  DemoNoise noise(seed);
  double before = noise.next();
  double now = noise.next();
  for (float& sample : samples) {
    const double after = noise.next();
    sample += static_cast<float>(kNoiseLevel * kUnitPower * (before + 2.0 * now + after));
    before = now;
    now = after;
  }
}

}  // namespace

double demoSignalToNoise(double offset) {
  return swingAt(offset) / kNoiseLevel;
}

std::vector<WrittenShot> demoShots(const TomoDocument& line) {
  std::vector<WrittenShot> records;
  std::uint64_t traceNumber = 0;
  for (const TravelTime& shot : line.ttArray) {
    const auto& geophones =
        line.line->goephonesStringSet[static_cast<std::size_t>(shot.indexStesa)];
    WrittenShot record;
    record.source = shot.shotPos2d;
    record.receivers = geophones;
    record.sampleInterval = kSampleInterval;
    record.delay = -kLead;
    for (std::size_t i = 0; i < geophones.size(); ++i) {
      std::vector<float> samples(kSamples, 0.0F);
      addWaves(samples, geophones[i].x - shot.shotPos2d.x, shot.ttMisurati[i]);
      addNoise(samples, ++traceNumber << 32);
      record.traces.push_back(std::move(samples));
    }
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace talvesk
