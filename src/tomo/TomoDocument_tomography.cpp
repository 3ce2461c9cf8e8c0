#include "base/Console.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/Coverage.h"
#include "tomo/ExternalIteration.h"
#include "tomo/ForwardPass.h"
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

Status traceAndSolve(TomoDocument& document, std::vector<double>& slownesses,
                     const IterationSettings& settings, TraceCrew& crew, Log& log) {
  log.write("TomoDocument::runTomography_fast");
  const auto start = std::chrono::steady_clock::now();
  TomographyOutcome& outcome = document.result.edit();
  const SharedVector<std::vector<std::uint32_t>> earlier = std::move(outcome.rays);
  outcome.rays = {};
  log.write(" Forwarding ... ");
  Shared<GroundModel>& model = document.model;
  const std::size_t cells = model->grid->cellCount();
  std::vector<double> coorslow(cells, 0.0);
  outcome.coorcount.assign(cells, 0.0);
  outcome.hitCounts.assign(cells, 0);

  const std::string n = std::to_string(crew.width());
  const std::string total = " [TOTAL N. THREADS] " + std::to_string(document.ttArray.size()) +
                            " to be run " + n + " by " + n;
  console::out() << total << std::endl;
  log.write(total);

  ForwardPass pass(document, earlier, crew, log);
  Status status = pass.run("[RUNNIG DIJKSTRA]", &coorslow, &outcome.coorcount);
  if (!status.ok()) return status;
  pass.takeRays(outcome.rays.edit());
  // These rays are the first through the section that the iteration before has left.
  outcome.sectionHistory.push_back(misfitOfTimes(document));
  tellEnd(start);

  const std::string caption =
      "[INTERNAL RUN " + std::to_string(settings.solverIterations) + "][RUNNIG SOLVEART]";
  for (int it = 0; it < settings.solverIterations; ++it) {
    updateSlownesses(model.edit().editGrid(), coorslow, outcome.coorcount, outcome.hitCounts,
                     {model->minVelocity, model->maxVelocity}, crew.pool());
    if (it + 1 == settings.solverIterations) break;
    status = pass.run(caption, &coorslow, &outcome.coorcount);
    if (!status.ok()) return status;
  }
  slownesses = smoothSlowness(settings.smoothingType, *model->grid, outcome.hitCounts,
                              settings.smoothing, verticalRatio(settings.symmetric), crew.pool());
  return {};
}

}  // namespace

Status runExternalIteration(TomoDocument& document, std::vector<double>& slownesses,
                            const IterationSettings& settings, TraceCrew& crew, Log& log) {
  log.write("TomoDocument::runTomography");
  if (const Status status = checkTraceable(document); !status.ok()) return status;
  const TomoDocument before = document;
  Status status;
  try {
    status = traceAndSolve(document, slownesses, settings, crew, log);
    if (status.ok()) {
      auto corrected = std::make_unique<Grid>(document.model->grid->sharedGeometry(), slownesses);
      setCoverage(document, *corrected);
      document.model.edit().grid = std::move(corrected);
      document.result.edit().has_tomographic_info = true;
      document.result.edit().smoothedResult = false;
      return status;
    }
  } catch (const std::exception& error) {
    status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
  }
  // Whoever asked to stop meanwhile has asked for more than this iteration.
  const bool stop = document.stopRequested;
  document = before;
  document.stopRequested = stop;
  return status;
}

Status TomoDocument::runTomography_fast(std::vector<double>& slownesses, unsigned threads,
                                        int solverIterations, int smoothing, bool symmetric,
                                        int smoothingType, Log& log) {
  TraceCrew crew(threads);
  return traceAndSolve(*this, slownesses,
                       {solverIterations, smoothing, symmetric, smoothingTypeOf(smoothingType)},
                       crew, log);
}

Status TomoDocument::runTomography(std::vector<double>& slownesses, int solverIterations,
                                   int smoothing, bool multiThread, bool symmetric,
                                   int smoothingType, Log& log) {
  TraceCrew crew(multiThread ? searchThreads() : 1U);
  return runExternalIteration(
      *this, slownesses, {solverIterations, smoothing, symmetric, smoothingTypeOf(smoothingType)},
      crew, log);
}

}  // namespace talvesk
