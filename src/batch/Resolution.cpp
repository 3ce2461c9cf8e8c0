#include "batch/Resolution.h"

#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/Interrupt.h"
#include "figures/ResolutionFigure.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <vector>

namespace talvesk {
namespace {

constexpr std::size_t kMostDepthsTold = 12;

const char* nameOf(ResolutionPattern pattern) {
  switch (pattern) {
    case ResolutionPattern::kSpikes:
      return "spike";
    case ResolutionPattern::kLayers:
      return "layer";
    case ResolutionPattern::kCheckerboard:
      break;
  }
  return "checkerboard";
}

std::string rounded(double value) {
  return std::isfinite(value) ? formatDouble(std::round(value * 100.0) / 100.0) : "-";
}

/// As far down as any test could be judged.
std::size_t judgedRows(const ResolutionReport& report) {
  std::size_t rows = 0;
  for (const ResolutionResult& test : report.tests) {
    for (std::size_t row = rows; row < test.byDepth.size(); ++row) {
      if (!std::isnan(test.byDepth[row].correlation)) rows = row + 1;
    }
  }
  return rows;
}

Json testJson(const ResolutionResult& test) {
  Json depths = Json::array();
  for (const DepthResolution& each : test.byDepth) {
    Json depth = Json::object();
    depth["depth"] = each.depth;
    depth["cells"] = each.cells;
    depth["correlation"] = each.correlation;
    depth["share"] = each.share;
    depths.push_back(std::move(depth));
  }
  Json json = Json::object();
  json["size"] = test.settings.size;
  json["iterations"] = test.iterations;
  json["chi2"] = test.fit.chi2;
  json["by_depth"] = std::move(depths);
  json["true"] = test.truth;
  json["recovered"] = test.recovered;
  json["covered"] = test.covered;
  return json;
}

}  // namespace

ResolutionReport resolve(const InvertOptions& options, const TomoDocument& document) {
  ResolutionRequest request = *options.resolution;
  request.errors = options.fitted.errors;
  request.singleThread = options.parameters.singleThread;
  request.threads = options.parameters.threads;
  request.test.fit = options.fitted.fit;
  request.test.fit.statics = false;
  listenForInterrupt(Interruptible::kAtOnce, !options.quiet);
  ResolutionReport report =
      runResolution(document, request, {}, [] { return !interruptRequested(); });
  if (report.stopped) warn("the resolution test was stopped; what it had not completed is missing");
  return report;
}

void summarizeResolution(const ResolutionReport& report, std::ostream& out) {
  if (report.tests.empty()) return;
  const ResolutionSettings& settings = report.tests.front().settings;
  out << "Resolution, " << nameOf(settings.pattern) << " of "
      << formatDouble(settings.strength * 100.0)
      << " %: correlation of true and recovered by size [m], and the smallest size with "
      << formatDouble(kResolved) << "\n";
  const std::size_t rows = judgedRows(report);
  const std::size_t step = (rows + kMostDepthsTold - 1) / kMostDepthsTold;
  for (std::size_t row = 0; row < rows; row += step) {
    out << "Depth [m] " << rounded(report.smallest[row].depth) << ":";
    for (const ResolutionResult& test : report.tests) {
      out << ' ' << formatDouble(test.settings.size) << " m "
          << rounded(test.byDepth[row].correlation) << ';';
    }
    out << " resolved: " << rounded(report.smallest[row].size) << "\n";
  }
}

Status drawResolution(const ResolutionReport& report, const TomoDocument& document,
                      const std::string& path) {
  return writeResolutionFigure(panelsOf(document, report.tests.front(), kResolved), path);
}

Json resolutionJson(const ResolutionReport& report) {
  Json json = Json::object();
  json["message"] = report.status.message();
  json["stopped"] = report.stopped;
  json["threshold"] = kResolved;
  if (!report.tests.empty()) {
    const ResolutionSettings& settings = report.tests.front().settings;
    json["pattern"] = nameOf(settings.pattern);
    json["strength_percent"] = settings.strength * 100.0;
    json["seed"] = settings.seed;
  }
  Json tests = Json::array();
  for (const ResolutionResult& test : report.tests) tests.push_back(testJson(test));
  json["tests"] = std::move(tests);
  Json smallest = Json::array();
  for (const ResolvedSize& each : report.smallest) {
    Json row = Json::object();
    row["depth"] = each.depth;
    row["size"] = each.size;
    smallest.push_back(std::move(row));
  }
  json["smallest_size"] = std::move(smallest);
  return json;
}

}  // namespace talvesk
