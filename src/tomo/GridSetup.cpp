#include "tomo/GridSetup.h"

#include <QThread>

#include <cmath>
#include <exception>
#include <memory>
#include <sstream>

#include "base/Console.h"
#include "grid/GridBuilder.h"

namespace talvesk {
namespace {

constexpr double kLargestCoordinate = 1e8;  // metres; more than that is no survey line on this globe

std::string inClassic(double value, bool fixed) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  if (fixed) text << std::fixed;
  text << value;
  return text.str();
}

/// Measures the survey and keeps the cell size that it proposes.
SurveyProfile measure(TomoDocument& document, Log& log) {
  SurveyProfile profile = document.surveyProfile();
  log.write("Minima spaziatura : " + inClassic(profile.minSpacing, true));
  console::out() << "[LOG] Minima spaziatura " << inClassic(profile.minSpacing, false) << std::endl;
  if (profile.hasGeometry()) document.proposedCellSizes.push_back(profile.proposedCellSize);
  return profile;
}

bool plausible(const SurveyProfile& profile) {
  const auto inRange = [](double v) { return std::fabs(v) <= kLargestCoordinate; };
  for (std::size_t i = 0; i < profile.x.size(); ++i) {
    if (!inRange(profile.x[i]) || !inRange(profile.elevation[i])) return false;
  }
  return true;
}

Status checkSurvey(const SurveyProfile& profile) {
  if (!profile.hasGeometry()) {
    return Status::failure(
        "Geophones do not have geometry! \nPlease set the position of geophones\n");
  }
  if (!plausible(profile)) {
    return Status::failure(
        "A position of the survey lies more than 100 000 km away; please check the geometry.");
  }
  return {};
}

Status fail(Log& log, const std::string& message) {
  log.write("Setting Grid ... FAILED. ", 1);
  return Status::failure(message);
}

}  // namespace

GridSettings proposeGrid(TomoDocument& document, SurveyProfile& profile, Log& log) {
  profile = measure(document, log);
  GridSettings settings;
  settings.maxDepth = profile.arrayLength / 2.0;
  settings.cellSize =
      document.proposedCellSizes.empty() ? 0.5 : document.proposedCellSizes.front();
  settings.nodes = 6;
  return settings;
}

Status setUpGrid(TomoDocument& document, const GridSettings& settings, Log& log) {
  log.write("Setting Grid ... ");
  const SurveyProfile profile = measure(document, log);
  if (const Status status = checkSurvey(profile); !status.ok()) {
    return fail(log, status.message());
  }
  if (!(settings.cellSize > 0.0) || !(settings.maxDepth >= 0.0) || settings.nodes < 2 ||
      !std::isfinite(settings.cellSize) || !std::isfinite(settings.maxDepth)) {
    return fail(log, "A grid of cells of " + inClassic(settings.cellSize, false) + " m, " +
                         inClassic(settings.maxDepth, false) +
                         " m deep, cannot be built; choose a positive cell size and depth.");
  }
  const GridSize size = gridSizeFor(profile.arrayLength, settings.maxDepth, settings.cellSize,
                                    settings.nodes);
  const auto threads = static_cast<unsigned>(QThread::idealThreadCount());
  if (const Status status = checkGridSize(size, threads); !status.ok()) {
    return fail(log, status.message());
  }
  log.write("Generating the grid ... ");
  const Splines::LinearSpline surface = profile.surface();
  std::unique_ptr<Grid> grid = buildDefaultGrid(size, surface);
  if (grid == nullptr) return fail(log, "The grid could not be built; see the log.");
  log.write("Generating the grid ... COMPLETED");

  document.info_density.assign(grid->cellCount(), -1.0);
  document.grid = std::move(grid);
  document.surface = surface;
  document.xOffset = profile.xOffset;
  document.modified = true;
  log.write("Setting Grid ... COMPLETED. ");
  log.write("Setting info layer ... COMPLETED. ");
  return {};
}

Status applyLayers(TomoDocument& document, const std::vector<VelocityLayer>& layers) {
  if (document.grid == nullptr) return Status::failure("There is no grid yet; build the grid first.");
  const std::vector<VelocityLayer> accepted = acceptedLayers(layers);
  std::unique_ptr<Grid> grid;
  Status status = buildLayeredGrid(*document.grid, accepted, document.surface, grid);
  if (!status.ok()) return status;
  document.grid = std::move(grid);
  document.layers = accepted;
  document.modified = true;
  return {};
}

}  // namespace talvesk
