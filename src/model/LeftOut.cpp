#include "model/LeftOut.h"

#include "base/IndexRanges.h"
#include "base/TextNumber.h"
#include "model/SurveyFacts.h"
#include "model/SurveyLine.h"

#include <algorithm>
#include <map>
#include <set>

namespace talvesk {
namespace {

using Receivers = std::set<std::size_t>;

std::size_t usedPicks(const TomoDocument& document, const TravelTime& record,
                      const Receivers& excluded) {
  const auto index = static_cast<std::size_t>(record.indexStesa);
  if (record.indexStesa < 0 || index >= document.line->goephonesStringSet.size()) return 0;
  const auto& string = document.line->goephonesStringSet[index];
  const std::size_t n = std::min(string.size(), record.ttMisurati.size());
  std::size_t used = 0;
  for (std::size_t i = 0; i < n; ++i) {
    if (hasPick(record.ttMisurati[i]) && excluded.count(i) == 0) ++used;
  }
  return used;
}

/// "geophone 12 of string 1 at x = 24 m", "geophones 12-13 of string 1 at x = 22 to 24 m"
std::string describe(const LeftOut::Geophones& geophones, const std::vector<Point2D>& string) {
  const std::vector<std::size_t>& numbers = geophones.numbers;
  const auto [first, last] =
      std::minmax_element(numbers.begin(), numbers.end(),
                          [&](std::size_t a, std::size_t b) { return string[a].x < string[b].x; });
  const bool one = numbers.size() == 1;
  return (one ? "geophone " : "geophones ") + ranges(numbers) + " of string " +
         std::to_string(geophones.string + 1) + " at x = " + formatDouble(string[*first].x) +
         (one ? "" : " to " + formatDouble(string[*last].x)) + " m";
}

}  // namespace

std::size_t LeftOut::geophoneCount() const {
  std::size_t count = 0;
  for (const Geophones& own : geophones) count += own.numbers.size();
  return count;
}

bool LeftOut::any() const {
  return picks > 0 || !shotsBeyond.empty() || !shotsWithoutString.empty() || !geophones.empty();
}

LeftOut leftOut(const TomoDocument& document, const std::vector<ExcludedPosition>& excluded) {
  LeftOut left;
  std::vector<Receivers> byShot(document.ttArray.size());
  std::vector<bool> whole(document.ttArray.size(), true);
  std::map<std::int32_t, Receivers> byString;
  for (const ExcludedPosition& position : excluded) {
    const auto shot = static_cast<std::size_t>(position.shot);
    if (shot >= whole.size()) continue;  // of a survey as it was
    const std::int32_t string = document.ttArray[shot].indexStesa;
    if (position.receiver >= 0) {
      byShot[shot].insert(static_cast<std::size_t>(position.receiver));
      byString[string].insert(static_cast<std::size_t>(position.receiver));
      continue;
    }
    whole[shot] = false;
    const bool known =
        string >= 0 && static_cast<std::size_t>(string) < document.line->goephonesStringSet.size();
    (known ? left.shotsBeyond : left.shotsWithoutString).push_back(shot);
  }
  for (const auto& [string, receivers] : byString) {
    left.geophones.push_back(
        {static_cast<std::size_t>(string), {receivers.begin(), receivers.end()}});
  }
  std::size_t used = 0;
  for (std::size_t s = 0; s < document.ttArray.size(); ++s) {
    left.of += pickCount(document.ttArray[s]);
    if (whole[s]) used += usedPicks(document, document.ttArray[s], byShot[s]);
  }
  left.picks = left.of - used;
  return left;
}

std::vector<std::string> describe(const LeftOut& left, const TomoDocument& document) {
  std::vector<std::string> lines;
  for (const std::size_t shot : left.shotsBeyond) {
    lines.push_back("Left out: shot " + std::to_string(shot + 1) + " at x = " +
                    formatDouble(document.ttArray[shot].shotPos2d.x) + " m lies beyond the grid");
  }
  if (!left.shotsWithoutString.empty()) {
    lines.push_back("Left out for want of a geophone string: shots " +
                    ranges(left.shotsWithoutString));
  }
  for (const LeftOut::Geophones& geophones : left.geophones) {
    lines.push_back("Left out, beyond the grid: " +
                    describe(geophones, document.line->goephonesStringSet[geophones.string]));
  }
  if (left.picks > 0) {
    lines.push_back("Left out: " + std::to_string(left.picks) + " of " + std::to_string(left.of) +
                    " picks");
  }
  return lines;
}

}  // namespace talvesk
