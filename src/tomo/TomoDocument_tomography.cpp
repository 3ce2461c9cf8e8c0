#include "base/Console.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/Coverage.h"
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

}  // namespace

Status TomoDocument::runTomography_fast(std::vector<double>& slownesses, unsigned threads,
                                        int solverIterations, int smoothing, bool symmetric,
                                        int smoothingType, Log& log) {
  log.write("TomoDocument::runTomography_fast");
  const auto start = std::chrono::steady_clock::now();
  TomographyOutcome& outcome = result.edit();
  const SharedVector<std::vector<std::uint32_t>> earlier = std::move(outcome.rays);
  outcome.rays = {};
  log.write(" Forwarding ... ");
  const std::size_t cells = model->grid->cellCount();
  std::vector<double> coorslow(cells, 0.0);
  outcome.coorcount.assign(cells, 0.0);
  outcome.hitCounts.assign(cells, 0);

  const std::string n = std::to_string(threads);
  const std::string total =
      " [TOTAL N. THREADS] " + std::to_string(ttArray.size()) + " to be run " + n + " by " + n;
  console::out() << total << std::endl;
  log.write(total);

  ForwardPass pass(*this, earlier, threads, log);
  Status status = pass.run("[RUNNIG DIJKSTRA]", &coorslow, &outcome.coorcount);
  if (!status.ok()) return status;
  pass.appendRaysTo(outcome.rays.edit());
  // These rays are the first through the section that the iteration before has left.
  outcome.sectionHistory.push_back(misfitOfTimes(*this));
  tellEnd(start);

  const std::string caption =
      "[INTERNAL RUN " + std::to_string(solverIterations) + "][RUNNIG SOLVEART]";
  WorkerPool workers(threads);
  for (int it = 0; it < solverIterations; ++it) {
    updateSlownesses(model.edit().editGrid(), coorslow, outcome.coorcount, outcome.hitCounts,
                     {model->minVelocity, model->maxVelocity}, workers);
    pass.refreshRayTimes();
    if (it + 1 == solverIterations) break;
    std::fill(coorslow.begin(), coorslow.end(), 0.0);
    std::fill(outcome.coorcount.begin(), outcome.coorcount.end(), 0.0);
    status = pass.run(caption, &coorslow, &outcome.coorcount);
    if (!status.ok()) return status;
  }
  slownesses = smoothSlowness(smoothingTypeOf(smoothingType), *model->grid, outcome.hitCounts,
                              smoothing, verticalRatio(symmetric), workers);
  return {};
}

Status TomoDocument::runTomography(std::vector<double>& slownesses, int solverIterations,
                                   int smoothing, bool multiThread, bool symmetric,
                                   int smoothingType, Log& log) {
  log.write("TomoDocument::runTomography");
  if (const Status status = checkTraceable(*this); !status.ok()) return status;
  const unsigned threads = multiThread ? searchThreads() : 1U;
  const TomoDocument before = *this;
  Status status;
  try {
    status = runTomography_fast(slownesses, threads, solverIterations, smoothing, symmetric,
                                smoothingType, log);
    if (status.ok()) {
      auto corrected = std::make_unique<Grid>(model->grid->sharedGeometry(), slownesses);
      setCoverage(*this, *corrected);
      model.edit().grid = std::move(corrected);
      result.edit().has_tomographic_info = true;
      result.edit().smoothedResult = false;
      return status;
    }
  } catch (const std::exception& error) {
    status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
  }
  // Whoever asked to stop meanwhile has asked for more than this iteration.
  const bool stop = stopRequested;
  *this = before;
  stopRequested = stop;
  return status;
}

}  // namespace talvesk
