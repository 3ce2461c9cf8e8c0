#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Splines {
class Spline;
}

namespace talvesk {

struct SurveyGeometry;

/// The ground along a line, by points at which its elevation was measured.
class ElevationProfile {
 public:
  enum class Course {
    kStraight,  ///< straight from point to point
    kSmooth     ///< a Bessel spline through the points: without kinks, and it may overshoot them
  };

  /// \param points in any order, finite, at least one; of several at one x the mean counts
  explicit ElevationProfile(std::vector<Point2D> points, Course course = Course::kStraight);
  ~ElevationProfile();

  /// Metres, to the millimetre; beyond both ends the elevation there. One thread at a time.
  double at(double x) const;
  bool covers(double x) const;  ///< whether x is not beyond an end

  double firstX() const { return mPoints.front().x; }
  double lastX() const { return mPoints.back().x; }

 private:
  std::vector<Point2D> mPoints;              ///< ascending
  std::unique_ptr<Splines::Spline> mSpline;  ///< null for a single point
};

/// What laying a survey onto a profile did.
struct ElevationOutcome {
  std::size_t geophones = 0;  ///< that have the elevation of the profile now
  std::size_t shots = 0;
  std::size_t beyond = 0;  ///< of both, those beyond an end of the profile, at its elevation there
};

/// Gives every geophone and shot that has a position along the line the elevation of the profile
/// there, whatever it had; they count as typed.
ElevationOutcome layOnto(const ElevationProfile& profile, SurveyGeometry& geometry);

}  // namespace talvesk
