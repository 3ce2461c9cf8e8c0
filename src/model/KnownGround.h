#pragma once

#include "base/Message.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// Ground of one velocity in a borehole. Depths are metres below the surface.
struct KnownLayer {
  double top = 0.0;
  double bottom = 0.0;    ///< below the top
  double velocity = 0.0;  ///< m/s, positive
  double error = 0.0;     ///< one standard deviation, m/s; 0: not stated

  static constexpr double kUsualError = 0.05;  ///< of the velocity, where none is stated
  double relativeError() const { return error > 0.0 ? error / velocity : kUsualError; }
};

/// A borehole, upright, seen from the side: one that stands beside the line counts as on it.
struct KnownBorehole {
  std::string name;
  double x = 0.0;                  ///< along the line, metres
  double offset = 0.0;             ///< beside the line, metres; told, not reckoned with
  std::vector<KnownLayer> layers;  ///< downwards; there may be gaps between them
};

/// A place where the depth of a refractor is known.
struct KnownDepth {
  std::string name;
  double x = 0.0;         ///< along the line, metres
  double depth = 0.0;     ///< metres below the surface, positive
  double error = 0.0;     ///< one standard deviation, metres; 0: not stated
  int refractor = 0;      ///< from 1; points of one number belong together; 0: not said
  double isovalue = 0.0;  ///< m/s that is reached at this depth; 0: not said
  double above = 0.0;     ///< m/s just above; 0: not known
  double below = 0.0;     ///< m/s just below; 0: not known

  static constexpr double kUsualError = 0.1;  ///< of the depth, where none is stated
  double depthError() const { return error > 0.0 ? error : kUsualError * depth; }
  /// What a section has at this depth if it goes with the point, m/s: the isovalue, or between the
  /// velocities above and below; 0: it cannot be said.
  double velocityAtDepth() const;
};

struct KnownCorner {
  double x = 0.0;      ///< along the line, metres
  double depth = 0.0;  ///< metres below the surface, not negative
};

/// Ground whose velocity is known so well that it is not asked for: a wall, a cavity, water.
struct KnownBody {
  std::string name;
  double velocity = 0.0;             ///< m/s, positive
  std::vector<KnownCorner> outline;  ///< three corners at least; closed by itself
};

/// What is known of the ground from elsewhere than the picks. The user's own: no inversion changes
/// it.
struct KnownGround {
  std::vector<KnownBorehole> boreholes;
  std::vector<KnownDepth> depths;
  std::vector<KnownBody> bodies;

  bool empty() const { return boreholes.empty() && depths.empty() && bodies.empty(); }
  std::size_t things() const { return boreholes.size() + depths.size() + bodies.size(); }

  static constexpr std::size_t kMostThings = 1000;
  static constexpr std::size_t kMostParts = 5000;  ///< layers and corners, all together
  static constexpr std::size_t kLongestName = 60;  ///< bytes
  static constexpr double kDeepest = 10000.0;      ///< metres
  static constexpr double kSlowest = 1.0;          ///< m/s
  static constexpr double kFastest = 20000.0;      ///< m/s
};

bool operator==(const KnownLayer& a, const KnownLayer& b);
bool operator==(const KnownBorehole& a, const KnownBorehole& b);
bool operator==(const KnownDepth& a, const KnownDepth& b);
bool operator==(const KnownCorner& a, const KnownCorner& b);
bool operator==(const KnownBody& a, const KnownBody& b);
bool operator==(const KnownGround& a, const KnownGround& b);
inline bool operator!=(const KnownGround& a, const KnownGround& b) {
  return !(a == b);
}

/// What cannot be of something known, without its name; empty when all can be.
Message faultOf(const KnownLayer& layer);
Message faultOf(const KnownBorehole& borehole);
Message faultOf(const KnownDepth& depth);
Message faultOf(const KnownBody& body);
/// The first of all, with the name of what it is about.
Message faultOf(const KnownGround& known);

/// As users read it: "borehole B1".
Message titleOf(const KnownBorehole& borehole);
Message titleOf(const KnownDepth& depth);
Message titleOf(const KnownBody& body);

/// Tells known ground apart from other: names do not count. 0 where nothing is known.
std::uint64_t fingerprintOf(const KnownGround& known);

}  // namespace talvesk
