#pragma once

#include "io/projectReader.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// A copy of a survey that another thread can save while the user works on. The samples are copied
/// piece by piece: those of a long line take a fifth of a second, which somebody who picks would
/// feel.
class ProjectSnapshot {
 public:
  /// Copies the traces that come next, about that many bytes of samples. True when all are copied.
  /// The traces of the document must be the same from the first call to the last.
  bool copyTraces(const TomoDocument& document, std::size_t bytes);

  /// The copied traces together with all that is saved with a project; rays and what else an
  /// inversion leaves in memory are not copied. To be called once, after all traces are copied.
  /// \param folder where the shot files of the document lie, when it was loaded from a project
  LoadedProject complete(const TomoDocument& document,
                         const refractionDataStructure::Interpretation& interpretation,
                         const ColorPaletteList& palettes, const SectionViewSettings& section,
                         const SharedFolder& folder);

 private:
  std::vector<TraceSet> mTraceSets;
};

}  // namespace talvesk
