#include "base/Console.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "tomo/ForwardPass.h"
#include "tomo/Smoothing.h"
#include "tomo/Solver.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <exception>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

void tellEnd(std::chrono::steady_clock::time_point start) {
  const std::time_t now = std::time(nullptr);
  char text[32] = "";
  ctime_r(&now, text);
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
  console::out() << "finished iteration at " << text << "elapsed time: " << seconds.count()
                 << "s\n";
}

/// What an external iteration overwrites before it is through.
class ResultsBefore {
 public:
  explicit ResultsBefore(TomoDocument& document)
      : mDocument(document),
        mSlownesses(document.grid->slownesses()),
        mCoorcount(document.coorcount),
        mHitCounts(document.hitCounts),
        mRays(document.rays),
        mExcluded(document.excluded),
        mTimesOfSection(document.timesOfSection) {
    for (const TravelTime& record : document.ttArray) mComputed.push_back(record.ttCalcolati);
  }

  void restore() {
    for (std::uint32_t c = 0; c < mSlownesses.size(); ++c) {
      mDocument.grid->setSlowness(c, mSlownesses[c]);
    }
    mDocument.coorcount = std::move(mCoorcount);
    mDocument.hitCounts = std::move(mHitCounts);
    mDocument.rays = std::move(mRays);
    mDocument.excluded = std::move(mExcluded);
    mDocument.timesOfSection = mTimesOfSection;
    for (std::size_t s = 0; s < mComputed.size(); ++s) {
      mDocument.ttArray[s].ttCalcolati = std::move(mComputed[s]);
    }
  }

 private:
  TomoDocument& mDocument;
  std::vector<double> mSlownesses;
  std::vector<double> mCoorcount;
  std::vector<std::uint32_t> mHitCounts;
  std::vector<std::vector<std::uint32_t>> mRays;
  std::vector<ExcludedPosition> mExcluded;
  bool mTimesOfSection;
  std::vector<std::vector<double>> mComputed;
};

/// Draw flags of the new grid, and in the document the lower limit of what rays covered.
void setCoverage(TomoDocument& document, Grid& grid) {
  std::vector<Point2D> limit;
  for (std::uint32_t column = 0; column < grid.col(); ++column) {
    bool covered = false;
    for (std::uint32_t row = grid.righe() - 1; row >= 1; --row) {
      const std::uint32_t cell = grid.cellIndex(row, column);
      if (!covered && document.hitCounts[cell] > 0) {
        covered = true;
        limit.push_back(grid.cellCentre(cell));
      }
      grid.setDraw(cell, covered);
    }
  }
  document.setCoverageLimit(std::move(limit));
}

}  // namespace

Status TomoDocument::runTomography_fast(std::vector<double>& slownesses, unsigned threads,
                                        int solverIterations, int smoothing, bool symmetric,
                                        int smoothingType, Log& log) {
  log.write("TomoDocument::runTomography_fast");
  const auto start = std::chrono::steady_clock::now();
  rays.clear();
  log.write(" Forwarding ... ");
  const std::size_t cells = grid->cellCount();
  std::vector<double> coorslow(cells, 0.0);
  coorcount.assign(cells, 0.0);
  hitCounts.assign(cells, 0);

  const std::string n = std::to_string(threads);
  const std::string total =
      " [TOTAL N. THREADS] " + std::to_string(ttArray.size()) + " to be run " + n + " by " + n;
  console::out() << total << std::endl;
  log.write(total);

  ForwardPass pass(*this, threads, log);
  Status status = pass.run("[RUNNIG DIJKSTRA]", &coorslow, &coorcount);
  if (!status.ok()) return status;
  pass.appendRaysTo(rays);
  // These rays are the first through the section that the iteration before has left.
  sectionHistory.push_back(misfitOfTimes(*this));
  tellEnd(start);

  const std::string caption =
      "[INTERNAL RUN " + std::to_string(solverIterations) + "][RUNNIG SOLVEART]";
  for (int it = 0; it < solverIterations; ++it) {
    slownesses =
        updateSlownesses(*grid, coorslow, coorcount, hitCounts, {minVelocity, maxVelocity});
    pass.refreshRayTimes();
    if (it + 1 == solverIterations) break;
    std::fill(coorslow.begin(), coorslow.end(), 0.0);
    std::fill(coorcount.begin(), coorcount.end(), 0.0);
    status = pass.run(caption, &coorslow, &coorcount);
    if (!status.ok()) return status;
  }
  slownesses = smoothSlowness(smoothingTypeOf(smoothingType), *grid, hitCounts, smoothing,
                              verticalRatio(symmetric));
  return {};
}

Status TomoDocument::runTomography(std::vector<double>& slownesses, int solverIterations,
                                   int smoothing, bool multiThread, bool symmetric,
                                   int smoothingType, Log& log) {
  log.write("TomoDocument::runTomography");
  if (const Status status = checkTraceable(*this); !status.ok()) return status;
  const unsigned threads = multiThread ? searchThreads() : 1U;
  ResultsBefore before(*this);
  Status status;
  try {
    status = runTomography_fast(slownesses, threads, solverIterations, smoothing, symmetric,
                                smoothingType, log);
    if (status.ok()) {
      auto corrected = std::make_unique<Grid>(grid->sharedGeometry(), slownesses);
      setCoverage(*this, *corrected);
      grid = std::move(corrected);
      has_tomographic_info = true;
      smoothedResult = false;
      return status;
    }
  } catch (const std::exception& error) {
    status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
  }
  before.restore();
  return status;
}

}  // namespace talvesk
