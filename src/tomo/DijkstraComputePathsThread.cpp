#include "tomo/DijkstraComputePathsThread.h"

#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <exception>

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

DijkstraComputePathsThread::~DijkstraComputePathsThread() {
  wait();
}

void DijkstraComputePathsThread::use(ShortestPaths& search, std::vector<double>& correction,
                                     std::vector<double>& rayLength) {
  mSearch = &search;
  mCorrection = &correction;
  mRayLength = &rayLength;
  mFailure = "the thread could not be started";  // until it has run to its end
}

void DijkstraComputePathsThread::expect(const RayBounds& bounds, std::size_t firstRay) {
  mBounds = &bounds;
  mFirstRay = firstRay;
}

void DijkstraComputePathsThread::run() {
  try {
    if (mRays.empty()) traceRays();
    for (std::uint32_t i = 0; i < mRays.size(); ++i) evaluateRay(i);
    mFailure.clear();
  } catch (const std::exception& error) {
    mFailure = error.what();
  } catch (...) {
    mFailure = "Unknown exception";
  }
}

std::size_t DijkstraComputePathsThread::receivers() const {
  return std::min(mDocument.line->goephonesStringSet.at(mSpreadIndex).size(),
                  mRecord.ttMisurati.size());
}

void DijkstraComputePathsThread::traceRays() {
  const std::size_t receivers = this->receivers();
  if (receivers == 0) return;
  const auto& spread = mDocument.line->goephonesStringSet[mSpreadIndex];
  const Grid& grid = *mDocument.model->grid;
  std::vector<std::uint32_t> nodes(receivers);
  for (std::size_t i = 0; i < receivers; ++i) {
    nodes[i] = grid.geometry().topNodeIndex(spread[i].x + mDocument.model->xOffset);
  }
  search(grid, nodes);
  std::vector<Ray> rays(receivers);
  for (std::size_t i = 0; i < receivers; ++i) {
    if (nodes[i] != kNoNode) rays[i] = mSearch->ray(nodes[i]);
  }
  mRays = std::move(rays);
  collectCells();
}

void DijkstraComputePathsThread::search(const Grid& grid, const std::vector<std::uint32_t>& nodes) {
  if (mBounds == nullptr) {
    mSearch->search(grid, mSourceNode);
    return;
  }
  std::vector<WantedRay> wanted;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i] == kNoNode) continue;
    wanted.push_back({nodes[i], mBounds->atMost(mSourceNode, nodes[i], mFirstRay + i)});
  }
  mSearch->search(grid, mSourceNode, wanted, mBounds->latest());
}

void DijkstraComputePathsThread::collectCells() {
  std::vector<std::uint8_t> seen(mDocument.model->grid->cellCount(), 0);
  for (const Ray& ray : mRays) {
    for (const GridEdge& step : ray.steps) {
      if (seen[step.cell] != 0) continue;
      seen[step.cell] = 1;
      mCells.push_back(step.cell);
    }
  }
}

void DijkstraComputePathsThread::evaluateRay(std::uint32_t receiver) {
  const Ray& ray = mRays.at(receiver);
  if (ray.nodes.empty()) return;
  const Grid& grid = *mDocument.model->grid;
  double time = 0.0;
  double length = 0.0;
  for (const GridEdge& step : ray.steps) {
    time += step.length * grid.slowness(step.cell);
    length += step.length;
  }
  mLastTime = time;
  mComputed.at(receiver) = time;

  const double measured = mRecord.ttMisurati.at(receiver);
  double residual = time - measured;
  if (measured <= 0.0) residual = 0.0;
  residual /= length;
  // A ray without length, to a receiver at the source, crosses no cell and so adds nothing.
  if (residual == 0.0) return;
  double* correction = mCorrection->data();
  double* rayLength = mRayLength->data();
  for (const GridEdge& step : ray.steps) {
    correction[step.cell] += residual * step.length;
    rayLength[step.cell] += step.length;
  }
}

void DijkstraComputePathsThread::refreshRayTimes(std::uint32_t receiver) {
  for (GridEdge& step : mRays.at(receiver).steps) {
    step.time = mDocument.model->grid->slowness(step.cell) * step.length;
  }
}

}  // namespace talvesk
