#include "export/SectionDrawing.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "view/SectionViewSettings.h"

#include <algorithm>

namespace talvesk {
namespace {

void keepPlaces(std::vector<Point2D>& points) {
  points.erase(std::remove_if(points.begin(), points.end(),
                              [](const Point2D& point) { return !isFinite(point); }),
               points.end());
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
