#include "export/ComparisonText.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"

#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kDigits = 9;

std::string metres(const std::optional<double>& value) {
  return value && std::isfinite(*value) ? formatDouble(*value, kDigits) : std::string();
}

}  // namespace

void tellComparison(std::ostream& out, const LayerComparison& comparison) {
  out << "position_m,elevation_m,layers_depth_m,section_depth_m,difference_m\n";
  for (const ComparedDepth& point : comparison.points) {
    out << metres(point.x) << ',' << metres(point.elevation) << ',' << metres(point.layers) << ','
        << metres(point.section) << ',' << metres(point.difference()) << '\n';
  }
}

Status writeComparison(const std::string& path, const LayerComparison& comparison) {
  return told(
      writeTextAtomically(path, [&](std::ostream& out) { tellComparison(out, comparison); }));
}

}  // namespace talvesk
