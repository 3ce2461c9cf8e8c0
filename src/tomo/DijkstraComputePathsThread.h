#pragma once

#include "tomo/RayBounds.h"
#include "tomo/ShortestPaths.h"

#include <QThread>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct TravelTime;

/// The worker of one shot: its rays through the current grid, the times along them, and what they
/// ask of every cell. Started once to trace and evaluate, and again after every solver iteration,
/// when it evaluates the rays that it has with the new slownesses.
///
/// Reads the document; writes the computed times of its own shot and its own two accumulators, so
/// that workers of different shots need no lock. As long as it works nobody copies the document,
/// whose parts would be shared then. Nothing escapes the thread: see failure().
class DijkstraComputePathsThread : public QThread {
 public:
  /// \param shotIndex record of the shot, also the thread's number; its `ttCalcolati` is as long as
  /// its `ttMisurati`
  /// \param sourceNode top-line node of the shot
  DijkstraComputePathsThread(TomoDocument& document, std::uint32_t shotIndex,
                             std::uint32_t sourceNode);
  /// Waits for the thread where a batch was given up while it ran.
  ~DijkstraComputePathsThread() override;

  /// What the next start works with: the search's memory (first start only) and two zeroed arrays,
  /// one entry per cell.
  void use(ShortestPaths& search, std::vector<double>& correction, std::vector<double>& rayLength);

  /// How long its rays take at most, before the first start; without it the whole ground is
  /// searched. \param firstRay number of its ray to the first receiver among those of all shots
  void expect(const RayBounds& bounds, std::size_t firstRay);
  std::size_t receivers() const;  ///< as many rays as it traces, those without nodes among them

  void evaluateRay(std::uint32_t receiver);      ///< time, computed time and corrections
  void refreshRayTimes(std::uint32_t receiver);  ///< edge times from the current slownesses

  std::uint32_t threadNumber() const { return mShotIndex; }
  const std::vector<Ray>& rays() const { return mRays; }  ///< without nodes: beyond the top line
  double lastTime() const { return mLastTime; }           ///< seconds, of the ray evaluated last
  /// Every cell that a ray crosses, once. Only these entries of the accumulators are ever written.
  const std::vector<std::uint32_t>& cells() const { return mCells; }
  const std::string& failure() const { return mFailure; }  ///< empty: all went well

 protected:
  void run() override;

 private:
  void traceRays();
  void search(const Grid& grid, const std::vector<std::uint32_t>& nodes);
  void collectCells();

  std::uint32_t mShotIndex;
  const TomoDocument& mDocument;
  const TravelTime& mRecord;
  std::vector<double>& mComputed;  ///< times of the record, seconds
  std::uint32_t mSpreadIndex;
  std::uint32_t mSourceNode;
  std::vector<Ray> mRays;  ///< per receiver; empty until the first run
  std::vector<std::uint32_t> mCells;
  const RayBounds* mBounds = nullptr;
  std::size_t mFirstRay = 0;
  ShortestPaths* mSearch = nullptr;
  std::vector<double>* mCorrection = nullptr;
  std::vector<double>* mRayLength = nullptr;
  double mLastTime = 0.0;
  std::string mFailure;
};

}  // namespace talvesk
