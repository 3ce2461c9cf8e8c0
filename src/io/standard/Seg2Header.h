#pragma once

#include "io/ByteReader.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// How a SEG-2 file writes its texts, by its file descriptor block.
struct Seg2Layout {
  ByteOrder order = ByteOrder::kLittle;
  std::string stringEnd;  ///< what ends a string; empty where the file does not tell
  std::string lineEnd;    ///< what ends a line within a string; empty likewise
};

/// One line of a header: "DELAY -0.010".
struct Seg2Line {
  std::string_view keyword;
  std::string_view value;  ///< the rest of the line, without blanks at either end
};

/// The lines of a string area, in its order. Strings follow each other by their lengths; where
/// those lead astray, as some instruments' do, the strings are told apart by what ends them. A NOTE
/// is one line, whatever stands in it.
std::vector<Seg2Line> seg2Lines(std::string_view area, const Seg2Layout& layout);

/// A number of a header.
struct Seg2Number {
  bool told = false;            ///< its keyword is there
  std::optional<double> value;  ///< finite; none where what is told is no such number

  bool bad() const { return told && !value; }
};

/// A position of a header, in the units of its file: x, or x and elevation, or x, y and elevation.
struct Seg2Position {
  bool told = false;
  std::size_t numbers = 0;  ///< finite ones at its front: 0 to 3
  std::array<double, 3> at{};

  bool bad() const { return told && numbers == 0; }
  double x() const { return at[0]; }
  double y() const { return numbers == 3 ? at[1] : 0.0; }
  double z() const { return numbers == 3 ? at[2] : at[1]; }
};

/// What the header of a trace says, of what this program uses. Where it says something twice, the
/// last counts.
struct Seg2TraceHeader {
  Seg2Number sampleInterval;  ///< seconds
  Seg2Number delay;           ///< seconds from the shot to the start of the record
  Seg2Number skew;            ///< seconds that this channel is sampled later
  Seg2Number descaling;       ///< what a stored number is times, in millivolts
  Seg2Number stack;           ///< how many records were added up
  Seg2Number channel;
  Seg2Position source;
  Seg2Position receiver;
  std::string_view shot;  ///< SHOT_SEQUENCE_NUMBER as written
};

Seg2TraceHeader seg2TraceHeader(std::string_view area, const Seg2Layout& layout);

/// What UNITS of the file header says, in capitals; empty where it says nothing.
std::string seg2Units(std::string_view area, const Seg2Layout& layout);

}  // namespace talvesk
