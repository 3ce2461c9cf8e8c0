#pragma once

#include "model/InversionRecord.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// How a computed time fits its pick.
struct Residual {
  std::size_t record = 0;
  std::size_t receiver = 0;  ///< trace of the record
  double offset = 0.0;       ///< distance of shot and geophone along the line, metres; NaN: unknown
  double measured = 0.0;     ///< seconds
  double residual = 0.0;     ///< computed minus measured, seconds: late is positive
};

/// Of every pick with a computed time, in the order of the records.
std::vector<Residual> residualsOf(const TomoDocument& document);

/// What residuals come to together; count 0 for none.
SectionMisfit misfitOf(const std::vector<Residual>& residuals);

/// The misfit of the computed times, as they are, to the picks.
SectionMisfit misfitOfTimes(const TomoDocument& document);

/// The misfit of the section that the document holds; count 0 when the computed times are not those
/// through it, or when there are none.
SectionMisfit sectionMisfitOf(const TomoDocument& document);

/// Whether the picks are known to be others than those that the section was inverted from.
bool picksChangedSince(const TomoDocument& document);

}  // namespace talvesk
