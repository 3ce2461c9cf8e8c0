#include "tomo/RefractorReading.h"

#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "tomo/CellDepth.h"
#include "tomo/LayeredProfile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

struct Sample {
  double depth;
  double velocity;
};

/// The drawn cells of the column at a place, from the surface down.
std::vector<Sample> columnAt(const TomoDocument& document, double x) {
  std::vector<Sample> samples;
  const Grid& grid = *document.model->grid;
  const double column = std::floor((x + document.model->xOffset) / grid.aLato());
  if (!(column >= 0.0 && column < grid.col())) return samples;
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    const std::uint32_t cell = grid.cellIndex(row, static_cast<std::uint32_t>(column));
    if (!grid.draw(cell)) continue;
    samples.push_back({cellDepth(grid.geometry(), cell), grid.velocity(cell)});
  }
  return samples;
}

std::optional<double> firstCrossing(const std::vector<Sample>& samples, double velocity,
                                    const DepthRange& range) {
  for (std::size_t i = 1; i < samples.size(); ++i) {
    const Sample& above = samples[i - 1];
    const Sample& below = samples[i];
    if (!(above.velocity < velocity && below.velocity >= velocity)) continue;
    const double share = (velocity - above.velocity) / (below.velocity - above.velocity);
    const double depth = above.depth + share * (below.depth - above.depth);
    if (depth >= range.top && depth <= range.bottom) return depth;
  }
  return std::nullopt;
}

/// Where between its neighbours a parabola through three even values has its top, in their step.
double topOfParabola(double before, double at, double after) {
  const double bend = before - 2.0 * at + after;
  return bend < 0.0 ? std::clamp(0.5 * (before - after) / bend, -0.5, 0.5) : 0.0;
}

std::optional<double> steepest(const std::vector<Sample>& samples, const DepthRange& range) {
  const std::size_t steps = samples.empty() ? 0 : samples.size() - 1;
  std::vector<double> gradients(steps);
  std::optional<std::size_t> most;
  const auto middle = [&](std::size_t i) {
    return (samples[i].depth + samples[i + 1].depth) / 2.0;
  };
  for (std::size_t i = 0; i < steps; ++i) {
    gradients[i] = std::log(samples[i + 1].velocity / samples[i].velocity) /
                   (samples[i + 1].depth - samples[i].depth);
    if (middle(i) < range.top || middle(i) > range.bottom || !(gradients[i] > 0.0)) continue;
    if (!most || gradients[i] > gradients[*most]) most = i;
  }
  if (!most) return std::nullopt;
  if (*most == 0 || *most + 1 == steps) return middle(*most);
  const double shift = topOfParabola(gradients[*most - 1], gradients[*most], gradients[*most + 1]);
  return middle(*most) + shift * (samples[*most + 1].depth - samples[*most].depth);
}

/// Where the steepest gradient of one of several refractors is looked for.
DepthRange rangeOf(const LayeredProfile& profile, std::size_t refractor, double x) {
  if (profile.refractors() < 2) return {};
  const double between = (profile.depth(0, x) + profile.depth(1, x)) / 2.0;
  DepthRange range;
  (refractor == 0 ? range.bottom : range.top) = between;
  return range;
}

/// Of all strings, ascending x, each place once.
std::vector<Point2D> geophonePlaces(const TomoDocument& document) {
  std::vector<Point2D> places;
  for (const std::vector<Point2D>& string : document.line->goephonesStringSet) {
    places.insert(places.end(), string.begin(), string.end());
  }
  std::sort(places.begin(), places.end(),
            [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  const auto same = [](const Point2D& a, const Point2D& b) { return a.x == b.x; };
  places.erase(std::unique(places.begin(), places.end(), same), places.end());
  return places;
}

void addUp(LayerComparison& comparison) {
  double sum = 0.0;
  double squares = 0.0;
  for (const ComparedDepth& point : comparison.points) {
    const std::optional<double> difference = point.difference();
    if (!difference) continue;
    ++comparison.count;
    sum += *difference;
    squares += *difference * *difference;
  }
  if (comparison.count == 0) return;
  const auto count = static_cast<double>(comparison.count);
  comparison.mean = sum / count;
  comparison.rms = std::sqrt(squares / count);
}

}  // namespace

std::optional<double> refractorDepth(const TomoDocument& document, double x,
                                     const RefractorSign& sign, const DepthRange& range) {
  if (document.model->grid == nullptr) return std::nullopt;
  const std::vector<Sample> samples = columnAt(document, x);
  return sign.velocity ? firstCrossing(samples, *sign.velocity, range) : steepest(samples, range);
}

std::optional<double> ComparedDepth::difference() const {
  if (!layers || !section) return std::nullopt;
  return *section - *layers;
}

Status compareRefractor(const TomoDocument& document,
                        const refractionDataStructure::processingData& results,
                        std::size_t refractor, const RefractorSign& sign, LayerComparison& out) {
  if (document.model->grid == nullptr || document.model->grid->cellCount() == 0) {
    return Status::failure(Message::tr("There is no grid with cells; build the grid first."));
  }
  LayeredProfile profile;
  Status status = LayeredProfile::read(results, profile);
  if (!status.ok()) return status;
  if (refractor >= profile.refractors()) {
    return Status::failure(
        Message::tr("The layered profile has no depths of layer %1.").arg(refractor + 2));
  }
  const auto compare = [&](double x, double elevation) {
    const DepthRange range = sign.velocity ? DepthRange{} : rangeOf(profile, refractor, x);
    return ComparedDepth{x, elevation, profile.knownDepth(refractor, x),
                         refractorDepth(document, x, sign, range)};
  };
  LayerComparison comparison;
  comparison.refractor = refractor;
  comparison.sign = sign;
  const Grid& grid = *document.model->grid;
  for (const Point2D& geophone : geophonePlaces(document)) {
    comparison.points.push_back(compare(geophone.x, geophone.z));
  }
  for (std::uint32_t column = 0; column < grid.col(); ++column) {
    const Point2D centre = grid.cellCentre(column);
    comparison.columns.push_back(
        compare(centre.x - document.model->xOffset, cellDepth(grid.geometry(), column) - centre.z));
  }
  addUp(comparison);
  out = std::move(comparison);
  return {};
}

}  // namespace talvesk
