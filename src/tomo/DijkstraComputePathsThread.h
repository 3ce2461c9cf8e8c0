#pragma once

#include "tomo/RayBounds.h"
#include "tomo/RayTree.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;
struct ShotScratch;
struct ShotSums;
struct TravelTime;

/// The work of one shot: its rays through the current grid, the times along them, and what they
/// ask of every cell. It traces once, and evaluates the rays that it has with the new slownesses
/// after every solver iteration. Which thread does that is up to the pool; the name is older.
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

  /// How long its rays take at most, before they are traced; without it the whole ground is
  /// searched. \param firstRay number of its ray to the first receiver among those of all shots
  void expect(const RayBounds& bounds, std::size_t firstRay);
  std::size_t receivers() const;  ///< as many rays as it traces, those without nodes among them

  /// Throws what the search throws.
  void traceRays(ShotScratch& scratch);
  /// The nodes of every ray, handed out once; without nodes: beyond the top line.
  std::vector<std::vector<std::uint32_t>> takeNodes();
  const RayTree& rays() const { return mRays; }  ///< cells are places in cells(); nodes are gone
  /// Every cell that a ray crosses, once, ascending.
  const std::vector<std::uint32_t>& cells() const { return mCells; }

  /// Times of all rays, and what they ask of each of cells().
  void evaluateRays(ShotScratch& scratch, ShotSums& sums);
  /// Adds that to one entry per cell of the grid, for the cells from `first` to `end` - 1.
  void addTo(std::vector<double>& coorslow, std::vector<double>& coorcount, const ShotSums& sums,
             std::size_t first, std::size_t end) const;

 private:
  void search(ShotScratch& scratch, const std::vector<std::uint32_t>& receivers);
  void keep(ShotScratch& scratch);
  void collectCells(ShotScratch& scratch);
  void evaluateRay(std::uint32_t receiver, double time, ShotScratch& scratch, ShotSums& sums);

  std::uint32_t mShotIndex;
  const TomoDocument& mDocument;
  const TravelTime& mRecord;
  std::vector<double>& mComputed;  ///< times of the record, seconds
  std::uint32_t mSpreadIndex;
  std::uint32_t mSourceNode;
  const RayBounds* mBounds = nullptr;
  std::size_t mFirstRay = 0;

  RayTree mRays;                                   ///< a ray per receiver
  std::vector<std::vector<std::uint32_t>> mNodes;  ///< until they are taken
  std::vector<double> mLengths;                    ///< per ray, metres
  std::vector<std::uint32_t> mCells;
};

}  // namespace talvesk
