#pragma once

#include "doctor/Finding.h"

namespace talvesk::doctor {

/// A word or two for a list: "trigger time", "dead traces".
Message nameOf(Finding::Kind kind);

/// What carrying out a proposal does, with its figures: "put the shot at 20 m".
Message describe(const Proposal& proposal);

// The same as words that programs compare: "trigger_time", "move_shot".
const char* keyOf(Finding::Kind kind);
const char* keyOf(Proposal::Kind kind);

}  // namespace talvesk::doctor
