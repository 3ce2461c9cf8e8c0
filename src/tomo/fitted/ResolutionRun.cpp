#include "tomo/fitted/ResolutionRun.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/SurveyFit.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

/// Mean of every row, by the logarithm of slowness as a fit sees it.
std::vector<double> meanRows(std::vector<double> slownesses, std::size_t columns) {
  for (std::size_t first = 0; first + columns <= slownesses.size(); first += columns) {
    const auto begin = slownesses.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = begin + static_cast<std::ptrdiff_t>(columns);
    double sum = 0.0;
    for (auto s = begin; s != end; ++s) sum += std::log(*s);
    std::fill(begin, end, std::exp(sum / static_cast<double>(columns)));
  }
  return slownesses;
}

void runTests(const TomoDocument& document, const ResolutionRequest& request,
              const std::function<void(std::size_t, int)>& progress,
              const std::function<bool()>& goOn, ResolutionReport& report) {
  const Grid& grid = *document.model->grid;
  const FitData data = picksToFit(document, request.errors);
  const GridSize& size = grid.geometry().size();
  std::vector<double> background = grid.slownesses();
  if (request.background == ResolutionBackground::kRows) {
    background = meanRows(std::move(background), size.col);
  }
  for (const double s : background) report.background.push_back(1.0 / s);
  const auto tracer =
      fitTracer(grid.sharedGeometry(), data, searchThreads(request.singleThread, request.threads));
  std::vector<double> sizes = request.trySizes ? sizesToTry(size, data) : request.sizes;
  if (sizes.empty()) sizes.push_back(request.test.size);
  for (const double each : sizes) {
    ResolutionSettings settings = request.test;
    settings.size = each;
    ResolutionResult result = testResolution(
        size, data, *tracer, background, settings,
        [&](int iteration) {
          if (progress) progress(report.tests.size(), iteration);
        },
        goOn);
    report.status = result.status;
    report.stopped = result.stopped;
    if (!report.status.ok() || report.stopped) break;
    report.tests.push_back(std::move(result));
  }
  report.smallest = smallestResolved(report.tests);
}

}  // namespace

ResolutionReport runResolution(const TomoDocument& document, const ResolutionRequest& request,
                               const std::function<void(std::size_t, int)>& progress,
                               const std::function<bool()>& goOn) {
  ResolutionReport report;
  report.status = checkTraceable(document);
  if (!report.status.ok()) return report;
  try {
    runTests(document, request, progress, goOn, report);
  } catch (const std::exception& error) {
    report.status =
        Status::failure(Message::tr("The resolution test failed: %1").arg(error.what()));
  }
  return report;
}

}  // namespace talvesk
