#include "processing/NotchFilter.h"

#include "model/FilterSteps.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

#define EIGEN_MPL2_ONLY
#include <Eigen/Dense>

namespace talvesk {
namespace {

/// Frequencies of the notches as angles per sample.
std::vector<double> anglesOf(const NotchFilter& filter, double interval) {
  std::vector<double> angles;
  for (int k = 1; k <= filter.harmonics; ++k) {
    const double angle = 2.0 * M_PI * k * filter.hertz * interval;
    if (angle < M_PI) angles.push_back(angle);
  }
  return angles;
}

/// A constant and the hum of a trace: cosine and sine of each angle.
class Hum {
 public:
  Hum(Span<double> samples, const std::vector<double>& angles) : mAngles(angles) {
    const auto rows = static_cast<Eigen::Index>(samples.size());
    mTerms.resize(rows, static_cast<Eigen::Index>(2 * angles.size() + 1));
    mTerms.col(0).setOnes();
    for (std::size_t a = 0; a < angles.size(); ++a) {
      const auto column = static_cast<Eigen::Index>(2 * a + 1);
      for (Eigen::Index j = 0; j < rows; ++j) {
        mTerms(j, column) = std::cos(angles[a] * static_cast<double>(j));
        mTerms(j, column + 1) = std::sin(angles[a] * static_cast<double>(j));
      }
    }
    fit(samples);
  }

  double constant() const { return mFactors(0); }
  std::vector<double> values() const {
    const Eigen::VectorXd all = mTerms * mFactors;
    return {all.data(), all.data() + all.size()};
  }

 private:
  void fit(Span<double> samples) {
    constexpr int kRounds = 12;
    const Eigen::VectorXd data = Eigen::Map<const Eigen::VectorXd>(samples.data(), mTerms.rows());
    Eigen::VectorXd weights = Eigen::VectorXd::Ones(mTerms.rows());
    for (int round = 0; round < kRounds; ++round) {
      const Eigen::MatrixXd weighted = weights.asDiagonal() * mTerms;
      mFactors = (mTerms.transpose() * weighted).ldlt().solve(weighted.transpose() * data);
      const Eigen::VectorXd residuals = (data - mTerms * mFactors).cwiseAbs();
      const double usual = medianOf({residuals.data(), residuals.data() + residuals.size()}, 0.0);
      const double least = std::max(1e-3 * usual, 1e-12 * residuals.maxCoeff());
      if (!(least > 0.0)) return;  // nothing is left
      weights = residuals.cwiseMax(least).cwiseInverse() * least;
    }
  }

  const std::vector<double>& mAngles;
  Eigen::MatrixXd mTerms;
  Eigen::VectorXd mFactors;
};

/// One notch forward over the samples, from rest.
void runNotch(double angle, double width, std::vector<double>& samples) {
  // Of one run at the sides of the notch: two runs leave 3 dB.
  const double side = std::pow(0.5, 0.25);
  const double beta = std::sqrt(1.0 - side * side) / side * std::tan(0.5 * width);
  const double gain = 1.0 / (1.0 + beta);
  const double b1 = -2.0 * gain * std::cos(angle);
  const double a2 = 2.0 * gain - 1.0;
  double first = 0.0;
  double second = 0.0;
  for (double& sample : samples) {
    const double in = sample;
    sample = gain * in + first;
    first = b1 * in - b1 * sample + second;
    second = gain * in - a2 * sample;
  }
}

Status check(Span<double> in, double interval, const NotchFilter& filter) {
  if (!(interval > 0.0) || !std::isfinite(interval)) {
    return Status::failure(Message::tr("its sample interval is not known"));
  }
  if (!std::all_of(in.begin(), in.end(), [](double v) { return std::isfinite(v); })) {
    return Status::failure(Message::tr("it has samples that are no numbers"));
  }
  if (!(filter.hertz > 0.0) || filter.harmonics < 1 || !(filter.quality > 0.0)) {
    return Status::failure(
        Message::tr("a notch needs a frequency, a multiple and a quality above 0"));
  }
  if (!(2.0 * filter.hertz * interval < 1.0)) {
    return Status::failure(Message::tr("it is sampled too slowly for %1 Hz").arg(filter.hertz));
  }
  if (!(static_cast<double>(in.size()) * interval * filter.hertz >= 1.0)) {
    return Status::failure(Message::tr("it is shorter than one period of %1 Hz").arg(filter.hertz));
  }
  return {};
}

}  // namespace

Status notchTrace(Span<double> in, double interval, const NotchFilter& filter,
                  std::vector<double>& out) {
  if (in.empty()) {
    out.clear();
    return {};
  }
  Status status = check(in, interval, filter);
  if (!status.ok()) return status;
  const std::vector<double> angles = anglesOf(filter, interval);
  const double width = angles.front() / filter.quality;
  const Hum hum(in, angles);
  const std::vector<double> known = hum.values();
  std::vector<double> samples(in.begin(), in.end());
  for (std::size_t j = 0; j < samples.size(); ++j) samples[j] -= known[j];
  for (int run = 0; run < 2; ++run) {
    for (const double angle : angles) runNotch(angle, width, samples);
    std::reverse(samples.begin(), samples.end());
  }
  for (double& sample : samples) sample += hum.constant();
  out = std::move(samples);
  return {};
}

FilterOutcome notchShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                         const NotchFilter& filter, bool ofFiltered) {
  const FilterOutcome outcome = filterEachTrace(document, shots, [&](Trace& trace) {
    const Span<double> samples =
        ofFiltered && !trace.filtered.empty() ? trace.filtered : trace.samples;
    return refilter(trace, [&](std::vector<double>& out) {
      return notchTrace(samples, trace.sampleInterval, filter, out);
    });
  });
  if (outcome.filtered > 0) {
    noteFilter(
        document, shots,
        {FilterKind::kNotch, {filter.hertz, static_cast<double>(filter.harmonics), filter.quality}},
        ofFiltered);
  }
  return outcome;
}

}  // namespace talvesk
