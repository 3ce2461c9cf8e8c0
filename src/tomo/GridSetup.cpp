#include "tomo/GridSetup.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "grid/GridBuilder.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/RayRecomputation.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <locale>
#include <memory>
#include <sstream>
#include <utility>

namespace talvesk {
namespace {

constexpr std::uint32_t kFewestNodes = parameters::kNodes.limits.least;  // per cell side

std::string withSixDecimals(double value) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::fixed << value;
  return text.str();
}

/// Measures the survey and keeps the cell size that it proposes.
SurveyProfile measure(TomoDocument& document, Log& log) {
  SurveyProfile profile = document.surveyProfile();
  log.write("Minima spaziatura : " + withSixDecimals(profile.minSpacing));
  console::out() << "[LOG] Minima spaziatura " << formatDouble(profile.minSpacing) << std::endl;
  if (profile.hasGeometry()) document.proposedCellSizes.edit().push_back(profile.proposedCellSize);
  return profile;
}

Status checkSurvey(const SurveyProfile& profile) {
  if (!profile.hasGeometry()) {
    return Status::failure(
        Message::tr("Geophones do not have geometry! \nPlease set the position of geophones\n"));
  }
  if (!profile.isOnGlobe()) {
    return Status::failure(Message::tr(
        "A position of the survey lies more than 100 000 km away; please check the geometry."));
  }
  return {};
}

Status fail(Log& log, const Message& message) {
  log.write("Setting Grid ... FAILED. ", 1);
  return Status::failure(message);
}

}  // namespace

void installGrid(TomoDocument& document, std::unique_ptr<Grid> grid) {
  std::vector<double> noInformation(grid->cellCount(), -1.0);
  document.clearInversion();
  document.result.edit().info_density = std::move(noInformation);
  document.model.edit().grid = std::move(grid);
}

GridSettings proposeGrid(TomoDocument& document, SurveyProfile& profile, Log& log) {
  profile = measure(document, log);
  GridSettings settings;
  settings.maxDepth = profile.arrayLength / 2.0;
  settings.cellSize = document.proposedCellSizes.empty() ? parameters::kCellSize.initial
                                                         : document.proposedCellSizes.front();
  settings.cellSize = std::max(settings.cellSize, parameters::kCellSize.limits.least);
  settings.nodes = std::max(document.model->grid ? document.model->grid->nV() : 0U, kFewestNodes);
  return settings;
}

Status setUpGrid(TomoDocument& document, const GridSettings& settings, Log& log) {
  log.write("Setting Grid ... ");
  const SurveyProfile profile = measure(document, log);
  if (const Status status = checkSurvey(profile); !status.ok()) {
    return fail(log, status.text());
  }
  if (!(settings.cellSize > 0.0) || !(settings.maxDepth >= 0.0) || settings.nodes < 2 ||
      !std::isfinite(settings.cellSize) || !std::isfinite(settings.maxDepth)) {
    return fail(log, Message::tr("A grid of cells of %1 with %2 nodes per side, %3 deep, cannot be "
                                 "built; choose a positive cell size, two nodes at least and no "
                                 "negative depth.")
                         .arg(Message::length(settings.cellSize))
                         .arg(settings.nodes)
                         .arg(Message::length(settings.maxDepth)));
  }
  const GridSize size =
      gridSizeFor(profile.arrayLength, settings.maxDepth, settings.cellSize, settings.nodes);
  if (const Status status = checkGridSize(size, searchThreads(false, settings.searches));
      !status.ok()) {
    return fail(log, status.text());
  }
  log.write("Generating the grid ... ");
  try {
    Splines::LinearSpline surface = profile.surface();
    std::unique_ptr<Grid> grid = buildDefaultGrid(size, surface);
    if (grid == nullptr) {
      return fail(log, Message::tr("The grid could not be built; see the error stream."));
    }
    log.write("Generating the grid ... COMPLETED");
    installGrid(document, std::move(grid));
    document.model.edit().surface = std::move(surface);
    document.model.edit().xOffset = profile.xOffset;
  } catch (const std::exception& error) {
    return fail(log, Message::tr("The grid could not be built: %1").arg(error.what()));
  }
  log.write("Setting Grid ... COMPLETED. ");
  log.write("Setting info layer ... COMPLETED. ");
  return {};
}

Status applyLayers(TomoDocument& document, const std::vector<VelocityLayer>& layers,
                   const LayerFill& fill) {
  if (document.model->grid == nullptr) {
    return Status::failure(Message::tr("There is no grid yet; build the grid first."));
  }
  std::vector<VelocityLayer> accepted = acceptedLayers(layers);
  std::unique_ptr<Grid> grid;
  const Grid& current = *document.model->grid;
  Status status = fill.spline ? buildLayeredGrid(current, accepted, document.model->surface, grid)
                              : buildSharpGrid(current, accepted, fill.thickness, grid);
  if (!status.ok()) return status;
  installGrid(document, std::move(grid));
  document.model.edit().layers = std::move(accepted);
  return {};
}

Status smoothGrid(TomoDocument& document, SmoothingType type, int radius, bool symmetric,
                  Log& log) {
  if (document.model->grid == nullptr || document.model->grid->cellCount() == 0) {
    return Status::failure(Message::tr("There is no grid with cells; build the grid first."));
  }
  if (radius < 1) {
    return Status::failure(Message::tr("The smoothing parameter must be 1 at least."));
  }
  const Grid& current = *document.model->grid;
  try {
    std::vector<std::uint32_t> hits = document.result->hitCounts;
    hits.resize(current.cellCount(), 0);  // without an inversion no ray passed anywhere
    auto smoothed = std::make_unique<Grid>(
        current.sharedGeometry(),
        smoothSlowness(type, current, hits, radius, verticalRatio(symmetric)));
    const Message invalid = smoothed->invalidSlowness();
    if (!invalid.empty()) {
      return Status::failure(
          Message::tr("The smoothed velocity model cannot be used: %1").arg(invalid));
    }
    for (std::uint32_t c = 0; c < current.cellCount(); ++c) smoothed->setDraw(c, current.draw(c));
    TomoDocument copy = document;
    copy.model.edit().grid = std::move(smoothed);
    if (copy.result->has_tomographic_info) {
      copy.result.edit().smoothedResult = true;
      copy.result.edit().certainty.reset();
      if (Status status = traceSection(copy, searchThreads(), log); !status.ok()) return status;
    }
    document = std::move(copy);
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("The grid could not be smoothed: %1").arg(error.what()));
  }
  return {};
}

}  // namespace talvesk
