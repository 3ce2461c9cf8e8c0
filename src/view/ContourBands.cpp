#include "view/ContourBands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

struct Vertex {
  Point2D point;
  double value = 0.0;
};
using Polygon = std::vector<Vertex>;

/// What of a polygon lies on one side of a level. Values are linear along its sides.
Polygon clipped(const Polygon& polygon, double level, bool keepAbove) {
  Polygon out;
  const auto kept = [level, keepAbove](const Vertex& v) {
    return keepAbove ? v.value >= level : v.value <= level;
  };
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Vertex& a = polygon[i];
    const Vertex& b = polygon[(i + 1) % polygon.size()];
    if (kept(a)) out.push_back(a);
    if (kept(a) == kept(b)) continue;
    const double f = (level - a.value) / (b.value - a.value);
    const Point2D cut{a.point.x + f * (b.point.x - a.point.x),
                      a.point.z + f * (b.point.z - a.point.z)};
    out.push_back({cut, level});
  }
  return out;
}

class BandCutter {
 public:
  BandCutter(const SectionMesh& mesh, const std::vector<double>& values,
             const std::vector<double>& levels, ContourBands& out)
      : mMesh(mesh), mValues(values), mLevels(levels), mOut(out) {}

  void cell(std::uint32_t row, std::uint32_t column) {
    // Clockwise from the upper left corner.
    const std::array<std::size_t, 4> corners{
        mMesh.corner(row, column), mMesh.corner(row, column + 1), mMesh.corner(row + 1, column + 1),
        mMesh.corner(row + 1, column)};
    Polygon quad;
    for (const std::size_t corner : corners) {
      if (!std::isfinite(mValues[corner])) return;
      quad.push_back({mMesh.corners[corner], mValues[corner]});
    }
    const auto [low, high] =
        std::minmax({quad[0].value, quad[1].value, quad[2].value, quad[3].value});
    const int lowest = bandOf(low);
    const int highest = bandOf(high);
    int& band = mOut.cellBand[mMesh.cell(row, column)];
    band = lowest == highest ? lowest : ContourBands::kCut;
    if (band != ContourBands::kCut) return;
    if (!isSaddle(quad)) {
      cut(quad, lowest, highest);
      return;
    }
    // The sides alone do not tell what is joined in the middle; its mean does.
    Vertex middle;
    for (const Vertex& v : quad) {
      middle.point.x += v.point.x / 4.0;
      middle.point.z += v.point.z / 4.0;
      middle.value += v.value / 4.0;
    }
    for (std::size_t i = 0; i < 4; ++i) cut({quad[i], quad[(i + 1) % 4], middle}, lowest, highest);
  }

 private:
  int bandOf(double value) const {
    return static_cast<int>(std::upper_bound(mLevels.begin(), mLevels.end(), value) -
                            mLevels.begin());
  }

  static bool isSaddle(const Polygon& quad) {
    const auto [a, b] = std::minmax(quad[0].value, quad[2].value);
    const auto [c, d] = std::minmax(quad[1].value, quad[3].value);
    return a > d || c > b;
  }

  void cut(Polygon rest, int lowest, int highest) {
    for (int band = lowest; band <= highest && rest.size() >= 3; ++band) {
      if (band == highest) {
        add(rest, band);
        return;
      }
      const double top = mLevels[static_cast<std::size_t>(band)];
      add(clipped(rest, top, false), band);
      rest = clipped(rest, top, true);
    }
  }

  void add(const Polygon& polygon, int band) {
    if (polygon.size() < 3) return;
    mOut.pieces.push_back({band, mOut.points.size(), polygon.size()});
    for (const Vertex& v : polygon) mOut.points.push_back(v.point);
  }

  const SectionMesh& mMesh;
  const std::vector<double>& mValues;
  const std::vector<double>& mLevels;
  ContourBands& mOut;
};

}  // namespace

ContourBands contourBands(const SectionMesh& mesh, const std::vector<double>& cornerValues,
                          const std::vector<double>& levels) {
  ContourBands bands;
  bands.cellBand.assign(mesh.drawn.size(), ContourBands::kBlank);
  BandCutter cutter(mesh, cornerValues, levels, bands);
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      if (mesh.isDrawn(row, column)) cutter.cell(row, column);
    }
  }
  return bands;
}

}  // namespace talvesk
