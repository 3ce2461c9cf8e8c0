#pragma once

#include "base/Status.h"
#include "doctor/Finding.h"
#include "model/TomoDocument.h"

#include <functional>
#include <vector>

namespace talvesk::doctor {

/// Looks through all recordings for what is doubtful. Never changes them. Finds the same whatever
/// the number of threads.
/// \param goOn asked between shots; false ends the check with what was found so far
std::vector<Finding> checkRecordings(const TomoDocument& document,
                                     const std::function<bool()>& goOn = nullptr);

/// Whether carrying it out edits the geometry of the survey; else it is a mend.
bool changesGeometry(const Proposal& proposal);

/// Carries out a proposal of a finding, or the user's altered copy of it.
/// \param notes out, may be null: as of setMends()
/// \return failure, and nothing changed, when it does not go with the survey
Status carryOut(const Finding& finding, const Proposal& proposal, TomoDocument& document,
                std::vector<Message>* notes = nullptr);

}  // namespace talvesk::doctor
