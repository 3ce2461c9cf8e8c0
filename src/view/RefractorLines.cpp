#include "view/RefractorLines.h"

#include "refraction/Profile.h"

#include <utility>

namespace talvesk {

std::vector<SectionLine> refractorLines(const refractionDataStructure::Interpretation& records) {
  std::vector<SectionLine> lines;
  for (ProfileBoundary& boundary : profileBoundaries(records.refractData)) {
    SectionLine line;
    for (auto& piece : boundary.lines) {
      if (piece.size() >= 2) line.pieces.push_back(std::move(piece));
    }
    if (!line.pieces.empty()) lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace talvesk
