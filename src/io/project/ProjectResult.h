#pragma once

#include "base/Status.h"
#include "model/TomographyOutcome.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What an inversion left beside the section: without it neither the coverage nor the misfit of a
/// project would be the same when it is opened again. Of both only what no other member has counts.
struct ResultMember {
  TomographyOutcome outcome;
  InversionRecord run;          ///< that of the outcome; as new when nothing is known of it
  std::vector<FitRecord> fits;  ///< how a section was fitted to errors: one, or none for others
};

bool hasResult(const TomoDocument& document);
/// Whether a result has a coverage of every cell; without it the project has nothing to keep that
/// would fit its grid. Results of earlier versions have none until their rays are traced.
bool hasCoverage(const TomoDocument& document);
/// Whether rays of an inversion are known: not so where only their times were traced anew.
bool knowsResult(const TomoDocument& document);
/// What a project keeps of the last inversion, and what is read from it fills.
ResultMember resultOf(const TomoDocument& document);
/// Gives a document, whose grid and inversion record are there, what its project kept. Fails, with
/// the document as it was, when that does not go with its grid and run.
/// \param result resultOf() the document, with what was read
Status installResult(ResultMember result, TomoDocument& document);

/// Whether an inversion can have been run so, and have come to these figures. Of a fit that it may
/// have, the other tells.
bool canHaveBeen(const InversionRecord& run);
/// Whether a section can have been fitted so. \param records of the survey that it was fitted to
bool canHaveBeen(const FitRecord& fit, std::size_t records);

}  // namespace talvesk
