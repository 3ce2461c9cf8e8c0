#include "export/SectionGeoPackage.h"

#include "export/ExportFailure.h"
#include "export/GeoPackage.h"
#include "export/LineOnMap.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

using Column = GeoPackage::Column;
using Type = Column::Type;
using Geometry = GeoPackage::Geometry;

std::int64_t number(std::size_t index) {
  return static_cast<std::int64_t>(index + 1);
}

/// The layers of one survey, one after the other.
class Layers {
 public:
  Layers(const TomoDocument& document, const SectionScene& scene, const LineOnMap& map)
      : mDocument(document),
        mScene(scene),
        mMap(map),
        mFile(map.epsg(), map.systemName(), wellKnownText(map.epsg())) {}

  Status write(const std::string& path) {
    putLine();
    putGeophones();
    putShots();
    putIsolines();
    putRefractors();
    putDepths();
    return mFile.write(path);
  }

 private:
  GeoPackageVertex placed(const Point2D& point) const {
    const MapPoint place = mMap.at(point.x);
    return {place.easting, place.northing, point.z};
  }
  std::vector<GeoPackageVertex> placed(const std::vector<Point2D>& points) const {
    std::vector<GeoPackageVertex> corners;
    corners.reserve(points.size() + 1);
    for (const Point2D& point : points) corners.push_back(placed(point));
    return corners;
  }

  /// Of the marked isoline of a velocity; empty where it is none.
  std::string nameOf(double velocity) const {
    for (const MarkedIsoline& mark : mDocument.annotations->isolines) {
      if (mark.velocity == velocity && !mark.name.empty()) return mark.name;
    }
    return {};
  }

  void putLine() {
    mFile.addLayer("line", "Ground surface along the seismic line", Geometry::kLine,
                   {{"title", Type::kText}, {"length_m", Type::kReal}});
    const std::vector<Point2D>& surface = mScene.surface;
    const double length = surface.empty() ? 0.0 : surface.back().x - surface.front().x;
    mFile.addFeature(placed(surface), {mScene.title, length});
  }

  void putGeophones() {
    mFile.addLayer("geophones", "Geophones by string and channel", Geometry::kPoint,
                   {{"string", Type::kInteger},
                    {"number", Type::kInteger},
                    {"distance_m", Type::kReal},
                    {"elevation_m", Type::kReal}});
    const auto& strings = mDocument.line->goephonesStringSet;
    for (std::size_t s = 0; s < strings.size(); ++s) {
      for (std::size_t g = 0; g < strings[s].size(); ++g) {
        const Point2D& place = strings[s][g];
        mFile.addFeature({placed(place)}, {number(s), number(g), place.x, place.z});
      }
    }
  }

  void putShots() {
    mFile.addLayer(
        "shots", "Shots", Geometry::kPoint,
        {{"number", Type::kInteger}, {"distance_m", Type::kReal}, {"elevation_m", Type::kReal}});
    for (std::size_t n = 0; n < mDocument.ttArray.size(); ++n) {
      const Point2D& place = mDocument.ttArray[n].shotPos2d;
      mFile.addFeature({placed(place)}, {number(n), place.x, place.z});
    }
  }

  void putIsolines() {
    mFile.addLayer("isolines", "Lines of equal velocity in the section", Geometry::kLine,
                   {{"velocity_m_s", Type::kReal}, {"name", Type::kText}});
    for (const ContourLine& isoline : mScene.contours) {
      std::vector<GeoPackageVertex> corners = placed(isoline.points);
      if (isoline.closed && !corners.empty()) corners.push_back(corners.front());
      mFile.addFeature(corners, {isoline.value, nameOf(isoline.value)});
    }
  }

  void putRefractors() {
    mFile.addLayer("refractors", "Tops of the refractors of the layered interpretation",
                   Geometry::kLine, {{"number", Type::kInteger}, {"name", Type::kText}});
    for (std::size_t i = 0; i < mScene.refractors.size(); ++i) {
      for (const auto& piece : mScene.refractors[i].pieces) {
        mFile.addFeature(placed(piece), {number(i), mScene.refractors[i].name});
      }
    }
  }

  void putDepths() {
    mFile.addLayer("isovalue_depths", "Depth at which a velocity is first reached",
                   Geometry::kPoint,
                   {{"distance_m", Type::kReal},
                    {"surface_m", Type::kReal},
                    {"velocity_m_s", Type::kReal},
                    {"depth_m", Type::kReal},
                    {"name", Type::kText}});
    for (const IsovalueDepth& at : isovalueDepths(mScene)) {
      mFile.addFeature({placed(Point2D{at.x, at.surface - at.depth})},
                       {at.x, at.surface, at.velocity, at.depth, nameOf(at.velocity)});
    }
  }

  const TomoDocument& mDocument;
  const SectionScene& mScene;
  const LineOnMap& mMap;
  GeoPackage mFile;
};

/// Puts the isolines that the user has marked among the others, however many these are.
void addMarks(SectionScene& scene) {
  std::vector<double>& levels = scene.contourLevels;
  for (const DrawnIsoline& isoline : scene.annotations.isolines) {
    const double velocity = isoline.mark.velocity;
    const auto at = std::lower_bound(levels.begin(), levels.end(), velocity);
    if (at != levels.end() && *at == velocity) continue;
    levels.insert(at, velocity);
    scene.contours.insert(scene.contours.end(), isoline.lines.begin(), isoline.lines.end());
  }
  std::stable_sort(scene.contours.begin(), scene.contours.end(),
                   [](const ContourLine& a, const ContourLine& b) { return a.value < b.value; });
}

}  // namespace

Status writeSectionGeoPackage(const std::string& path, const TomoDocument& document,
                              const DrawingOptions& options) {
  SectionScene scene;
  if (const Status status = buildDrawing(document, options, scene); !status.ok()) {
    return cannotWrite(path, status.text());
  }
  addMarks(scene);
  const LineOnMap map(document);
  if (!map.status().ok()) return cannotWrite(path, map.status().text());
  return told(Layers(document, scene, map).write(path));
}

}  // namespace talvesk
