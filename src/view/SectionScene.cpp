#include "view/SectionScene.h"

#include "base/RoundStep.h"
#include "model/Annotations.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/RayLines.h"
#include "view/SectionValues.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Negative numbers say that a cell has no information density yet.
std::vector<double> densities(const TomoDocument& document) {
  std::vector<double> values = document.result->info_density;
  values.resize(document.model->grid->cellCount(), -1.0);
  for (double& value : values) {
    if (value < 0.0) value = std::numeric_limits<double>::quiet_NaN();
  }
  return values;
}

std::vector<double> valuesOf(const TomoDocument& document, SectionQuantity quantity) {
  const Grid& grid = *document.model->grid;
  switch (quantity) {
    case SectionQuantity::kVelocity:
      return grid.velocities();
    case SectionQuantity::kVerticalGradient:
      return verticalGradientValues(grid);
    case SectionQuantity::kLaplacian:
      return laplacianValues(grid);
    case SectionQuantity::kCertainty:
      if (!document.result->certainty) break;
      return certaintySpreads(*document.result->certainty);
    case SectionQuantity::kInformationDensity:
      return densities(document);
  }
  return std::vector<double>(grid.cellCount(), std::numeric_limits<double>::quiet_NaN());
}

/// A cell without a value is nothing to draw.
void drawOnlyValues(SectionMesh& mesh, const std::vector<double>& values) {
  for (std::size_t cell = 0; cell < values.size(); ++cell) {
    if (!std::isfinite(values[cell])) mesh.drawn[cell] = 0;
  }
}

/// Least and greatest finite value of the drawn cells; min above max when there is none.
ValueRange drawnRange(const SectionMesh& mesh, const std::vector<double>& values) {
  ValueRange range{kInfinity, -kInfinity};
  for (std::size_t cell = 0; cell < values.size(); ++cell) {
    if (mesh.drawn[cell] == 0 || !std::isfinite(values[cell])) continue;
    range.min = std::min(range.min, values[cell]);
    range.max = std::max(range.max, values[cell]);
  }
  return range;
}

std::vector<Point2D> eachPlaceOnce(std::vector<Point2D> points) {
  const auto notAPlace = [](const Point2D& p) { return !isFinite(p); };
  points.erase(std::remove_if(points.begin(), points.end(), notAPlace), points.end());
  std::sort(points.begin(), points.end(), [](const Point2D& a, const Point2D& b) {
    return std::pair(a.x, a.z) < std::pair(b.x, b.z);
  });
  points.erase(std::unique(points.begin(), points.end()), points.end());
  return points;
}

std::vector<Point2D> allGeophones(const TomoDocument& document) {
  std::vector<Point2D> points;
  for (const auto& string : document.line->goephonesStringSet) {
    points.insert(points.end(), string.begin(), string.end());
  }
  return eachPlaceOnce(std::move(points));
}

std::vector<Point2D> surfaceLine(const Grid& grid, double xOffset) {
  const GridGeometry& geometry = grid.geometry();
  std::vector<Point2D> line;
  line.reserve(geometry.lineNodeCount());
  for (std::uint32_t i = 0; i < geometry.lineNodeCount(); ++i) {
    line.push_back({geometry.lineX(i) - xOffset, -geometry.lineZ(0, i)});
  }
  return line;
}

std::vector<Point2D> coverageCurve(const TomoDocument& document) {
  std::vector<Point2D> curve;
  if (!document.result->coverageSpline || document.result->coverageSpline->npts() < 2) return curve;
  const Splines::BesselSpline spline =
      *document.result->coverageSpline;  // evaluation writes its cache
  const double first = spline.X().front();
  const double last = spline.X().back();
  const double step = document.model->grid->aLato() / 4.0;
  const auto pieces = static_cast<std::uint32_t>(
      std::clamp((last - first) / step, 1.0, 4.0 * document.model->grid->col()));
  for (std::uint32_t i = 0; i <= pieces; ++i) {
    const double x = i == pieces ? last : first + (last - first) * i / pieces;
    const Point2D point{x - document.model->xOffset, -spline(x)};
    if (std::isfinite(point.z)) curve.push_back(point);
  }
  return curve;
}

Status checkOptions(const SectionSceneOptions& options) {
  const std::size_t most = SectionSceneOptions::kMaxContours;
  if (options.equallySpacedContours < 0 ||
      options.contourValues.size() + static_cast<std::size_t>(options.equallySpacedContours) >
          most) {
    return Status::failure(Message::tr("A section has 0 to %1 contour values.").arg(most));
  }
  const std::optional<ValueRange>& range = options.range;
  if (range &&
      (!std::isfinite(range->min) || !std::isfinite(range->max) || !(range->span() > 0.0))) {
    return Status::failure(Message::tr(
        "The value range of the section is empty: its maximum must be greater than its minimum."));
  }
  return {};
}

