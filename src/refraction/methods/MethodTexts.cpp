#include "base/TextNumber.h"
#include "numerics/Medians.h"
#include "refraction/methods/MethodComparison.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

const double kUnknown = std::nan("");

std::string cell(double value) {
  return std::isfinite(value) ? formatDouble(value) : "-";
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
    if (disagreement != nullptr) block += std::string(" ") + disagreement->nameAt(j);
    block += '\n';
  }
  return block;
}

std::vector<double> errorsOf(const Band& band, const std::vector<double>& values) {
  std::vector<double> errors;
  for (std::size_t j = 0; j < band.low.size(); ++j) errors.push_back(band.errorOf(j, values[j]));
  return errors;
}

/// A method as it stands within a sentence.
Message wordOf(LayerMethod method) {
  switch (method) {
    case LayerMethod::kReciprocal:
      return Message::tr("reciprocal");
    case LayerMethod::kDelayTimes:
      return Message::tr("delay times");
    case LayerMethod::kIntercept:
      return Message::tr("intercept times");
    case LayerMethod::kPlusMinus:
      return Message::tr("plus-minus");
  }
  return {};
}

using Measure = Message (*)(double value, int significantDigits);

/// "5.2 m ± 0.3 m", without the error where there is none.
Message withError(Measure measure, double value, double error, int digits) {
  if (!std::isfinite(error)) return measure(value, digits);
  return Message::tr("%1 ± %2").arg(measure(value, digits)).arg(measure(error, 2));
}

Message summaryOf(LayerMethod method, const MethodLayer& layer) {
  const MethodFigures figures = figuresOf(layer);
  if (!std::isfinite(figures.velocity)) {
    return Message::tr("Layer %1, %2: nothing").arg(layer.layer).arg(wordOf(method));
  }
  const Message velocity =
      withError(&Message::velocity, figures.velocity, figures.velocityError, 4);
  if (!std::isfinite(figures.depth)) {
    return Message::tr("Layer %1, %2: %3, no depth")
        .arg(layer.layer)
        .arg(wordOf(method))
        .arg(velocity);
  }
  return Message::tr(
             "Layer %1, %2: %3 at a depth of %4 (medians); depths at %5 of %6 "
             "geophones, %7 of them not carried by picks there")
      .arg(layer.layer)
      .arg(wordOf(method))
      .arg(velocity)
      .arg(withError(&Message::length, figures.depth, figures.depthError, 3))
      .arg(figures.known)
      .arg(figures.receivers)
      .arg(figures.carried);
}

/// \param text with places for layer, x, least value, its method, greatest value and its method
Message farthestApart(Message text, const MethodComparison& comparison, std::uint32_t layer,
                      const GreatestDifference& found, Measure measure, int digits) {
  return std::move(text)
      .arg(layer)
      .arg(Message::length(comparison.results.front().receivers[found.receiver].x))
      .arg(measure(found.least, digits))
      .arg(wordOf(found.low))
      .arg(measure(found.greatest, digits))
      .arg(wordOf(found.high));
}

}  // namespace

const char* Disagreement::nameAt(std::size_t receiver) const {
  if (depth[receiver]) return velocity[receiver] ? "both" : "depth";
  return velocity[receiver] ? "velocity" : "none";
}

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

MethodFigures figuresOf(const MethodLayer& layer) {
  MethodFigures figures;
  figures.velocity = medianOfFinite(layer.velocity, kUnknown);
  figures.velocityError = medianOfFinite(errorsOf(layer.velocityBand, layer.velocity), kUnknown);
  figures.depth = medianOfFinite(layer.depth, kUnknown);
  figures.depthError = medianOfFinite(errorsOf(layer.depthBand, layer.depth), kUnknown);
  figures.receivers = layer.depth.size();
  for (std::size_t j = 0; j < layer.depth.size(); ++j) {
    if (!std::isfinite(layer.depth[j])) continue;
    ++figures.known;
    if (layer.depthSupport[j] != Support::kPicks) ++figures.carried;
  }
  return figures;
}

std::vector<Message> comparisonDifferences(const MethodComparison& comparison,
                                           std::uint32_t layer) {
  std::vector<Message> lines;
  if (const auto depth = greatestDifference(comparison, layer, &MethodLayer::depth)) {
    lines.push_back(farthestApart(
        Message::tr("Layer %1: depths are farthest apart at %2, from %3 (%4) to %5 (%6)"),
        comparison, layer, *depth, &Message::length, 3));
  }
  if (const auto velocity = greatestDifference(comparison, layer, &MethodLayer::velocity)) {
    lines.push_back(farthestApart(
        Message::tr("Layer %1: velocities are farthest apart at %2, from %3 (%4) to %5 (%6)"),
        comparison, layer, *velocity, &Message::velocity, 4));
  }
  if (const Disagreement* disagreement = comparison.disagreement(layer)) {
    const auto count = [](const std::vector<bool>& flags) {
      return std::count(flags.begin(), flags.end(), true);
    };
    lines.push_back(Message::tr("Layer %1: methods disagree beyond the errors of the picks in "
                                "depth at %2 of %3 geophones, in velocity at %4")
                        .arg(layer)
                        .arg(count(disagreement->depth))
                        .arg(disagreement->depth.size())
                        .arg(count(disagreement->velocity)));
  }
  return lines;
}

std::vector<Message> comparisonSummary(const MethodComparison& comparison) {
  std::vector<Message> lines;
  for (std::uint32_t number = 2; number <= refractionDataStructure::kLastLayer; ++number) {
    for (const MethodResult& result : comparison.results) {
      const MethodLayer* layer = result.layer(number);
      if (layer != nullptr) lines.push_back(summaryOf(result.method, *layer));
    }
    const std::vector<Message> differences = comparisonDifferences(comparison, number);
    lines.insert(lines.end(), differences.begin(), differences.end());
  }
  return lines;
}

}  // namespace talvesk
