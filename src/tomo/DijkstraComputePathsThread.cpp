#include "tomo/DijkstraComputePathsThread.h"

#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "tomo/TraceCrew.h"

#include <algorithm>
#include <utility>

namespace talvesk {

DijkstraComputePathsThread::DijkstraComputePathsThread(TomoDocument& document,
                                                       std::uint32_t shotIndex,
                                                       std::uint32_t sourceNode)
    : mShotIndex(shotIndex),
      mDocument(document),
      mRecord(document.ttArray.edit().at(shotIndex)),
      mComputed(document.ttArray.edit()[shotIndex].ttCalcolati.edit()),
      mSpreadIndex(static_cast<std::uint32_t>(mRecord.indexStesa)),
      mSourceNode(sourceNode) {}

void DijkstraComputePathsThread::expect(const RayBounds& bounds, std::size_t firstRay) {
  mBounds = &bounds;
  mFirstRay = firstRay;
}

std::size_t DijkstraComputePathsThread::receivers() const {
  return std::min(mDocument.line->goephonesStringSet.at(mSpreadIndex).size(),
                  mRecord.ttMisurati.size());
}

std::vector<std::vector<std::uint32_t>> DijkstraComputePathsThread::takeNodes() {
  return std::move(mNodes);
}

void DijkstraComputePathsThread::traceRays(ShotScratch& scratch) {
  const std::size_t receivers = this->receivers();
  if (receivers == 0) return;
  const auto& spread = mDocument.line->goephonesStringSet[mSpreadIndex];
  const GridGeometry& geometry = mDocument.model->grid->geometry();
  std::vector<std::uint32_t> nodes(receivers);
  for (std::size_t i = 0; i < receivers; ++i) {
    nodes[i] = geometry.topNodeIndex(spread[i].x + mDocument.model->xOffset);
  }
  search(scratch, nodes);
  scratch.search.trace(nodes, scratch.rays);
  keep(scratch);
}

void DijkstraComputePathsThread::search(ShotScratch& scratch,
                                        const std::vector<std::uint32_t>& receivers) {
  const Grid& grid = *mDocument.model->grid;
  if (mBounds == nullptr) {
    scratch.search.search(grid, mSourceNode);
    return;
  }
  std::vector<WantedRay> wanted;
  for (std::size_t i = 0; i < receivers.size(); ++i) {
    if (receivers[i] == kNoNode) continue;
    wanted.push_back({receivers[i], mBounds->atMost(mSourceNode, receivers[i], mFirstRay + i)});
  }
  scratch.search.search(grid, mSourceNode, wanted, mBounds->latest());
}

/// Takes over what the worker has traced, in memory of its very size: the rays of all shots stay
/// for the whole external iteration.
void DijkstraComputePathsThread::keep(ShotScratch& scratch) {
  const RayTree& traced = scratch.rays;
  mNodes.resize(traced.branches.size());
  mLengths.resize(traced.branches.size());
  traced.sumAlong([&](std::uint32_t step) { return traced.lengths[step]; }, scratch.sums);
  for (std::size_t i = 0; i < traced.branches.size(); ++i) {
    mNodes[i] = traced.nodesOf(i, scratch.runs);
    mLengths[i] = traced.sumOf(i, scratch.sums);
  }
  collectCells(scratch);
  mRays.order = traced.order;
  mRays.lengths = traced.lengths;
  mRays.branches = traced.branches;
}

void DijkstraComputePathsThread::collectCells(ShotScratch& scratch) {
  std::vector<std::uint32_t>& placeOf = scratch.placeOf;
  placeOf.assign(mDocument.model->grid->cellCount(), RayTree::kNone);
  std::size_t count = 0;
  for (const std::uint32_t cell : scratch.rays.cells) {
    count += placeOf[cell] == RayTree::kNone;
    placeOf[cell] = 0;
  }
  mCells.reserve(count);
  for (std::uint32_t cell = 0; cell < placeOf.size(); ++cell) {
    if (placeOf[cell] == RayTree::kNone) continue;
    placeOf[cell] = static_cast<std::uint32_t>(mCells.size());
    mCells.push_back(cell);
  }
  mRays.cells.resize(scratch.rays.cells.size());
  std::transform(scratch.rays.cells.begin(), scratch.rays.cells.end(), mRays.cells.begin(),
                 [&](std::uint32_t cell) { return placeOf[cell]; });
}

void DijkstraComputePathsThread::evaluateRays(ShotScratch& scratch, ShotSums& sums) {
  const Grid& grid = *mDocument.model->grid;
  std::vector<double>& slownesses = scratch.slownesses;
  slownesses.resize(mCells.size());
  for (std::size_t i = 0; i < mCells.size(); ++i) slownesses[i] = grid.slowness(mCells[i]);
  mRays.sumAlong(
      [&](std::uint32_t step) { return mRays.lengths[step] * slownesses[mRays.cells[step]]; },
      scratch.sums);
  sums.corrections.assign(mCells.size(), 0.0);
  sums.rayLengths.assign(mCells.size(), 0.0);
  for (std::uint32_t i = 0; i < mRays.branches.size(); ++i) {
    if (mRays.branches[i].root == kNoNode) continue;
    evaluateRay(i, mRays.sumOf(i, scratch.sums), scratch, sums);
  }
}

void DijkstraComputePathsThread::evaluateRay(std::uint32_t receiver, double time,
                                             ShotScratch& scratch, ShotSums& sums) {
  mComputed.at(receiver) = time;
  const double measured = mRecord.ttMisurati.at(receiver);
  double residual = time - measured;
  if (measured <= 0.0) residual = 0.0;
  residual /= mLengths[receiver];
  // A ray without length, to a receiver at the source, crosses no cell and so adds nothing.
  if (residual == 0.0) return;
  double* corrections = sums.corrections.data();
  double* rayLengths = sums.rayLengths.data();
  mRays.runsOf(receiver, scratch.runs);
  for (const RayTree::Run& run : scratch.runs) {
    for (std::uint32_t step = run.first; step < run.end; ++step) {
      const double length = mRays.lengths[step];
      corrections[mRays.cells[step]] += residual * length;
      rayLengths[mRays.cells[step]] += length;
    }
  }
}

void DijkstraComputePathsThread::addTo(std::vector<double>& coorslow,
                                       std::vector<double>& coorcount, const ShotSums& sums,
                                       std::size_t first, std::size_t end) const {
  auto place = static_cast<std::size_t>(std::lower_bound(mCells.begin(), mCells.end(), first) -
                                        mCells.begin());
  for (; place < mCells.size() && mCells[place] < end; ++place) {
    coorslow[mCells[place]] += sums.corrections[place];
    coorcount[mCells[place]] += sums.rayLengths[place];
  }
}

}  // namespace talvesk
