#include "view/KnownMarks.h"

#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// Turns depths below the surface into elevations, along the lines of a grid.
class Draped {
 public:
  explicit Draped(const TomoDocument& document)
      : mGeometry(document.model->grid->geometry()), mOffset(document.model->xOffset) {}

  bool holds(double x) const {
    const double gridX = x + mOffset;
    return gridX >= 0.0 && gridX <= mGeometry.col() * mGeometry.aLato();
  }
  /// Beyond its ends, and below its last line, as there.
  double elevation(double x, double depth) const {
    const double nodes = mGeometry.lineNodeCount() - 1;
    const double along = (x + mOffset) / mGeometry.aLato() * (mGeometry.nV() - 1);
    const auto node = static_cast<std::uint32_t>(std::lround(std::clamp(along, 0.0, nodes)));
    const double row = depth / mGeometry.aLato();
    const auto line = static_cast<std::uint32_t>(std::min(row, double(mGeometry.righe())));
    const std::uint32_t below = std::min(line + 1, mGeometry.righe());
    const double top = mGeometry.lineZ(line, node);
    const double height = below > line ? mGeometry.lineZ(below, node) - top : mGeometry.aLato();
    return -(top + (row - line) * height);
  }

 private:
  const GridGeometry& mGeometry;
  const double mOffset;
};

/// Sides of a body follow the ground, too: corners are joined in steps.
std::vector<Point2D> outlineOf(const KnownBody& body, const Draped& ground) {
  constexpr int kSteps = 16;
  std::vector<Point2D> outline;
  for (std::size_t i = 0; i < body.outline.size(); ++i) {
    const KnownCorner& a = body.outline[i];
    const KnownCorner& b = body.outline[(i + 1) % body.outline.size()];
    for (int step = 0; step < kSteps; ++step) {
      const double share = static_cast<double>(step) / kSteps;
      const double x = a.x + share * (b.x - a.x);
      outline.push_back({x, ground.elevation(x, a.depth + share * (b.depth - a.depth))});
    }
  }
  return outline;
}

}  // namespace

KnownMarks knownMarks(const TomoDocument& document) {
  KnownMarks marks;
  const Draped ground(document);
  for (const KnownBorehole& borehole : document.known->boreholes) {
    if (!ground.holds(borehole.x)) continue;
    KnownMarks::Borehole& mark = marks.boreholes.emplace_back();
    mark = {borehole.name, borehole.x, borehole.offset, {}};
    for (const KnownLayer& layer : borehole.layers) {
      mark.layers.push_back({ground.elevation(borehole.x, layer.top),
                             ground.elevation(borehole.x, layer.bottom), layer.velocity});
    }
  }
  for (const KnownDepth& point : document.known->depths) {
    if (!ground.holds(point.x)) continue;
    marks.depths.push_back({point.name,
                            {point.x, ground.elevation(point.x, point.depth)},
                            point.depthError(),
                            point.velocityAtDepth()});
  }
  for (const KnownBody& body : document.known->bodies) {
    const bool seen = std::any_of(body.outline.begin(), body.outline.end(),
                                  [&](const KnownCorner& c) { return ground.holds(c.x); });
    if (seen) marks.bodies.push_back({body.name, body.velocity, outlineOf(body, ground)});
  }
  return marks;
}

}  // namespace talvesk
