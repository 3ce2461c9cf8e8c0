#pragma once

#include "numerics/Medians.h"
#include "refraction/BuildProfiles.h"
#include "refraction/FittedProfile.h"
#include "refraction/Profile.h"
#include "refraction/SurveyProposal.h"
#include "refraction/WeighedPicks.h"
#include "support/RefractionLines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace talvesk::testing {

/// Grounds that proposals of layers are tried on. The geometry of every trial and its noise are
/// drawn by the trial's number: the same number is the same trial on every machine.
enum class TrialGround { kTwoLevel, kTwoDipping, kThreeLevel, kThreeDipping, kGradient };

struct TrialOutcome {
  std::uint32_t layers = 0;  ///< claimed; 0 a gradient, 1 no refractor either
  /// Median of the sizes of relative errors over receivers and refractors: of the fitted waves and
  /// of the profile that the reciprocal method builds of the marks. Valid for the right number.
  double waveDepth = 0.0;
  double waveVelocity = 0.0;  ///< the largest of the layers'
  bool built = false;
  double profileDepth = 0.0;
  double profileVelocity = 0.0;
  bool fitted = false;  ///< the same of the profile that is fitted to all picks
  double fittedDepth = 0.0;
  double fittedVelocity = 0.0;
  double waveMisfit = 0.0;  ///< RMS, seconds
  double fittedMisfit = 0.0;
};

class LayerTrial {
 public:
  /// \param gross share of the picks that are off by 10 to 40 ms
  LayerTrial(TrialGround kind, std::uint32_t number, double noise = 5e-4, double gross = 0.0)
      : mKind(kind), mDraw(1000U * static_cast<std::uint32_t>(kind) + number) {
    while (!draw()) continue;
    disturb(noise, gross);
  }

  const TomoDocument& line() const { return mLine; }
  std::uint32_t layers() const {
    return mKind == TrialGround::kGradient ? 0U
                                           : static_cast<std::uint32_t>(mGround.velocities.size());
  }
  const DippingLayers& ground() const { return mGround; }

  TrialOutcome propose() const {
    const std::vector<ShotArrivals> shots = shotArrivals(mLine);
    const SurveyProposal proposal = proposeFromSurvey(shots, pickErrors(mLine, shots), {});
    TrialOutcome outcome;
    if (proposal.chosen) outcome.layers = proposal.grounds[*proposal.chosen].layers;
    if (outcome.layers != layers() || layers() == 0) return outcome;
    compareWaves(proposal, outcome);
    refractionDataStructure::Interpretation built;
    built.ttLayer = proposal.marks;
    outcome.built = buildProfiles(shots, built).built;
    compareProfile(built, outcome.profileDepth, outcome.profileVelocity);
    refractionDataStructure::Interpretation fitted;
    const LayeredFit fit = fitProfile(shots, pickErrors(mLine, shots), proposal, fitted);
    outcome.fitted = fit.total.picks > 0;
    outcome.waveMisfit = proposal.grounds[*proposal.chosen].misfit;
    outcome.fittedMisfit = fit.total.rms;
    compareProfile(fitted, outcome.fittedDepth, outcome.fittedVelocity);
    return outcome;
  }

 private:
  double uniform(double least, double most) {
    return least + (most - least) * (static_cast<double>(mDraw()) / 4294967296.0);
  }
  double normal() {
    const double radius = std::sqrt(-2.0 * std::log(1.0 - uniform(0.0, 1.0)));
    return radius * std::cos(6.283185307179586 * uniform(0.0, 1.0));
  }

  static double thicknessOf(double delay, double above, double below) {
    return 0.5 * delay / std::sqrt(1.0 / (above * above) - 1.0 / (below * below));
  }

  void drawGeometry() {
    mGeophones = 24 + 12 * static_cast<int>(uniform(0.0, 3.0));
    mSpacing = std::floor(uniform(2.0, 6.0));
    mLength = mSpacing * (mGeophones - 1);
    mShots = {-mLength * uniform(0.2, 0.5), -0.5 * mSpacing, mLength + 0.5 * mSpacing,
              mLength * uniform(1.2, 1.5)};
    const int inside = 1 + static_cast<int>(uniform(0.0, 5.0));
    for (int i = 0; i < inside; ++i) {
      mShots.push_back(mSpacing * (0.5 + std::floor(uniform(2.0, mGeophones - 3.0))));
    }
    std::sort(mShots.begin(), mShots.end());
  }

  /// Dips so that the depth changes by two fifths at most from the middle to the outermost shots.
  double dipOf(double depth) {
    const bool dips = mKind == TrialGround::kTwoDipping || mKind == TrialGround::kThreeDipping;
    return dips ? uniform(-1.0, 1.0) * std::min(0.1, std::atan(0.4 * depth / mLength)) : 0.0;
  }