void addContours(const SectionSceneOptions& options, SectionScene& scene) {
  scene.contourLevels = options.contourValues;
  for (const double value : equallySpacedValues(scene.range, options.equallySpacedContours)) {
    scene.contourLevels.push_back(value);
  }
  std::vector<double>& levels = scene.contourLevels;
  const auto notALevel = [](double level) { return !std::isfinite(level); };
  levels.erase(std::remove_if(levels.begin(), levels.end(), notALevel), levels.end());
  std::sort(levels.begin(), levels.end());
  levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
  if (options.contourLines) scene.contours = contourLines(scene.mesh, scene.cornerValues, levels);
  if (scene.fill == SectionFill::kBands) {
    scene.bands = contourBands(scene.mesh, scene.cornerValues, scene.bandLevels());
  }
}

/// The values of the cells and all that follows from them.
Status fillIn(const TomoDocument& document, const SectionSceneOptions& options,
              SectionScene& scene) {
  scene.velocities = document.model->grid->velocities();
  scene.values = options.values;
  scene.cellValues = options.values ? options.values->values : valuesOf(document, options.quantity);
  scene.cellValues.resize(scene.velocities.size(), std::numeric_limits<double>::quiet_NaN());
  const bool filled = scene.fill != SectionFill::kNone;
  if (filled) drawOnlyValues(scene.mesh, scene.cellValues);
  scene.dataRange = drawnRange(scene.mesh, scene.cellValues);
  if (scene.dataRange.min > scene.dataRange.max) {
    if (filled) {
      return Status::failure(
          Message::tr("There is no section to draw: no cell that is shown has a value for \"%1\".")
              .arg(quantityName(options.quantity)));
    }
    scene.dataRange = {};
  }
  ValueRange shown = scene.dataRange;
  // Half as sure is to look so: from none on.
  if (showsSpread(scene)) shown.min = std::min(shown.min, 0.0);
  scene.range = options.range ? *options.range : niceRange(shown);
  scene.cornerValues = cornerMeans(scene.mesh, scene.cellValues);
  if (filled) addContours(options, scene);
  return {};
}

/// What the section's certainty adds to it.
void putCertainty(const TomoDocument& document, const SectionSceneOptions& options,
                  SectionScene& scene) {
  const Certainty& certainty = *document.result->certainty;
  const bool velocities = scene.quantity == SectionQuantity::kVelocity && !scene.values.has_value();
  if (options.fadeUncertain && velocities && scene.fill != SectionFill::kNone) {
    scene.fading = fadingOf(certainty);
  }
  for (const double velocity : options.bandVelocities) {
    if (scene.depthBands.size() >= kMostDepthBands) break;
    DepthBand band =
        depthBandOf(certainty, document.model->grid->geometry(), document.model->xOffset, velocity);
    if (!band.empty()) scene.depthBands.push_back(std::move(band));
  }
  const bool spread = showsSpread(scene) && scene.fill != SectionFill::kNone;
  if (spread || !scene.fading.empty() || !scene.depthBands.empty()) {
    scene.certainty = certaintyNoteOf(document);
  }
}

/// What its inversion tells of a section.
void putInversion(const TomoDocument& document, SectionScene& scene) {
  scene.misfit = sectionMisfitOf(document);
  scene.fit = sectionChiSquareOf(document);
  scene.picksChanged = picksChangedSince(document);
  scene.smoothed = document.result->has_tomographic_info && document.result->smoothedResult;
  const auto& run = document.result->lastInversion;
  const bool fitted = run && run->fit;  // without solver passes
  if (document.result->has_tomographic_info && !fitted) {
    scene.lastPassPercent = document.result->RMSE_tomography;
  }
}

/// What the user has drawn. Of its isolines only where the section is filled, and with what it is.
void putAnnotations(const TomoDocument& document, const SectionMesh& ground, SectionScene& scene) {
  const Annotations& drawn = *document.annotations;
  if (scene.fill != SectionFill::kNone && !scene.values) {
    scene.annotations.isolines = drawnIsolines(drawn.isolines, ground, scene.velocities);
  }
  scene.annotations.items = drawn.items;
  scene.annotations.outside = countOutside(drawn.items, scene.lowerLeft(), scene.upperRight());
}

template <typename Less>
Point2D extreme(const SectionScene& scene, double start, Less better) {
  Point2D corner{start, start};
  const auto take = [&corner, better](const Point2D& p) {
    if (better(p.x, corner.x)) corner.x = p.x;
    if (better(p.z, corner.z)) corner.z = p.z;
  };
  const SectionMesh& mesh = scene.mesh;
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      if (!mesh.isDrawn(row, column)) continue;
      take(mesh.corners[mesh.corner(row, column)]);
      take(mesh.corners[mesh.corner(row, column + 1)]);
      take(mesh.corners[mesh.corner(row + 1, column)]);
      take(mesh.corners[mesh.corner(row + 1, column + 1)]);
    }
  }
  for (const Point2D& p : scene.geophones) take(p);
  for (const Point2D& p : scene.shots) take(p);
  if (mesh.rows > 0) return corner;
  for (const SectionLine& line : scene.refractors) {
    for (const auto& piece : line.pieces) {
      for (const Point2D& p : piece) take(p);
    }
  }
  return corner;
}

}  // namespace

