#pragma once

#include "base/Message.h"
#include "doctor/Finding.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class Session;

/// What the user takes of what was found: a proposal as it was made, or as it was altered.
struct TakenProposal {
  doctor::Finding finding;
  doctor::Proposal proposal;
};

/// What became of proposals that were taken.
struct TakenOutcome {
  std::size_t done = 0;
  std::vector<Message> notes;     ///< what the user should know, such as picks that are set aside
  std::vector<Message> failures;  ///< why others were not carried out
};

/// Carries them out in their order, those of the geometry before the mends: a step to be undone for
/// each of the two. One that fails leaves the survey as it was and does not keep the others back.
TakenOutcome takeProposals(const std::vector<TakenProposal>& taken, Session& session);

}  // namespace talvesk
