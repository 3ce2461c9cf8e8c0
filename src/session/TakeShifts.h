#pragma once

#include "base/Message.h"
#include "tomo/SecondLook.h"

#include <vector>

namespace talvesk {

class Session;

/// What became of time shifts that were to be taken over.
struct TakenShifts {
  int done = 0;                ///< records
  int picksOnly = 0;           ///< of them, without a recording: their picks were shifted
  std::vector<Message> notes;  ///< what the user should know, such as shifts in whole samples
  std::vector<Message> failures;
};

/// Shifts the records of shots by what the fit of a section has found, in addition to the time
/// shifts that they have: one step to be undone, and none where nothing could be done. Of shots
/// without a recording the picks are shifted, with their errors and confirmations; a shot whose
/// picks would not all lie behind it then stays as it is, and is among the failures.
TakenShifts takeShifts(const std::vector<ShotShift>& shifts, Session& session);

}  // namespace talvesk
