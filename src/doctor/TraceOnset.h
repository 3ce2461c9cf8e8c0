#pragma once

#include "base/Span.h"

#include <cstddef>
#include <vector>

namespace talvesk::doctor {

/// A sample at which the energy of a trace rises for good, and how surely.
struct OnsetCandidate {
  std::size_t sample = 0;
  double evidence = 0.0;  ///< log likelihood ratio over what noise alone would reach; above 1
  /// Of what lies between it and the next one in the greatest magnitude of the trace, 0 to 1.
  double share = 0.0;
};

/// The first arrival of one trace.
struct Onset {
  bool found = false;
  std::size_t sample = 0;      ///< of the samples as they are now
  double time = 0.0;           ///< seconds after the shot, the recording delay counted
  double period = 0.0;         ///< seconds, of the first swing
  double swing = 0.0;          ///< greatest magnitude within the first period, sample units
  double noise = 0.0;          ///< root mean square before it, sample units
  double signalToNoise = 0.0;  ///< swing over noise
  double error = 0.0;          ///< seconds by which noise can hide the beginning of the swing
};

/// Whether an arrival is told from noise beyond doubt. Below six times the noise the first swing is
/// too often taken for noise, and the second for it.
inline bool isClear(const Onset& onset) {
  return onset.found && onset.signalToNoise >= 6.0;
}

/// Running sums, for variances and periods of any part of a trace at no cost.
class TraceSums {
 public:
  explicit TraceSums(Span<double> samples);

  std::size_t size() const { return mSum.size() - 1; }
  double variance(std::size_t from, std::size_t to) const;  ///< about the mean of [from, to)
  /// Samples per independent value: half the mean period of what lies in [from, to), by its energy
  /// over that of its slope (S. O. Rice, 1944, Mathematical analysis of random noise, Bell System
  /// Technical Journal 23).
  double correlation(std::size_t from, std::size_t to) const;
  /// Where the energy over such a time is greatest: the sample behind it.
  std::size_t strongest(std::size_t from) const;
  double floor() const { return mFloor; }  ///< variances below are as good as none
  double peak() const { return mPeak; }    ///< greatest magnitude about the mean

 private:
  double mFloor = 0.0;
  double mPeak = 0.0;
  std::vector<double> mSum;
  std::vector<double> mSquares;
  std::vector<double> mSlopes;
};

/// The waves where a trace is strongest.
struct StrongestWave {
  double period = 0.0;  ///< seconds
  double size = 0.0;    ///< greatest magnitude of the trace, drift removed
};

/// \param from samples before are padding \param sampleInterval seconds
StrongestWave strongestWave(Span<double> samples, std::size_t from, double sampleInterval);

/// A trace made ready to look for its first arrival: without drift, and no finer than needed.
struct ReadyTrace {
  std::vector<double> fine;    ///< as many samples as the trace has; drift removed
  std::vector<double> coarse;  ///< means of `block` samples each
  std::size_t block = 1;
  std::size_t from = 0;  ///< samples before are padding; a multiple of `block`
};

/// \param period of the strongest waves of the shot, samples
ReadyTrace makeReady(Span<double> samples, std::size_t from, double period);

/// Where the trace may begin, in samples of the trace, ascending: the split of what lies before the
/// strongest part into noise and signal that is likeliest (N. Maeda, 1985, A method for reading and
/// checking phase times in auto-processing system of seismic wave data, Zisin 38), then the same of
/// what lies before and behind that split, as long as a split stands out of noise.
std::vector<OnsetCandidate> onsetCandidates(const ReadyTrace& trace);

/// The arrival that begins near a sample, to the sample. Its time is left to the caller.
/// \param period as above \param sampleInterval seconds
Onset onsetNear(const ReadyTrace& trace, std::size_t sample, double period, double sampleInterval);

}  // namespace talvesk::doctor
