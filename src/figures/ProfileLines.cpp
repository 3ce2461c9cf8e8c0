#include "figures/ProfileLines.h"

#include "figures/FigureWords.h"
#include "model/TomoDocument.h"
#include "refraction/PicksFingerprint.h"
#include "view/RefractorLines.h"

#include <cstddef>

namespace talvesk {

std::vector<SectionLine> profileLines(const TomoDocument& document,
                                      const refractionDataStructure::Interpretation& records) {
  std::vector<SectionLine> lines = refractorLines(records);
  const bool changed = !lines.empty() && picksChangedSince(document, records.refractData);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    lines[i].name =
        (changed ? FigureWords::oldRefractor(i) : FigureWords::refractor(i)).toStdString();
  }
  return lines;
}

}  // namespace talvesk
