#pragma once

#include "io/PickReader.h"

#include <optional>
#include <string>
#include <string_view>

namespace talvesk {

/// Whether a text is of the unified data format of pyGIMLi and BERT (".sgt", ".dat") with columns
/// for shots and geophones.
bool looksLikeUnifiedData(std::string_view text);

/// Reads that format: a number of positions and the positions; a number of measurements, the names
/// of their columns behind "#", and the measurements; perhaps a number of points of topography and
/// those. Positions are numbered from 1, a shot is one that column "s" names, a geophone one that
/// "g" names; others are left out with a warning. The second of two coordinates is the elevation,
/// the third of three; where that is 0 everywhere the second one is. Topography gives positions
/// their elevation where all of them are at 0. Times ("t") and errors ("err") are seconds, or
/// milliseconds as "t/ms"; what is not above 0, or marked by a 0 in column "valid", is no pick.
///
/// \param data out, one string of all geophones; untouched when the file is refused
std::optional<Refusal> readUnifiedData(std::string_view text, TravelTimeData& data);

/// The picks in that format: positions of shots and geophones along the line, each once, then a
/// line per pick. Numbers have as many digits as bring them back.
std::string formatUnifiedData(const TravelTimeData& data);

/// What formatUnifiedData() cannot tell of such data, a line each: shots and geophones without a
/// pick, and shots at the place of another one, with whose picks theirs are mixed.
std::vector<Message> lostInUnifiedData(const TravelTimeData& data);

}  // namespace talvesk
