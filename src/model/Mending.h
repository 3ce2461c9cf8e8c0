#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "model/Mends.h"
#include "model/TomoDocument.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// Mends of a trace set; none where it has none.
const ShotMends& mendsOf(const Recordings& recordings, std::size_t set);

/// Gives a shot these mends in place of those that it has: makes its traces anew from what was
/// recorded, and moves its picks with them. Filtered copies of traces that change are forgotten.
/// The picks of a disabled shot and of killed traces are set aside and come back. A shift is taken
/// in whole samples. Shots that are stacked with this one are made anew, too.
/// \param notes out, may be null: a line for each thing that the user should know, such as picks
/// that would lie before the shot and are removed
/// \return failure, and nothing changed, for a set, a trace or stacked sets that do not go together
Status setMends(std::size_t set, ShotMends mends, TomoDocument& document,
                std::vector<Message>* notes = nullptr);

/// One line per mend of a shot, for details, reports and consoles; empty where it has none.
std::vector<Message> describeMends(const TomoDocument& document, std::size_t set);

}  // namespace talvesk
