#pragma once

#include "tomo/fitted/RayTracer.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk {

/// A piece of a ray inside one cell.
struct RayPiece {
  std::uint32_t cell = 0;
  double length = 0.0;  ///< metres
};

/// What one shot contributes to TracedRays, gathered receiver by receiver.
class ShotRays {
 public:
  void clear();

  /// Adds the ray of the next receiver, in pieces of any order; pieces of one cell are joined and
  /// those without length dropped. Its time is the sum over its cells. Sorts `pieces`.
  void add(std::vector<RayPiece>& pieces, const std::vector<double>& slownesses);

  void appendTo(TracedRays& all) const;

 private:
  std::vector<double> mTimes;
  std::vector<std::size_t> mEnds;  ///< per ray, into the two below
  std::vector<std::uint32_t> mCells;
  std::vector<double> mLengths;
};

/// Calls trace(worker, shot) for every shot from 0, by up to `threads` workers (at least one) that
/// each take the next shot from a queue; the calling thread is worker 0. What `trace` throws is
/// thrown again here, when all workers have ended.
/// \param goOn as in RayTracer::trace
/// \return false when it was stopped
bool forEachShot(std::size_t shots, unsigned threads, const std::function<bool()>& goOn,
                 const std::function<void(std::size_t worker, std::size_t shot)>& trace);

/// Puts the shots together in their order.
void joinShots(const std::vector<ShotRays>& shots, TracedRays& traced);

}  // namespace talvesk
