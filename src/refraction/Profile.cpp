#include "refraction/Profile.h"

#include "base/TextNumber.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

/// A known value at a receiver of the refractor, else a dash.
std::string cell(const computedData& refractor, const std::vector<double>& values, double x) {
  const auto at = std::lower_bound(refractor.x.begin(), refractor.x.end(), x);
  if (at == refractor.x.end() || *at != x) return "-";
  const auto i = static_cast<std::size_t>(at - refractor.x.begin());
  return i < values.size() && std::isfinite(values[i]) ? formatDouble(values[i]) : "-";
}

}  // namespace

std::vector<ProfileBoundary> profileBoundaries(const processingData& results) {
  std::vector<ProfileBoundary> boundaries;
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    const computedData& refractor = results.cData[i];
    ProfileBoundary boundary;
    boundary.refractor = static_cast<std::uint32_t>(i) + 2;
    const std::size_t n =
        std::min({refractor.x.size(), refractor.depth.size(), refractor.elevation.size()});
    bool joined = false;
    for (std::size_t j = 0; j < n; ++j) {
      const double z = refractor.elevation[j] - refractor.depth[j];
      if (std::isfinite(z)) {
        if (!joined) boundary.lines.emplace_back();
        boundary.lines.back().push_back({refractor.x[j], z});
      }
      joined = std::isfinite(z);
    }
    if (!boundary.lines.empty()) boundaries.push_back(std::move(boundary));
  }
  return boundaries;
}

std::vector<Point2D> profileSurface(const processingData& results) {
  std::vector<Point2D> surface;
  for (const computedData& refractor : results.cData) {
    const std::size_t n = std::min(refractor.x.size(), refractor.elevation.size());
    for (std::size_t j = 0; j < n; ++j) {
      surface.push_back({refractor.x[j], refractor.elevation[j]});
    }
  }
  keepFirstOfEachX(surface);
  return surface;
}

std::optional<double> valueAt(const computedData& refractor, const std::vector<double>& values,
                              double x) {
  const std::size_t n = std::min(refractor.x.size(), values.size());
  const auto begin = refractor.x.begin();
  const auto end = begin + static_cast<std::ptrdiff_t>(n);
  const auto at = std::lower_bound(begin, end, x);
  if (at == end) return std::nullopt;
  const auto i = static_cast<std::size_t>(at - begin);
  if (*at == x) return values[i];
  if (i == 0) return std::nullopt;
  const double w = (x - refractor.x[i - 1]) / (refractor.x[i] - refractor.x[i - 1]);
  return (1.0 - w) * values[i - 1] + w * values[i];
}

bool hasGaps(const processingData& results) {
  const auto unknown = [](double value) { return !std::isfinite(value); };
  const auto gapIn = [&unknown](const std::vector<double>& values) {
    return std::any_of(values.begin(), values.end(), unknown);
  };
  return unknown(results.v1) ||
         std::any_of(results.cData.begin(), results.cData.end(), [&](const computedData& one) {
           return gapIn(one.velocity) || gapIn(one.depth);
         });
}

std::string profileTable(const processingData& results) {
  static const computedData kNone;
  const computedData& upper = results.cData.empty() ? kNone : results.cData[0];
  const computedData& lower = results.cData.size() < 2 ? kNone : results.cData[1];
  std::string table = " x    z    z2    tV  TV2   tg    tg2      V       V2\n";
  for (const Point2D& receiver : profileSurface(results)) {
    const double x = receiver.x;
    table += formatDouble(x);
    for (const auto values :
         {&computedData::depth, &computedData::tV, &computedData::tG, &computedData::velocity}) {
      table += ' ' + cell(upper, upper.*values, x) + ' ' + cell(lower, lower.*values, x);
    }
    table += '\n';
  }
  return table;
}

}  // namespace talvesk
