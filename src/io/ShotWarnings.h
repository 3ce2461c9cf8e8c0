#pragma once

#include "io/ShotRecord.h"

#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// Replaces samples that are not finite by 0; nothing behind the readers expects them.
/// \return how many there were
std::size_t zeroNonFinite(std::vector<double>& samples);

/// Notes what was not in the file, or not to be used, of the samples that its headers promise.
void warnOfBytes(std::uint64_t missingBytes, std::uint64_t nonFinite,
                 std::vector<Message>& warnings);

/// Notes what is odd about the traces of any format.
/// \param missingBytes asked for past the end of the file; \param nonFinite samples replaced
void warnOfTraces(ShotFileData& data, std::uint64_t missingBytes, std::uint64_t nonFinite);

}  // namespace talvesk
