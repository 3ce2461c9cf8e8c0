#include "export/campaign/CampaignLine.h"

#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/KeptRuns.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/SectionScene.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace talvesk {
namespace {

/// The cells of a section by their place: columns with upright sides, rows that follow the surface.
class Cells {
 public:
  explicit Cells(const SectionScene& scene) : mScene(scene), mMesh(scene.mesh) {}

  double left() const { return mMesh.corners.front().x; }
  double right() const { return mMesh.corners[mMesh.corner(0, mMesh.columns)].x; }
  double top() const {
    double highest = -std::numeric_limits<double>::infinity();
    for (std::uint32_t i = 0; i <= mMesh.columns; ++i) highest = std::max(highest, at(0, i).z);
    return highest;
  }
  /// Of the deepest drawn cell.
  double bottom() const {
    double lowest = top();
    for (std::uint32_t row = 0; row < mMesh.rows; ++row) {
      for (std::uint32_t i = 0; i < mMesh.columns; ++i) {
        if (!mMesh.isDrawn(row, i)) continue;
        lowest = std::min({lowest, at(row + 1, i).z, at(row + 1, i + 1).z});
      }
    }
    return lowest;
  }

  /// The velocities down a vertical line, at equal steps from the first elevation on.
  void sampleDown(double x, double first, double step, std::size_t stride,
                  std::vector<float>::iterator out, std::size_t count) const {
    const std::uint32_t column = columnAt(x);
    const double part = (x - at(0, column).x) / (at(0, column + 1).x - at(0, column).x);
    const auto line = [&](std::uint32_t row) {
      return at(row, column).z + part * (at(row, column + 1).z - at(row, column).z);
    };
    std::uint32_t row = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const double z = first + step * static_cast<double>(i);
      while (row < mMesh.rows && z < line(row + 1)) ++row;
      if (row == mMesh.rows) return;
      if (z > line(0) || !mMesh.isDrawn(row, column)) continue;
      *(out + static_cast<std::ptrdiff_t>(i * stride)) =
          static_cast<float>(mScene.velocities[mMesh.cell(row, column)]);
    }
  }

 private:
  const Point2D& at(std::uint32_t line, std::uint32_t column) const {
    return mMesh.corners[mMesh.corner(line, column)];
  }
  std::uint32_t columnAt(double x) const {
    const auto begin = mMesh.corners.begin();
    const auto after =
        std::upper_bound(begin + 1, begin + mMesh.columns, x,
                         [](double place, const Point2D& corner) { return place < corner.x; });
    return static_cast<std::uint32_t>(after - begin) - 1;
  }

  const SectionScene& mScene;
  const SectionMesh& mMesh;
};

SmallSection smallSectionOf(const SectionScene& scene) {
  SmallSection small;
  small.velocities.assign(SmallSection::kColumns * SmallSection::kRows,
                          std::numeric_limits<float>::quiet_NaN());
  const Cells cells(scene);
  const double wide = (cells.right() - cells.left()) / static_cast<double>(SmallSection::kColumns);
  const double high = (cells.bottom() - cells.top()) / static_cast<double>(SmallSection::kRows);
  for (std::size_t i = 0; i < SmallSection::kColumns; ++i) {
    cells.sampleDown(cells.left() + (static_cast<double>(i) + 0.5) * wide, cells.top() + 0.5 * high,
                     high, SmallSection::kColumns,
                     small.velocities.begin() + static_cast<std::ptrdiff_t>(i),
                     SmallSection::kRows);
  }
  return small;
}

/// How much of the section rays have crossed.
void takeCoverage(const SectionScene& scene, const std::vector<std::uint32_t>& hits,
                  CampaignLine& line) {
  const SectionMesh& mesh = scene.mesh;
  if (hits.size() < std::size_t{mesh.rows} * mesh.columns) return;
  std::size_t drawn = 0;
  std::size_t crossed = 0;
  line.length = 0.0;
  line.depth = 0.0;
  for (std::uint32_t column = 0; column < mesh.columns; ++column) {
    const Point2D& top = mesh.corners[mesh.corner(0, column)];
    bool any = false;
    for (std::uint32_t row = 0; row < mesh.rows; ++row) {
      if (!mesh.isDrawn(row, column)) continue;
      ++drawn;
      if (hits[mesh.cell(row, column)] == 0) continue;
      ++crossed;
      any = true;
      line.depth = std::max(line.depth, top.z - mesh.corners[mesh.corner(row + 1, column)].z);
    }
    if (any) line.length += mesh.corners[mesh.corner(0, column + 1)].x - top.x;
  }
  if (drawn > 0) line.covered = static_cast<double>(crossed) / static_cast<double>(drawn);
}

void takeSection(const TomoDocument& document, CampaignLine& line) {
  SectionScene scene;
  if (document.model->grid == nullptr || !buildSectionScene(document, {}, scene).ok()) return;
  line.section = smallSectionOf(scene);
  if (!document.result->has_tomographic_info) return;
  line.hasSection = true;
  line.misfit = sectionMisfitOf(document);
  line.fit = sectionChiSquareOf(document);
  line.picksChanged = picksChangedSince(document);
  line.smoothed = document.result->smoothedResult;
  takeCoverage(scene, document.result->hitCounts, line);
  if (const auto run = shownRun(document)) line.inverted = (*document.runs)[*run].when;
}

std::optional<std::array<LonLat, 2>> endsOf(const TomoDocument& document) {
  if (!document.map->geoCoord_isSet) return {};
  const geographicsCoord& place = document.map->geoCoord;
  const GeoTransformer globe(place.CRS);
  std::array<LonLat, 2> ends;
  const bool known = globe.status().ok() &&
                     globe.transform(place.mEastFstGeoph, place.mNorthFstGeoph, ends[0]) &&
                     globe.transform(place.mEastLstGeoph, place.mNorthLstGeoph, ends[1]);
  if (!known) return {};
  return ends;
}

}  // namespace

CampaignLine campaignLineOf(const TomoDocument& document, const std::string& name) {
  CampaignLine line;
  line.name = name;
  line.shots = document.ttArray.size();
  std::set<std::pair<double, double>> places;
  for (const auto& string : document.line->goephonesStringSet) {
    for (const Point2D& geophone : string) places.emplace(geophone.x, geophone.z);
  }
  line.geophones = places.size();
  for (const TravelTime& record : document.ttArray) line.picks += pickCount(record);
  takeSection(document, line);
  line.ends = endsOf(document);
  return line;
}

CampaignLine failedLine(const std::string& name, const std::string& why) {
  CampaignLine line;
  line.name = name;
  line.failure = why;
  return line;
}

}  // namespace talvesk
