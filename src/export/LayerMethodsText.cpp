#include "export/LayerMethodsText.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"
#include "refraction/methods/MethodComparison.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kDigits = 9;

std::string known(double value) {
  return std::isfinite(value) ? formatDouble(value, kDigits) : std::string();
}

std::string headingOf(const MethodComparison& comparison, char separator) {
  std::string heading = std::string("layer") + separator + "position_m" + separator + "elevation_m";
  for (const MethodResult& result : comparison.results) {
    std::string name = nameOf(result.method);
    std::replace(name.begin(), name.end(), '-', '_');
    for (const char* column :
         {"depth_m", "depth_error_m", "velocity_m_s", "velocity_error_m_s", "carried_by"}) {
      heading += separator + name + '_' + column;
    }
  }
  return heading + separator + "disagree_in";
}

std::string fieldsOf(const MethodLayer* layer, std::size_t j, char separator) {
  if (layer == nullptr) return std::string(5, separator);
  const bool any = std::isfinite(layer->depth[j]) || std::isfinite(layer->velocity[j]);
  const Support support = std::max(layer->depthSupport[j], layer->velocitySupport[j]);
  return separator + known(layer->depth[j]) + separator +
         known(layer->depthBand.errorOf(j, layer->depth[j])) + separator +
         known(layer->velocity[j]) + separator +
         known(layer->velocityBand.errorOf(j, layer->velocity[j])) + separator +
         (any ? nameOf(support) : "");
}

}  // namespace

void tellLayerMethods(std::ostream& out, const MethodComparison& comparison, char separator) {
  out << headingOf(comparison, separator) << '\n';
  for (std::uint32_t number = 2; number <= refractionDataStructure::kLastLayer; ++number) {
    const bool any =
        std::any_of(comparison.results.begin(), comparison.results.end(),
                    [number](const MethodResult& r) { return r.layer(number) != nullptr; });
    if (!any) continue;
    const Disagreement* disagreement = comparison.disagreement(number);
    const std::vector<Point2D>& receivers = comparison.results.front().receivers;
    for (std::size_t j = 0; j < receivers.size(); ++j) {
      out << number << separator << known(receivers[j].x) << separator << known(receivers[j].z);
      for (const MethodResult& result : comparison.results) {
        out << fieldsOf(result.layer(number), j, separator);
      }
      out << separator << (disagreement == nullptr ? "" : disagreement->nameAt(j)) << '\n';
    }
  }
}

Status writeLayerMethods(const std::string& path, const MethodComparison& comparison) {
  return told(writeTextAtomically(
      path, [&](std::ostream& out) { tellLayerMethods(out, comparison, ','); }));
}

}  // namespace talvesk
