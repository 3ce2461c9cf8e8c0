#include "view/RayLines.h"

#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace talvesk {

std::vector<RayOwner> rayOwners(const TomoDocument& document) {
  std::vector<bool> traced(document.ttArray.size(), true);
  for (const ExcludedPosition& position : document.result->excluded) {
    const auto shot = static_cast<std::size_t>(position.shot);
    if (position.receiver < 0 && shot < traced.size()) traced[shot] = false;
  }
  std::vector<RayOwner> owners;
  for (std::size_t shot = 0; shot < document.ttArray.size(); ++shot) {
    const TravelTime& record = document.ttArray[shot];
    const auto string = static_cast<std::size_t>(record.indexStesa);
    if (!traced[shot] || string >= document.line->goephonesStringSet.size()) continue;
    const std::size_t receivers =
        std::min(document.line->goephonesStringSet[string].size(), record.ttMisurati.size());
    for (std::size_t i = 0; i < receivers; ++i) owners.push_back({shot, i});
  }
  if (owners.size() != document.result->rays.size()) owners.clear();
  return owners;
}

std::vector<std::vector<Point2D>> rayLines(const TomoDocument& document) {
  const GridGeometry& geometry = document.model->grid->geometry();
  const std::vector<RayOwner> owners = rayOwners(document);
  std::vector<std::vector<Point2D>> lines;
  lines.reserve(document.result->rays.size());
  for (std::size_t i = 0; i < document.result->rays.size(); ++i) {
    if (!owners.empty() &&
        !hasPick(document.ttArray[owners[i].record].ttMisurati[owners[i].receiver])) {
      continue;
    }
    std::vector<Point2D> line;
    line.reserve(document.result->rays[i].size());
    for (const std::uint32_t node : document.result->rays[i]) {
      // A project may bring rays of another grid.
      if (node >= geometry.nodeCount()) continue;
      line.push_back({geometry.nodeX(node) - document.model->xOffset, -geometry.nodeZ(node)});
    }
    if (line.size() >= 2) lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace talvesk