bool showsSpread(const SectionScene& scene) {
  return scene.quantity == SectionQuantity::kCertainty && !scene.values;
}

Point2D SectionScene::lowerLeft() const {
  return extreme(*this, kInfinity, std::less<double>());
}

Point2D SectionScene::upperRight() const {
  return extreme(*this, -kInfinity, std::greater<double>());
}

std::vector<double> SectionScene::bandLevels() const {
  std::vector<double> levels;
  for (const double level : contourLevels) {
    if (level > range.min && level < range.max) levels.push_back(level);
  }
  return levels;
}

ColorTable sectionColors(const SectionScene& scene, const ColorPalette& palette) {
  if (showsSpread(scene)) return {certaintyPalette(palette.n_colors), scene.range};
  if (scene.fill == SectionFill::kBands) return {palette, scene.range, scene.bandLevels()};
  return {palette, scene.range};
}

Status buildSectionScene(const TomoDocument& document, const SectionSceneOptions& options,
                         SectionScene& out) {
  if (!document.model->grid || document.model->grid->cellCount() == 0) {
    return Status::failure(
        Message::tr("There is no section to draw: the survey has no grid yet. Build one."));
  }
  if (Status status = checkOptions(options); !status.ok()) return status;

  SectionScene scene;
  scene.title = document.title;
  scene.quantity = options.quantity;
  scene.fill = options.fill;
  scene.mesh = sectionMesh(*document.model->grid, document.model->xOffset);
  const SectionMesh ground = scene.mesh;
  if (Status status = fillIn(document, options, scene); !status.ok()) return status;

  const std::optional<Certainty>& certainty = document.result->certainty;
  if (certainty && certainty->touched.size() == scene.velocities.size()) {
    putCertainty(document, options, scene);
  }
  if (options.rays) scene.rays = rayLines(document);
  if (options.coverageLimit) scene.coverageLimit = coverageCurve(document);
  scene.refractors = options.refractors;
  if (options.known) scene.known = knownMarks(document);
  scene.surface = surfaceLine(*document.model->grid, document.model->xOffset);
  scene.geophones = allGeophones(document);
  scene.shots = eachPlaceOnce(document.shotPoints());
  if (options.annotations) putAnnotations(document, ground, scene);
  // The figures of an inversion are none of values that it did not find.
  if (!options.values) putInversion(document, scene);
  out = std::move(scene);
  return {};
}

SectionScene sceneWithoutGrid(const TomoDocument& document, std::vector<SectionLine> refractors) {
  SectionScene scene;
  scene.title = document.title;
  scene.fill = SectionFill::kNone;
  scene.range = niceRange({});
  scene.refractors = std::move(refractors);
  scene.geophones = allGeophones(document);
  scene.surface = scene.geophones;
  scene.shots = eachPlaceOnce(document.shotPoints());
  putAnnotations(document, {}, scene);
  return scene;
}

Message quantityName(SectionQuantity quantity) {
  switch (quantity) {
    case SectionQuantity::kVerticalGradient:
      return Message::tr("Vertical gradient of velocity");
    case SectionQuantity::kLaplacian:
      return Message::tr("Laplacian of velocity");
    case SectionQuantity::kInformationDensity:
      return Message::tr("Information density");
    case SectionQuantity::kCertainty:
      return Message::tr("Uncertainty of velocity");
    case SectionQuantity::kVelocity:
      break;
  }
  return Message::tr("Velocity");
}

std::string quantityUnit(SectionQuantity quantity) {
  switch (quantity) {
    case SectionQuantity::kVerticalGradient:
      return "1/s";
    case SectionQuantity::kLaplacian:
      return "1/(m\xC2\xB7s)";
    case SectionQuantity::kInformationDensity:
      return "";
    case SectionQuantity::kCertainty:
      return "%";
    case SectionQuantity::kVelocity:
      break;
  }
  return "m/s";
}

double rayOpacity(std::size_t count) {
  const double many = static_cast<double>(std::max<std::size_t>(count, 500));
  return std::max(0.45 * std::sqrt(500.0 / many), 0.1);
}

ValueRange niceRange(const ValueRange& range) {
  // A range narrower than rounding errors of its values is one value.
  const double size = std::max(std::abs(range.min), std::abs(range.max));
  ValueRange wide = range;
  if (!(range.span() > 1e-9 * size)) {
    const double margin = size > 0.0 ? 0.05 * size : 1.0;
    wide = {range.min - margin, range.max + margin};
  }
  const double step = roundStep(wide.span() / 30.0);
  // An end that is a multiple but for rounding stays where it is.
  return {std::floor(wide.min / step + 1e-6) * step, std::ceil(wide.max / step - 1e-6) * step};
}

}  // namespace talvesk
