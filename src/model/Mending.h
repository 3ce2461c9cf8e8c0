#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "model/Mends.h"
#include "model/TomoDocument.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// Mends of a trace set; none where it has none.
const ShotMends& mendsOf(const Recordings& recordings, std::size_t set);
/// The same of a record of the document, from 0.
const ShotMends& mendsOfRecord(const TomoDocument& document, std::int32_t record);

/// Gives a shot these mends in place of those that it has: makes its traces anew from what was
/// recorded, and moves its picks with them, marks of confirmation included. Filtered copies of
/// traces that change are forgotten. Picks that have no place any more, of a disabled shot, of
/// killed traces, or before the shot, are set aside and come back. A shift is taken in whole
/// samples. Shots that are stacked with this one are made anew, too. Mends that are all taken back
/// leave traces and picks as they were, to the last bit. What ShotMends::picks holds is not looked
/// at.
/// \param notes out, may be null: a line is added for each thing that the user should know, such
/// as picks that are set aside
/// \return failure, and nothing changed, for a set, a trace or stacked sets that do not go together
Status setMends(std::size_t set, ShotMends mends, TomoDocument& document,
                std::vector<Message>* notes = nullptr);

/// Whether the shots stand at one point and were recorded by one spread, as many traces of one
/// interval: then setMends() stacks them. False for one and the same.
bool canBeStacked(const TomoDocument& document, std::size_t set, std::size_t other);

/// After what was recorded of a set, or its place among the mends, has become another: makes its
/// traces and picks anew, and those of the shots that are stacked with it. \param notes as above
void remakeMended(std::size_t set, TomoDocument& document, std::vector<Message>* notes = nullptr);

/// After a set has got other recordings: it has no mends, and no shot is stacked with it any more.
void forgetMends(std::size_t set, TomoDocument& document);

/// Traces of a record that may have no pick, for the shot is disabled or they are killed, from 0.
std::vector<std::size_t> tracesWithoutPart(const TomoDocument& document, const TravelTime& record);

/// Whether a trace may have a pick. \param record of the document, from 0
bool takesPart(const TomoDocument& document, std::int32_t record, std::size_t trace);

/// Whether a shot is disabled. \param record of the document, from 0
bool isDisabled(const TomoDocument& document, std::int32_t record);

/// Takes away picks that the mends of a shot leave no place for. \return how many
std::size_t dropPicksWithoutPart(const TomoDocument& document, TravelTime& record);

/// One line per mend of a shot, for details, reports and consoles; empty where it has none.
std::vector<Message> describeMends(const TomoDocument& document, std::size_t set);

}  // namespace talvesk
