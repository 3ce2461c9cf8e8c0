#pragma once

#include "base/Status.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

// First breaks in the trace headers of shot files. No standard has a place for them; these are
// this program's own, and nothing else in a file changes.

/// Per trace of a file, in its order: seconds after the shot; none where there is no pick.
using HeaderPicks = std::vector<std::optional<double>>;

/// The keyword that a SEG-2 trace header has the pick under, in seconds.
inline constexpr const char* kFirstBreakKeyword = "FIRST_BREAK";

/// Gives every trace with a pick the string "FIRST_BREAK 0.0123", and takes an older one away from
/// all. Blocks of headers grow, what follows moves, and the pointers of the file with it; samples
/// and all other strings stay. Fails, with the bytes as they were, for what is no SEG-2 file with
/// as many traces as picks, for headers whose strings cannot be followed and for one without room.
Status putPicksIntoSeg2(std::string& bytes, const HeaderPicks& picks);

enum class SegyKind { kSegy, kSu };

/// Writes picks as whole microseconds into bytes 233 to 236 (counted from 1) of the trace headers,
/// 0 for none. Revision 2 of SEG-Y has its own use for these bytes and is refused. Fails, with the
/// bytes as they were, as the other, and for a pick that four bytes do not hold.
/// \param replaced out: traces whose bytes held something else before
Status putPicksIntoSegy(std::string& bytes, SegyKind kind, const HeaderPicks& picks,
                        std::size_t& replaced);

}  // namespace talvesk
