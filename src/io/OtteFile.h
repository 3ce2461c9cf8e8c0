#pragma once

#include "io/PickReader.h"

#include <optional>
#include <string>
#include <string_view>

namespace talvesk {

class TomoDocument;

/// Reads the travel-time exchange format (".otte"): positions in metres, times in milliseconds.
///
/// The format lists the geophones of all strings in one row without saying where a string ends. A
/// string is as long as the times of the records that name it (the longest of them, should they
/// differ); strings that no record names share the remaining geophones equally, the first ones
/// taking one more where that does not come out even. A single string takes all geophones.
/// Geophones that no string can claim, or too few of them, refuse the file. A record that names no
/// trace set (a negative one) belongs to that of its own place in the file, and a warning says so.
///
/// \param version out, the version word, once it was read
/// \param data out; untouched when the file is refused
std::optional<Refusal> readOtte(std::string_view bytes, std::string& version, TravelTimeData& data);

/// Picks in the travel-time exchange format. A measured time that is not finite is no pick and
/// stands as kNoTime. Positions must be finite.
std::string formatOtte(const TravelTimeData& data);
std::string formatOtte(const TomoDocument& document);  ///< the same of a survey

}  // namespace talvesk
