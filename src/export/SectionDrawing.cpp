#include "export/SectionDrawing.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "view/SectionViewSettings.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace talvesk {
namespace {

void keepPlaces(std::vector<Point2D>& points) {
  points.erase(std::remove_if(points.begin(), points.end(),
                              [](const Point2D& point) { return !isFinite(point); }),
               points.end());
}

/// Middles of the columns of a mesh at the surface.
std::vector<Point2D> columnMiddles(const SectionMesh& mesh) {
  std::vector<Point2D> middles;
  for (std::uint32_t column = 0; column < mesh.columns; ++column) {
    const Point2D& left = mesh.corners[mesh.corner(0, column)];
    const Point2D& right = mesh.corners[mesh.corner(0, column + 1)];
    middles.push_back({0.5 * (left.x + right.x), 0.5 * (left.z + right.z)});
  }
  return middles;
}

/// Raises the elevations to where a piece of a line passes above them. \param middles ascending x
void raise(const Point2D& from, const Point2D& to, const std::vector<Point2D>& middles,
           std::vector<double>& elevations) {
  const Point2D& left = from.x <= to.x ? from : to;
  const Point2D& right = from.x <= to.x ? to : from;
  const auto first = std::lower_bound(middles.begin(), middles.end(), left.x,
                                      [](const Point2D& middle, double x) { return middle.x < x; });
  for (auto at = first; at != middles.end() && at->x <= right.x; ++at) {
    const double width = right.x - left.x;
    const double z = width > 0.0 ? left.z + (right.z - left.z) * (at->x - left.x) / width
                                 : std::max(left.z, right.z);
    double& highest = elevations[static_cast<std::size_t>(at - middles.begin())];
    highest = std::max(highest, z);
  }
}

}  // namespace

Status buildDrawing(const TomoDocument& document, const DrawingOptions& options,
                    SectionScene& out) {
  SectionScene scene;
  if (document.model->grid && document.model->grid->cellCount() > 0) {
    SectionSceneOptions wanted;
    wanted.contourValues = options.isovalues;
    wanted.refractors = options.refractors;
    wanted.known = false;
    if (Status status = buildSectionScene(document, wanted, scene); !status.ok()) return status;
  } else {
    scene = sceneWithoutGrid(document, options.refractors);
    if (scene.geophones.empty()) {
      return Status::failure(Message::tr("the survey has no geophones"));
    }
  }
  keepPlaces(scene.surface);
  keepPlaces(scene.coverageLimit);
  scene.title = document.title;
  out = std::move(scene);
  return {};
}

std::vector<IsovalueDepth> isovalueDepths(const SectionScene& drawing) {
  constexpr double kNowhere = -std::numeric_limits<double>::infinity();
  const std::vector<Point2D> middles = columnMiddles(drawing.mesh);
  std::vector<IsovalueDepth> depths;
  for (const double level : drawing.contourLevels) {
    std::vector<double> elevations(middles.size(), kNowhere);
    for (const ContourLine& line : drawing.contours) {
      if (line.value != level) continue;
      for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
        raise(line.points[i], line.points[i + 1], middles, elevations);
      }
      if (line.closed) raise(line.points.back(), line.points.front(), middles, elevations);
    }
    for (std::size_t i = 0; i < middles.size(); ++i) {
      if (elevations[i] == kNowhere) continue;
      depths.push_back({middles[i].x, middles[i].z, level, middles[i].z - elevations[i]});
    }
  }
  return depths;
}

std::vector<double> proposedIsovalues(const TomoDocument& document,
                                      const SectionViewSettings& settings,
                                      const ColorPalette& palette) {
  SectionViewSettings velocities = settings;
  velocities.quantity = SectionQuantity::kVelocity;
  velocities.profile = true;
  SectionSceneOptions options = sceneOptions(velocities, palette);
  options.known = false;
  options.rays = false;
  SectionScene scene;
  if (!buildSectionScene(document, options, scene).ok()) return {};
  return scene.contourLevels.empty() ? roundValues(scene.dataRange, kMostRoundContours)
                                     : scene.contourLevels;
}

}  // namespace talvesk
