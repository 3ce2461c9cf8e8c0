#include "doctor/FindingParts.h"
#include "doctor/Placing.h"
#include "doctor/SurveyChecks.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr double kSamePlace = 0.05;      // metres along the line
constexpr double kSameElevation = 0.05;  // metres
constexpr double kGap = 3.0;             // spacings

using Strings = std::map<std::size_t, const std::vector<Point2D>*>;

/// Geophones of two strings at one place and at different elevations.
struct Clash {
  std::size_t count = 0;
  double x = 0.0;
  double most = 0.0;
};

Clash clashOf(std::vector<Point2D> a, std::vector<Point2D> b) {
  keepFirstOfEachX(a);
  keepFirstOfEachX(b);
  Clash clash;
  auto other = b.begin();
  for (const Point2D& one : a) {
    while (other != b.end() && other->x < one.x - kSamePlace) ++other;
    if (other == b.end() || other->x > one.x + kSamePlace) continue;
    const double apart = std::fabs(one.z - other->z);
    if (apart <= kSameElevation) continue;
    ++clash.count;
    if (apart <= clash.most) continue;
    clash.most = apart;
    clash.x = one.x;
  }
  return clash;
}

std::pair<double, double> extentOf(const std::vector<Point2D>& string) {
  const auto [least, most] = std::minmax_element(
      string.begin(), string.end(), [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  return {least->x, most->x};
}

Finding ofSpreads(double confidence, Message text) {
  Finding finding;
  finding.kind = Finding::Kind::kOverlappingSpreads;
  finding.confidence = confidence;
  finding.text = std::move(text);
  return finding;
}

void findGaps(const Strings& strings, std::vector<Finding>& findings) {
  std::vector<std::pair<double, double>> extents;
  double spacing = 0.0;
  for (const auto& [number, string] : strings) {
    extents.push_back(extentOf(*string));
    spacing = std::max(spacing, spacingOf(*string));
  }
  std::sort(extents.begin(), extents.end());
  double end = extents.front().second;
  for (const auto& [first, last] : extents) {
    if (first - end > kGap * spacing) {
      findings.push_back(ofSpreads(
          0.4, Message::tr("no geophone stands between %1 and %2: the ground there is seen from "
                           "neither side unless shots reach over it")
                   .arg(Message::length(end, 5))
                   .arg(Message::length(first, 5))));
    }
    end = std::max(end, last);
  }
}

bool isLevel(const SurveyView& view) {
  std::set<double> elevations;
  for (const ShotView& shot : view.shots) {
    elevations.insert(shot.source.z);
    for (const Point2D& geophone : shot.geophones) elevations.insert(geophone.z);
  }
  return elevations.size() == 1;
}

}  // namespace

std::vector<Finding> checkSpreads(const SurveyView& view) {
  std::vector<Finding> findings;
  Strings strings;
  for (const ShotView& shot : view.shots) {
    if (shot.placed && !isHeap(shot.geophones)) strings[shot.string] = &shot.geophones;
  }
  for (auto a = strings.begin(); a != strings.end(); ++a) {
    for (auto b = std::next(a); b != strings.end(); ++b) {
      const Clash clash = clashOf(*a->second, *b->second);
      if (clash.count == 0) continue;
      findings.push_back(ofSpreads(
          0.8,
          Message::tr("strings %1 and %2 overlap and have other elevations at %3 places, by up to "
                      "%4 at %5")
              .arg(a->first + 1)
              .arg(b->first + 1)
              .arg(clash.count)
              .arg(Message::length(clash.most, 5))
              .arg(Message::length(clash.x, 5))));
    }
  }
  if (!strings.empty()) findGaps(strings, findings);
  if (!strings.empty() && isLevel(view)) {
    Finding finding;
    finding.kind = Finding::Kind::kNoElevations;
    finding.confidence = 0.3;
    finding.text = Message::tr(
                       "no elevations: all shots and geophones are at %1; if the ground is "
                       "not level, read them from a table in the survey geometry")
                       .arg(Message::length(view.shots.front().source.z, 5));
    findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace talvesk::doctor
