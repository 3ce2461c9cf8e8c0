#pragma once

#include "doctor/Finding.h"
#include "doctor/ReciprocityTable.h"
#include "model/TomoDocument.h"

#include <string>
#include <vector>

namespace talvesk {

/// Findings, and how picks go with each other, as JSON: shots and traces from 0, positions in
/// metres, times in seconds; what a finding has nothing for is null. \param left after mending; the
/// findings themselves where nothing was mended
std::string checkJson(const TomoDocument& document, const std::vector<doctor::Finding>& findings,
                      const std::vector<doctor::Finding>& left,
                      const doctor::ReciprocityTable& reciprocity);

}  // namespace talvesk
