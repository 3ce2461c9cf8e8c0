#pragma once

#include "base/Point2D.h"
#include "view/ContourLines.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What a section has at one place of the line, from the surface down.
struct DepthProfile {
  struct Layer {
    double top = 0.0;       ///< metres below the surface
    double bottom = 0.0;    ///< the same
    double velocity = 0.0;  ///< m/s
    double gradient = 0.0;  ///< 1/s, positive where velocity grows downward; NaN: none
    double low = 0.0;       ///< m/s that 16 % of the members stay below; NaN: not known
    double high = 0.0;      ///< m/s that 84 % stay below; NaN: not known
    double spread = 0.0;    ///< half of that range, percent of the median; NaN: no ray passes
  };
  double x = 0.0;             ///< survey distance, metres
  double surface = 0.0;       ///< elevation, metres
  std::vector<Layer> layers;  ///< drawn cells, downwards; empty beyond the section
};

/// The columns of a section, made ready to be looked up as a mouse moves.
class DepthProfiles {
 public:
  /// Of nothing.
  DepthProfiles() = default;
  /// Of a document's grid; of nothing where it has none.
  explicit DepthProfiles(const TomoDocument& document);

  bool empty() const { return mMesh.columns == 0; }
  bool hasCertainty() const { return !mSpreads.empty(); }
  double left() const { return mLeft; }    ///< survey distance where the section begins
  double right() const { return mRight; }  ///< and ends
  // What scales must hold that do not change from place to place. 0 to 0 without a value.
  double depth() const { return mDepth; }  ///< of the deepest drawn cell, metres
  const ValueRange& velocities() const { return mVelocityRange; }
  const ValueRange& gradients() const { return mGradientRange; }
  const ValueRange& spreads() const { return mSpreadRange; }

  /// \param x survey distance; without layers beyond the ends of the section
  DepthProfile at(double x) const;

 private:
  DepthProfile::Layer layerAt(std::size_t cell) const;

  SectionMesh mMesh;
  double mLeft = 0.0;
  double mRight = 0.0;
  double mDepth = 0.0;
  std::vector<double> mVelocities;
  std::vector<double> mGradients;
  std::vector<double> mLow;
  std::vector<double> mHigh;
  std::vector<double> mSpreads;
  ValueRange mVelocityRange;
  ValueRange mGradientRange;
  ValueRange mSpreadRange;
};

}  // namespace talvesk
