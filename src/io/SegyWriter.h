#pragma once

#include "base/Status.h"
#include "io/WrittenShot.h"

#include <string>
#include <vector>

namespace talvesk {

/// Whether a shot fits into SEG-Y: its interval is a whole number of microseconds, 65535 at most,
/// its start a time in ms that two bytes hold, and its traces have up to 65535 samples.
Status fitsSegy(const WrittenShot& shot);

/// A SEG-Y file of revision 1 of shots that fit, one after the other: big-endian IEEE floats (code
/// 5), an EBCDIC text header. Positions are in whole metres where all of them are, else in cm (the
/// scalar is -100), else finer, as fine as four bytes hold; elevations likewise. The number of the
/// shot is the field record and the energy source point. Besides what the revision knows the file
/// has the byte-order constant of later ones. Shorter traces are filled up with zeros.
std::string formatSegy(const std::vector<WrittenShot>& shots);

}  // namespace talvesk
