#pragma once

#include "io/ByteReader.h"

#include <cstdint>
#include <string_view>

namespace talvesk {

inline constexpr std::uint64_t kSegyTraceHeaderBytes = 240;

/// Kinds of traces (bytes 29 and 30) that this program tells apart.
enum SegyTraceKind : std::int16_t { kSegyDead = 2, kSegyDummy = 3 };

/// What this program uses of a SEG-Y or SU trace header. Bytes are counted from 1, as the standard
/// does. Distances are in the units of the file, with the scalars of the header applied.
struct SegyTraceHeader {
  std::int32_t fieldRecord = 0;    ///< 9 to 12
  std::int32_t traceInRecord = 0;  ///< 13 to 16
  std::int32_t sourcePoint = 0;    ///< 17 to 20
  std::int16_t kind = 0;           ///< 29 and 30
  double offset = 0.0;             ///< 37 to 40, which have no scalar
  double receiverElevation = 0.0;  ///< 41 to 44
  double sourceElevation = 0.0;    ///< 45 to 48, of the ground
  double sourceDepth = 0.0;        ///< 49 to 52, below the ground
  double sourceX = 0.0;            ///< 73 to 76
  double sourceY = 0.0;            ///< 77 to 80
  double receiverX = 0.0;          ///< 81 to 84
  double receiverY = 0.0;          ///< 85 to 88
  double delay = 0.0;              ///< 109 and 110, milliseconds from the shot to the first sample
  double interval = 0.0;           ///< 117 and 118, microseconds
  std::uint32_t samples = 0;       ///< 115 and 116
  std::int16_t elevationScalar = 0;   ///< 69 and 70, as it stands
  std::int16_t coordinateScalar = 0;  ///< 71 and 72, as it stands
  std::int16_t coordinateUnits = 0;   ///< 89 and 90
  std::int16_t timeScalar = 0;        ///< 215 and 216, as it stands; not applied
};

/// Fields past the end of the file are 0.
SegyTraceHeader segyTraceHeader(std::string_view bytes, std::uint64_t at, ByteOrder order);

/// Puts in what the first extension of a trace header tells (revision 2): numbers that the header
/// itself has no room for. Those that are 0, or absurd, leave the header as it is.
/// \param at of the extension
void extendSegyTraceHeader(std::string_view bytes, std::uint64_t at, ByteOrder order,
                           SegyTraceHeader& header);

/// Whether a scalar is one that the standard names: 0, 1, 10, 100, 1000 or 10000, of either sign.
bool isSegyScalar(std::int16_t scalar);

/// A positive scalar multiplies, a negative one divides. Those that the standard does not name are
/// taken as 1: what was met of them (82 behind coordinates in whole metres) stood in fields that
/// nobody had filled.
double segyScaled(double value, std::int16_t scalar);

}  // namespace talvesk
