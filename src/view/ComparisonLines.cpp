#include "view/ComparisonLines.h"

#include <optional>
#include <utility>

namespace talvesk {
namespace {

SectionLine lineOf(const std::vector<ComparedDepth>& columns, const std::string& name,
                   std::optional<double> ComparedDepth::*depth) {
  SectionLine line;
  line.name = name;
  std::vector<Point2D> piece;
  const auto end = [&] {
    if (piece.size() >= 2) line.pieces.push_back(std::move(piece));
    piece.clear();
  };
  for (const ComparedDepth& column : columns) {
    if (const std::optional<double>& known = column.*depth; known) {
      piece.push_back({column.x, column.elevation - *known});
    } else {
      end();
    }
  }
  end();
  return line;
}

}  // namespace

std::vector<SectionLine> comparisonLines(const LayerComparison& comparison,
                                         const std::string& layersName,
                                         const std::string& sectionName) {
  return {lineOf(comparison.columns, layersName, &ComparedDepth::layers),
          lineOf(comparison.columns, sectionName, &ComparedDepth::section)};
}

Message layersLineName(const LayerComparison& comparison) {
  return Message::tr("Layer %1, layered profile").arg(comparison.refractor + 2);
}

Message sectionLineName(const LayerComparison& comparison) {
  if (!comparison.sign.velocity) return Message::tr("Section, steepest gradient");
  return Message::tr("Section, %1").arg(Message::velocity(*comparison.sign.velocity, 4));
}

}  // namespace talvesk
