#include "tomo/fitted/ShotRays.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>

namespace talvesk {

void ShotRays::clear() {
  mTimes.clear();
  mEnds.clear();
  mCells.clear();
  mLengths.clear();
}

void ShotRays::add(std::vector<RayPiece>& pieces, const std::vector<double>& slownesses) {
  std::stable_sort(pieces.begin(), pieces.end(),
                   [](const RayPiece& a, const RayPiece& b) { return a.cell < b.cell; });
  double time = 0.0;
  for (std::size_t i = 0; i < pieces.size();) {
    const std::uint32_t cell = pieces[i].cell;
    double length = 0.0;
    for (; i < pieces.size() && pieces[i].cell == cell; ++i) length += pieces[i].length;
    if (!(length > 0.0)) continue;
    mCells.push_back(cell);
    mLengths.push_back(length);
    time += length * slownesses[cell];
  }
  mTimes.push_back(time);
  mEnds.push_back(mCells.size());
}

void ShotRays::appendTo(TracedRays& all) const {
  const std::size_t before = all.rays.cells.size();
  for (const std::size_t end : mEnds) all.rays.first.push_back(before + end);
  all.times.insert(all.times.end(), mTimes.begin(), mTimes.end());
  all.rays.cells.insert(all.rays.cells.end(), mCells.begin(), mCells.end());
  all.rays.lengths.insert(all.rays.lengths.end(), mLengths.begin(), mLengths.end());
}

bool forEachShot(std::size_t shots, unsigned threads, const std::function<bool()>& goOn,
                 const std::function<void(std::size_t worker, std::size_t shot)>& trace) {
  std::atomic<std::size_t> next{0};
  std::atomic<bool> stop{false};
  std::mutex failing;
  std::exception_ptr failure;
  bool stopped = false;
  const auto work = [&](std::size_t worker) {
    while (!stop) {
      // Only the calling thread may ask, and it asks for all.
      if (worker == 0 && goOn && !goOn()) {
        stopped = true;
        stop = true;
        return;
      }
      const std::size_t shot = next++;
      if (shot >= shots) return;
      try {
        trace(worker, shot);
      } catch (...) {
        const std::lock_guard<std::mutex> lock(failing);
        if (failure == nullptr) failure = std::current_exception();
        stop = true;
      }
    }
  };
  std::vector<std::thread> pool;
  try {
    for (std::size_t w = 1; w < std::min<std::size_t>(threads, shots); ++w) {
      pool.emplace_back(work, w);
    }
  } catch (const std::system_error&) {
    // The workers that could be started do it all.
  }
  work(0);
  for (std::thread& thread : pool) thread.join();
  if (failure != nullptr) std::rethrow_exception(failure);
  return !stopped;
}

void joinShots(const std::vector<ShotRays>& shots, TracedRays& traced) {
  traced.times.clear();
  traced.rays.first.assign(1, 0);
  traced.rays.cells.clear();
  traced.rays.lengths.clear();
  for (const ShotRays& shot : shots) shot.appendTo(traced);
}

}  // namespace talvesk
