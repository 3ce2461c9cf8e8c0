#pragma once

#include "base/Status.h"
#include "model/InversionRecord.h"
#include "model/TomoDocument.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

/// What an inversion left beside the section: without it neither the coverage nor the misfit of a
/// project would be the same when it is opened again.
struct ResultMember {
  std::vector<std::uint32_t> hitCounts;  ///< per cell
  std::vector<double> coorcount;         ///< metres of ray per cell
  bool smoothed = false;                 ///< the section was smoothed since
  bool timesOfSection = false;           ///< the computed times are those through the section
  double computingSeconds = 0.0;
  std::uint64_t picks = 0;  ///< fingerprint of those that were inverted
  std::vector<SectionMisfit> sectionHistory;
};

bool hasResult(const TomoDocument& document);
/// Whether rays of an inversion are known: not so where only their times were traced anew.
bool knowsResult(const TomoDocument& document);
/// What a project keeps of the last inversion beside the section; none without an inversion.
std::optional<ResultMember> resultOf(const TomoDocument& document);
/// Gives a document, whose grid and inversion record are there, what its project kept. Fails, with
/// the document as it was, when that does not go with its grid and run.
Status installResult(ResultMember result, TomoDocument& document);

}  // namespace talvesk
