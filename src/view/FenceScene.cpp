#include "view/FenceScene.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "view/SectionValues.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLeastShare = 0.15;  ///< of the longer side of the grid, for the shorter one
constexpr double kFilled = 0.7;  ///< part of a picture that a fence takes; the rest is for words

bool isFinitePoint(const FencePoint& p) {
  return std::isfinite(p.east) && std::isfinite(p.north) && std::isfinite(p.z);
}

template <typename Better>
FencePoint better(const FencePoint& a, const FencePoint& b, Better pick) {
  return {pick(a.east, b.east), pick(a.north, b.north), pick(a.z, b.z)};
}

constexpr auto kLower = [](double a, double b) { return std::min(a, b); };
constexpr auto kHigher = [](double a, double b) { return std::max(a, b); };

/// Once, for views ask at every move of the mouse.
void measure(FencePanel& panel) {
  const SectionMesh& mesh = panel.mesh;
  panel.low = {kInfinity, kInfinity, kInfinity};
  panel.high = {-kInfinity, -kInfinity, -kInfinity};
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      if (!mesh.isDrawn(row, column)) continue;
      for (const std::size_t at :
           {mesh.corner(row, column), mesh.corner(row, column + 1), mesh.corner(row + 1, column),
            mesh.corner(row + 1, column + 1)}) {
        panel.low = better(panel.low, panel.corners[at], kLower);
        panel.high = better(panel.high, panel.corners[at], kHigher);
      }
    }
  }
}

void widen(double& low, double& high, double least) {
  const double lack = 0.5 * std::max(least - (high - low), 0.0);
  low -= lack;
  high += lack;
}

}  // namespace

ValueRange velocityRange(const FencePanel& panel) {
  ValueRange range{kInfinity, -kInfinity};
  for (std::size_t cell = 0; cell < panel.velocities.size(); ++cell) {
    if (panel.mesh.drawn[cell] == 0) continue;
    range.min = std::min(range.min, panel.velocities[cell]);
    range.max = std::max(range.max, panel.velocities[cell]);
  }
  return range;
}

FencePoint FenceScene::low() const {
  if (panels.empty()) return {};
  FencePoint corner = panels.front().low;
  for (const FencePanel& panel : panels) corner = better(corner, panel.low, kLower);
  return corner;
}

FencePoint FenceScene::high() const {
  if (panels.empty()) return {1.0, 1.0, 1.0};
  FencePoint corner = panels.front().high;
  for (const FencePanel& panel : panels) corner = better(corner, panel.high, kHigher);
  return corner;
}

std::pair<FencePoint, FencePoint> frameBox(const FenceScene& scene) {
  FencePoint low = scene.low();
  FencePoint high = scene.high();
  const double least = kLeastShare * std::max(high.east - low.east, high.north - low.north);
  widen(low.east, high.east, least);
  widen(low.north, high.north, least);
  return {low, high};
}

Status addFencePanel(const TomoDocument& document, const std::string& name,
                     const std::function<FencePoint(double x)>& place, FenceScene& scene) {
  if (!document.model->grid || document.model->grid->cellCount() == 0) {
    return Status::failure(Message::tr("it has no section"));
  }
  FencePanel panel;
  panel.name = name;
  panel.mesh = sectionMesh(*document.model->grid, document.model->xOffset);
  panel.velocities = document.model->grid->velocities();
  for (std::size_t cell = 0; cell < panel.velocities.size(); ++cell) {
    if (!std::isfinite(panel.velocities[cell])) panel.mesh.drawn[cell] = 0;
  }
  const auto& drawn = panel.mesh.drawn;
  if (std::none_of(drawn.begin(), drawn.end(), [](std::uint8_t d) { return d != 0; })) {
    return Status::failure(Message::tr("no cell of its section is drawn"));
  }
  const std::size_t width = std::size_t{panel.mesh.columns} + 1;
  for (std::size_t i = 0; i < panel.mesh.corners.size(); ++i) {
    // Corners of a column lie one below the other, and another system is slow to ask.
    const Point2D& corner = panel.mesh.corners[i];
    const bool below = i >= width && corner.x == panel.mesh.corners[i % width].x;
    FencePoint p = below ? panel.corners[i % width] : place(corner.x);
    p.z = corner.z;
    if (!isFinitePoint(p)) return Status::failure(Message::tr("its line is nowhere on the map"));
    panel.corners.push_back(p);
  }
  panel.surface.assign(panel.corners.begin(), panel.corners.begin() + panel.mesh.columns + 1);
  measure(panel);
  scene.panels.push_back(std::move(panel));
  return {};
}

FenceCamera::Offset FenceCamera::project(const FencePoint& point) const {
  const double east = point.east - centre.east;
  const double north = point.north - centre.north;
  const double z = exaggeration * (point.z - centre.z);
  const double sine = std::sin(azimuth * kDegree);
  const double cosine = std::cos(azimuth * kDegree);
  const double along = east * sine + north * cosine;  // away from who looks
  return {(east * cosine - north * sine) / metresPerPixel,
          (along * std::sin(tilt * kDegree) + z * std::cos(tilt * kDegree)) / metresPerPixel};
}

void FenceCamera::turnBy(double turned, double tilted) {
  azimuth = std::fmod(azimuth + turned + 360.0, 360.0);
  tilt = std::clamp(tilt + tilted, kLeastTilt, kMostTilt);
}

void FenceCamera::panBy(double right, double up) {
  const double sine = std::sin(azimuth * kDegree);
  const double cosine = std::cos(azimuth * kDegree);
  // The centre moves in the plane of the picture, the other way.
  const double away = -up * metresPerPixel * std::sin(tilt * kDegree);
  const double side = -right * metresPerPixel;
  centre.east += side * cosine + away * sine;
  centre.north += -side * sine + away * cosine;
  centre.z -= up * metresPerPixel * std::cos(tilt * kDegree) / exaggeration;
}

void FenceCamera::fit(const FenceScene& scene, double width, double height) {
  const auto [low, high] = frameBox(scene);
  centre = {0.5 * (low.east + high.east), 0.5 * (low.north + high.north), 0.5 * (low.z + high.z)};
  metresPerPixel = 1.0;
  Offset most;
  for (const double east : {low.east, high.east}) {
    for (const double north : {low.north, high.north}) {
      for (const double z : {low.z, high.z}) {
        const Offset offset = project({east, north, z});
        most = {std::max(most.right, std::fabs(offset.right)),
                std::max(most.up, std::fabs(offset.up))};
      }
    }
  }
  metresPerPixel = std::max({2.0 * most.right / (kFilled * std::max(width, 1.0)),
                             2.0 * most.up / (kFilled * std::max(height, 1.0)), 1e-6});
}

}  // namespace talvesk
