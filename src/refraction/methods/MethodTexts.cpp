#include "base/TextNumber.h"
#include "numerics/Medians.h"
#include "refraction/methods/MethodComparison.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

std::string cell(double value) {
  return std::isfinite(value) ? formatDouble(value) : "-";
}

const char* disagreementText(const Disagreement& disagreement, std::size_t j) {
  if (disagreement.depth[j]) return disagreement.velocity[j] ? "both" : "depth";
  return disagreement.velocity[j] ? "velocity" : "none";
}

std::string headsOf(const MethodComparison& comparison, std::uint32_t layer, bool bands) {
  std::string heads = "x elevation";
  for (const MethodResult& result : comparison.results) {
    const std::string name = nameOf(result.method);
    heads += ' ' + name + "-depth";
    if (bands) heads += ' ' + name + "-depth-error";
    heads += ' ' + name + "-velocity";
    if (bands) heads += ' ' + name + "-velocity-error";
    heads += ' ' + name + "-carried-by";
  }
  return heads + (comparison.disagreement(layer) != nullptr ? " disagree-in" : "") + '\n';
}

std::string cellsOf(const MethodLayer* layer, std::size_t j, bool bands) {
  if (layer == nullptr) return bands ? " - - - - -" : " - - -";
  const bool known = std::isfinite(layer->depth[j]) || std::isfinite(layer->velocity[j]);
  std::string cells = ' ' + cell(layer->depth[j]);
  if (bands) cells += ' ' + cell(layer->depthBand.errorOf(j, layer->depth[j]));
  cells += ' ' + cell(layer->velocity[j]);
  if (bands) cells += ' ' + cell(layer->velocityBand.errorOf(j, layer->velocity[j]));
  const Support support = std::max(layer->depthSupport[j], layer->velocitySupport[j]);
  return cells + ' ' + (known ? nameOf(support) : "-");
}

std::string blockOf(const MethodComparison& comparison, std::uint32_t number) {
  const bool bands = comparison.bounds.members > 0;
  std::string block = "Layer " + std::to_string(number) + '\n' + headsOf(comparison, number, bands);
  const std::vector<Point2D>& receivers = comparison.results.front().receivers;
  const Disagreement* disagreement = comparison.disagreement(number);
  for (std::size_t j = 0; j < receivers.size(); ++j) {
    block += formatDouble(receivers[j].x) + ' ' + formatDouble(receivers[j].z);
    for (const MethodResult& result : comparison.results) {
      block += cellsOf(result.layer(number), j, bands);
    }
    if (disagreement != nullptr) block += std::string(" ") + disagreementText(*disagreement, j);
    block += '\n';
  }
  return block;
}

std::vector<double> errorsOf(const Band& band, const std::vector<double>& values) {
  std::vector<double> errors;
  for (std::size_t j = 0; j < band.low.size(); ++j) errors.push_back(band.errorOf(j, values[j]));
  return errors;
}

/// "5.2 ± 0.3", without the error where there is none.
Message withError(double value, const Band& band, const std::vector<double>& values, int digits) {
  const double error = medianOfFinite(errorsOf(band, values), std::nan(""));
  if (!std::isfinite(error)) return Message::number(value, digits);
  return Message::tr("%1 ± %2").arg(Message::number(value, digits)).arg(Message::number(error, 2));
}

Message summaryOf(LayerMethod method, const MethodLayer& layer) {
  const auto known = std::count_if(layer.depth.begin(), layer.depth.end(),
                                   [](double d) { return std::isfinite(d); });
  std::size_t carried = 0;
  for (std::size_t j = 0; j < layer.depth.size(); ++j) {
    if (std::isfinite(layer.depth[j]) && layer.depthSupport[j] != Support::kPicks) ++carried;
  }
  const double velocity = medianOfFinite(layer.velocity, std::nan(""));
  const double depth = medianOfFinite(layer.depth, std::nan(""));
  if (!std::isfinite(velocity)) {
    return Message::tr("Layer %1, %2: nothing").arg(layer.layer).arg(nameOf(method));
  }
  if (!std::isfinite(depth)) {
    return Message::tr("Layer %1, %2: %3 m/s, no depth")
        .arg(layer.layer)
        .arg(nameOf(method))
        .arg(withError(velocity, layer.velocityBand, layer.velocity, 4));
  }
  return Message::tr(
             "Layer %1, %2: %3 m/s at a depth of %4 m (medians); depths at %5 of %6 "
             "geophones, %7 of them not carried by picks there")
      .arg(layer.layer)
      .arg(nameOf(method))
      .arg(withError(velocity, layer.velocityBand, layer.velocity, 4))
      .arg(withError(depth, layer.depthBand, layer.depth, 3))
      .arg(known)
      .arg(layer.depth.size())
      .arg(carried);
}

}  // namespace

std::string comparisonTable(const MethodComparison& comparison) {
  std::string table;
  for (std::uint32_t number = 2; number <= refractionDataStructure::kLastLayer; ++number) {
    const bool any =
        std::any_of(comparison.results.begin(), comparison.results.end(),
                    [number](const MethodResult& r) { return r.layer(number) != nullptr; });
    if (any) table += (table.empty() ? "" : "\n") + blockOf(comparison, number);
  }
  return table;
}

std::vector<Message> comparisonSummary(const MethodComparison& comparison) {
  std::vector<Message> lines;
  for (std::uint32_t number = 2; number <= refractionDataStructure::kLastLayer; ++number) {
    for (const MethodResult& result : comparison.results) {
      const MethodLayer* layer = result.layer(number);
      if (layer != nullptr) lines.push_back(summaryOf(result.method, *layer));
    }
    const Disagreement* disagreement = comparison.disagreement(number);
    if (disagreement == nullptr) continue;
    const auto count = [](const std::vector<bool>& flags) {
      return std::count(flags.begin(), flags.end(), true);
    };
    lines.push_back(Message::tr("Layer %1: methods disagree beyond the errors of the picks in "
                                "depth at %2 of %3 geophones, in velocity at %4")
                        .arg(number)
                        .arg(count(disagreement->depth))
                        .arg(disagreement->depth.size())
                        .arg(count(disagreement->velocity)));
  }
  return lines;
}

}  // namespace talvesk
