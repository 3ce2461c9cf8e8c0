#include "view/SectionAnnotations.h"

#include <algorithm>

namespace talvesk {

std::vector<DrawnIsoline> drawnIsolines(const std::vector<MarkedIsoline>& marks,
                                        const SectionMesh& mesh,
                                        const std::vector<double>& velocities) {
  std::vector<DrawnIsoline> drawn;
  if (marks.empty()) return drawn;
  const std::vector<double> corners = cornerMeans(mesh, velocities);
  for (const MarkedIsoline& mark : marks) {
    drawn.push_back({mark, contourLines(mesh, corners, {mark.velocity})});
  }
  return drawn;
}

std::size_t countOutside(const std::vector<Annotation>& items, const Point2D& low,
                         const Point2D& high) {
  const auto isOutside = [&](const Annotation& item) {
    Point2D least = item.points.front();
    Point2D most = least;
    for (const Point2D& p : item.points) {
      least = {std::min(least.x, p.x), std::min(least.z, p.z)};
      most = {std::max(most.x, p.x), std::max(most.z, p.z)};
    }
    return most.x < low.x || least.x > high.x || most.z < low.z || least.z > high.z;
  };
  return static_cast<std::size_t>(std::count_if(items.begin(), items.end(), isOutside));
}

}  // namespace talvesk
