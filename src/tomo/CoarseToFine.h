#pragma once

#include "model/InversionRecord.h"
#include "model/TomoDocument.h"

#include <optional>

namespace talvesk {

/// The smoothing radius of an external iteration that goes from coarse to fine: all, three fifths,
/// two fifths and a fifth of the radius asked for, each for a quarter of the iterations. Of 5 cells
/// these are 5, 3, 2 and 1.
/// \param radius asked for, cells, at least 1 \param iteration from 0 \param iterations at least 1
/// \return cells, at least 1
int coarseToFineRadius(int radius, int iteration, int iterations);

/// Finds the external iteration whose section fits the picks best along fresh rays, gross errors
/// left out: SectionMisfit::trimmed. Rays go through a section for the first time when the next
/// iteration begins, so that an iteration waits for its figure until then.
class BestIteration {
 public:
  /// \param document as an external iteration has left it, with the misfit of the one before
  void add(const TomoDocument& document);
  /// The misfit of the iteration that was added last.
  void judge(const SectionMisfit& misfit);

  int number() const { return mBest; }  ///< from 1, among those that were judged; 0: none
  /// The document as the best iteration left it; one must have been judged.
  const TomoDocument& document() const { return *mDocument; }

 private:
  int mAdded = 0;
  int mBest = 0;
  double mLeast = 0.0;  ///< trimmed RMSE, seconds
  std::optional<TomoDocument> mWaiting;
  std::optional<TomoDocument> mDocument;
};

}  // namespace talvesk