  /// One ground and its picks; false when a layer hardly shows in first arrivals.
  bool draw() {
    drawGeometry();
    if (mKind == TrialGround::kGradient) {
      drawGradient();
      return true;
    }
    const bool three = mKind == TrialGround::kThreeLevel || mKind == TrialGround::kThreeDipping;
    const double v1 = uniform(300.0, 700.0);
    const double v2 = v1 * (three ? uniform(2.0, 3.5) : uniform(2.0, 6.0));
    const double first = uniform(4.0 * mSpacing, (three ? 0.25 : 0.45) * mLength);
    const double delay = first * (1.0 / v1 - 1.0 / v2);
    const double z1 = thicknessOf(delay, v1, v2);
    mGround = {{v1, v2}, {z1}, {dipOf(z1)}};
    if (three) {
      const double v3 = v2 * uniform(1.8, 3.0);
      const double second = uniform(0.4, 0.65) * mLength;
      const double above = 2.0 * z1 * std::sqrt(1.0 / (v1 * v1) - 1.0 / (v3 * v3));
      const double below = delay + second * (1.0 / v2 - 1.0 / v3) - above;
      const double thickness = thicknessOf(below, v2, v3);
      if (!(thickness > 0.7 * z1)) return false;
      mGround.velocities.push_back(v3);
      mGround.depths.push_back(z1 + thickness);
      mGround.dips.push_back(dipOf(thickness));
    }
    // Depths are drawn for the middle of the line.
    for (std::size_t i = 0; i < mGround.depths.size(); ++i) {
      mGround.depths[i] -= 0.5 * mLength * std::tan(mGround.dips[i]);
    }
    std::vector<refractionDataStructure::layerStruct> truth;
    mLine = dippingLine(mGround, mGeophones, mSpacing, mShots, truth);
    return std::all_of(mGround.depths.begin(), mGround.depths.end(),
                       [](double z) { return z > 0.0; }) &&
           everyLayerShows(truth);
  }

  /// Five arrivals on three curves at least, and on both that the reciprocal method wants.
  bool everyLayerShows(const std::vector<refractionDataStructure::layerStruct>& truth) const {
    for (std::uint32_t layer = 1; layer <= mGround.velocities.size(); ++layer) {
      int curves = 0;
      for (std::size_t shot = 0; shot < truth.size(); ++shot) {
        for (const Side side : {Side::kRight, Side::kLeft}) {
          const auto count = branchOf(shotArrivals(mLine)[shot], truth[shot], layer, side).x.size();
          if (count >= 5) ++curves;
        }
      }
      if (curves < 3) return false;
    }
    return findShotPair(shotArrivals(mLine), truth, 2).complete();
  }

  void drawGradient() {
    const double v0 = uniform(300.0, 800.0);
    const double growth = uniform(1.0, 10.0) / mLength;
    mLine = testLine(mGeophones, mSpacing, mShots);
    for (TravelTime& record : mLine.ttArray.edit()) {
      for (int i = 0; i < mGeophones; ++i) {
        const double offset = std::fabs(i * mSpacing - record.shotPos2d.x);
        record.ttMisurati.edit()[static_cast<std::size_t>(i)] =
            2.0 / (growth * v0) * std::asinh(0.5 * growth * offset);
      }
    }
  }

  void disturb(double noise, double gross) {
    for (TravelTime& record : mLine.ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) {
        if (!(time > 0.0)) continue;
        time += noise * normal();
        if (uniform(0.0, 1.0) < gross) {
          time += (uniform(0.0, 1.0) < 0.5 ? -1.0 : 1.0) * uniform(0.01, 0.04);
        }
        time = std::max(1e-4, time);
      }
    }
  }

  static double medianSize(std::vector<double> errors) {
    for (double& error : errors) error = std::isfinite(error) ? std::fabs(error) : 1e9;
    return medianOf(std::move(errors), 1e9);
  }

  void compareWaves(const SurveyProposal& proposal, TrialOutcome& outcome) const {
    std::vector<double> depths;
    for (std::size_t i = 0; i < mGround.depths.size(); ++i) {
      for (int j = 0; j < mGeophones; ++j) {
        const double x = j * mSpacing;
        const auto depth = proposal.depthAt(static_cast<std::uint32_t>(i) + 2, x);
        depths.push_back(depth.value_or(0.0) / mGround.depth(i, x) - 1.0);
      }
    }
    outcome.waveDepth = medianSize(std::move(depths));
    for (std::size_t i = 0; i < mGround.velocities.size(); ++i) {
      const double error = proposal.waves->velocity(i) / mGround.velocities[i] - 1.0;
      outcome.waveVelocity = std::max(outcome.waveVelocity, std::fabs(error));
    }
  }

  /// Of a profile, over its receivers on the line.
  void compareProfile(const refractionDataStructure::Interpretation& interpretation, double& depth,
                      double& velocity) const {
    std::vector<double> depths;
    std::vector<double> velocities;
    const auto& refractors = interpretation.refractData.cData;
    for (std::size_t i = 0; i < refractors.size() && i < mGround.depths.size(); ++i) {
      for (std::size_t j = 0; j < refractors[i].x.size(); ++j) {
        const double x = refractors[i].x[j];
        if (x < 0.0 || x > mLength) continue;
        depths.push_back(refractors[i].depth[j] / mGround.depth(i, x) - 1.0);
        velocities.push_back(refractors[i].velocity[j] / mGround.velocities[i + 1] - 1.0);
      }
    }
    depth = medianSize(std::move(depths));
    velocity = medianSize(std::move(velocities));
  }

  TrialGround mKind;
  std::mt19937 mDraw;
  int mGeophones = 0;
  double mSpacing = 0.0;
  double mLength = 0.0;
  std::vector<double> mShots;
  DippingLayers mGround;
  TomoDocument mLine;
};

}  // namespace talvesk::testing
