#include "export/SectionDxf.h"

#include "base/TextNumber.h"
#include "export/DxfColor.h"
#include "export/DxfDocument.h"
#include "export/ExportFailure.h"
#include "export/LineOnMap.h"
#include "model/TomoDocument.h"
#include "view/LabelPlace.h"

#include <QString>
#include <algorithm>
#include <cmath>
#include <optional>

namespace talvesk {
namespace {

// Of the AutoCAD colour index; 7 is black on white and white on black.
constexpr int kBlackOrWhite = 7;
constexpr int kGrey = 8;
constexpr int kGeophoneColor = 3;      // green
constexpr int kShotColor = 1;          // red
constexpr int kSlowest = 170;          // blue, of the hues that go by tens
constexpr int kHues = 16;              // from there down to red
constexpr int kRefractors[] = {5, 6};  // blue, magenta

/// By what is drawn; areas by the name of their ground.
std::string annotationLayer(const Annotation& item) {
  switch (item.kind) {
    case AnnotationKind::kText:
      return "ANNOTATION_TEXT";
    case AnnotationKind::kLine:
      return "ANNOTATION_LINE";
    case AnnotationKind::kPolygon:
      break;
  }
  if (item.pattern == Lithology::kNone) return "ANNOTATION_AREA";
  return "GROUND_" + QString::fromStdString(nameOf(item.pattern).english()).toUpper().toStdString();
}

constexpr double kLettersPerLine = 120.0;  ///< heights of a text in the length of the line

class Drawing {
 public:
  Drawing(const SectionScene& scene, std::optional<LineOnMap> map)
      : mScene(scene), mMap(std::move(map)), mDxf(!mMap) {
    const auto& along = scene.surface.size() > 1 ? scene.surface : scene.geophones;
    const double length = along.size() > 1 ? along.back().x - along.front().x : 0.0;
    mHeight = length > 0.0 ? length / kLettersPerLine : 1.0;
    mDxf.setPointSize(mHeight);
  }

  Status write(const std::string& path) {
    if (!mScene.title.empty()) putTitle();
    mDxf.useLayer("SURFACE", kBlackOrWhite);
    line(mScene.surface);
    if (!mScene.coverageLimit.empty()) {
      mDxf.useLayer("COVERAGE_LIMIT", kGrey);
      line(mScene.coverageLimit);
    }
    putIsolines();
    putMarkedIsolines();
    putRefractors();
    for (const Annotation& item : mScene.annotations.items) putAnnotation(item);
    putPoints("GEOPHONES", kGeophoneColor, mScene.geophones);
    putPoints("SHOTS", kShotColor, mScene.shots);
    return mDxf.write(path);
  }

 private:
  DxfPoint placed(const Point2D& point) const {
    if (!mMap) return {point.x, point.z, 0.0};
    const MapPoint place = mMap->at(point.x);
    return {place.easting, place.northing, point.z};
  }

  void line(const std::vector<Point2D>& points, bool closed = false) {
    std::vector<DxfPoint> corners;
    corners.reserve(points.size());
    for (const Point2D& point : points) corners.push_back(placed(point));
    mDxf.addLine(corners, closed);
  }

  void text(const Point2D& place, double height, const std::string& words,
            DxfAnchor anchor = DxfAnchor::kStart) {
    const MapPoint along = mMap ? mMap->direction(place.x) : MapPoint{1.0, 0.0};
    mDxf.addText(placed(place), height, words, along.easting, along.northing, anchor);
  }

  void putTitle() {
    Point2D corner = mScene.lowerLeft();
    corner.z = mScene.upperRight().z + 4.0 * mHeight;
    if (!isFinite(corner)) return;
    mDxf.useLayer("TITLE", kBlackOrWhite);
    text(corner, 2.0 * mHeight, mScene.title);
  }

  /// Lines of a level that are long enough carry its velocity in their middle.
  void putIsolines() {
    const std::vector<double>& levels = mScene.contourLevels;
    for (const ContourLine& isoline : mScene.contours) {
      const auto at = std::lower_bound(levels.begin(), levels.end(), isoline.value);
      const double rank = static_cast<double>(at - levels.begin()) /
                          std::max(1.0, static_cast<double>(levels.size()) - 1.0);
      const std::string value = formatDouble(isoline.value, 10);
      mDxf.useLayer("ISOLINE_" + value,
                    kSlowest - 10 * static_cast<int>(std::lround(kHues * rank)));
      putIsoline(isoline, value + " m/s");
    }
  }

  void putIsoline(const ContourLine& isoline, const std::string& name) {
    line(isoline.points, isoline.closed);
    const auto ends =
        std::minmax_element(isoline.points.begin(), isoline.points.end(),
                            [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
    if (ends.second->x - ends.first->x < 8.0 * mHeight) return;
    text(isoline.points[isoline.points.size() / 2], mHeight, name);
  }

  void putMarkedIsolines() {
    for (const DrawnIsoline& isoline : mScene.annotations.isolines) {
      if (isoline.lines.empty()) continue;
      const MarkedIsoline& mark = isoline.mark;
      const std::string value = formatDouble(mark.velocity, 10);
      mDxf.useLayer("MARKED_ISOLINE_" + value, nearestDxfColor(mark.color));
      mDxf.useColor(mark.color);
      const std::string name = mark.name.empty() ? std::string() : mark.name + ": ";
      for (const ContourLine& piece : isoline.lines) putIsoline(piece, name + value + " m/s");
    }
  }

  void putAnnotation(const Annotation& item) {
    mDxf.useLayer(annotationLayer(item), kBlackOrWhite);
    mDxf.useColor(item.color);
    if (item.kind != AnnotationKind::kText) {
      line(item.points, item.kind == AnnotationKind::kPolygon);
    }
    if (item.text.empty()) return;
    const double height = mHeight * item.textSize / Annotation().textSize;
    text(labelPlace(item), height, item.text, DxfAnchor::kMiddle);
  }

  void putRefractors() {
    for (std::size_t i = 0; i < mScene.refractors.size(); ++i) {
      mDxf.useLayer("REFRACTOR_" + std::to_string(i + 1), kRefractors[i % 2]);
      const SectionLine& refractor = mScene.refractors[i];
      for (const auto& piece : refractor.pieces) line(piece);
      if (refractor.pieces.empty() || refractor.name.empty()) continue;
      text(refractor.pieces.front().front(), mHeight, refractor.name);
    }
  }

  void putPoints(const char* layer, int color, const std::vector<Point2D>& points) {
    mDxf.useLayer(layer, color);
    for (const Point2D& point : points) mDxf.addPoint(placed(point));
  }

  const SectionScene& mScene;
  std::optional<LineOnMap> mMap;
  DxfDocument mDxf;
  double mHeight = 1.0;  ///< of texts, metres
};

}  // namespace

Status writeSectionDxf(const std::string& path, const TomoDocument& document,
                       const DrawingOptions& options, DrawingPlace place) {
  SectionScene scene;
  if (const Status status = buildDrawing(document, options, scene); !status.ok()) {
    return cannotWrite(path, status.text());
  }
  std::optional<LineOnMap> map;
  if (place == DrawingPlace::kMap) {
    map.emplace(document);
    if (!map->status().ok()) return cannotWrite(path, map->status().text());
  }
  return told(Drawing(scene, std::move(map)).write(path));
}

}  // namespace talvesk
