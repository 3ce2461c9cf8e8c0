#include "view/RefractorLines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

std::vector<SectionLine> refractorLines(const refractionDataStructure::Interpretation& records) {
  std::vector<SectionLine> lines;
  for (const refractionDataStructure::computedData& data : records.refractData.cData) {
    SectionLine line;
    const std::size_t count = std::min({data.x.size(), data.elevation.size(), data.depth.size()});
    for (std::size_t i = 0; i < count; ++i) {
      const Point2D point{data.x[i], data.elevation[i] - data.depth[i]};
      if (std::isfinite(point.x) && std::isfinite(point.z)) line.points.push_back(point);
    }
    if (line.points.size() >= 2) lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace talvesk
