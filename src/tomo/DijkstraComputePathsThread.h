#pragma once

#include "tomo/RayBounds.h"
#include "tomo/RayTree.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;
struct ShotScratch;
struct TravelTime;

/// The work of one shot: its rays through the current grid, the times along them, and what they
/// ask of every cell. It runs once to trace and evaluate, and again after every solver iteration,
/// when it evaluates the rays that it has with the new slownesses. Which thread runs it is up to
/// the pool; the name is older than that.
///
/// Reads the document; writes the computed times of its own shot and what it holds itself, so that
/// different shots need no lock. As long as it works nobody copies the document, whose parts would
/// be shared then.
class DijkstraComputePathsThread {
 public:
  /// \param shotIndex record of the shot, also the thread's number; its `ttCalcolati` is as long as
  /// its `ttMisurati`
  /// \param sourceNode top-line node of the shot
  DijkstraComputePathsThread(TomoDocument& document, std::uint32_t shotIndex,
                             std::uint32_t sourceNode);

  /// How long its rays take at most, before the first run; without it the whole ground is
  /// searched. \param firstRay number of its ray to the first receiver among those of all shots
  void expect(const RayBounds& bounds, std::size_t firstRay);
  std::size_t receivers() const;  ///< as many rays as it traces, those without nodes among them

  /// Traces the rays, the first time, and evaluates them. Throws what the search throws.
  void run(ShotScratch& scratch);

  /// The nodes of every ray, handed out once after the first run; without nodes: beyond the top
  /// line.
  std::vector<std::vector<std::uint32_t>> takeNodes();
  const RayTree& rays() const { return mRays; }  ///< cells are places in cells(); nodes are gone

  // --- Of the last run.
  /// Every cell that a ray crosses, once, ascending.
  const std::vector<std::uint32_t>& cells() const { return mCells; }
  /// For each of cells(): sum over the rays of residual per metre times length in the cell,
  /// seconds.
  const std::vector<double>& corrections() const { return mCorrections; }
  /// The same of lengths, metres.
  const std::vector<double>& rayLengths() const { return mRayLengths; }
  /// Adds both to one entry per cell of the grid, for the cells from `first` to `end` - 1.
  void addTo(std::vector<double>& coorslow, std::vector<double>& coorcount, std::size_t first,
             std::size_t end) const;

 private:
  void traceRays(ShotScratch& scratch);
  void search(ShotScratch& scratch, const std::vector<std::uint32_t>& receivers);
  void keep(ShotScratch& scratch);
  void collectCells(ShotScratch& scratch);
  void evaluateRays(ShotScratch& scratch);
  void evaluateRay(std::uint32_t receiver, double time, ShotScratch& scratch);

  std::uint32_t mShotIndex;
  const TomoDocument& mDocument;
  const TravelTime& mRecord;
  std::vector<double>& mComputed;  ///< times of the record, seconds
  std::uint32_t mSpreadIndex;
  std::uint32_t mSourceNode;
  const RayBounds* mBounds = nullptr;
  std::size_t mFirstRay = 0;

  RayTree mRays;                                   ///< a ray per receiver, after the first run
  std::vector<std::vector<std::uint32_t>> mNodes;  ///< until they are taken
  std::vector<double> mLengths;                    ///< per ray, metres
  std::vector<std::uint32_t> mCells;
  std::vector<double> mCorrections;
  std::vector<double> mRayLengths;
};

}  // namespace talvesk
