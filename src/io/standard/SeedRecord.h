#pragma once

#include "io/ByteReader.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace talvesk {

/// The header of a record of miniSEED 2 (SEED Reference Manual, version 2.4, chapter 8).
struct SeedRecord {
  std::string channel;        ///< network.station.location.channel
  std::int64_t start = 0;     ///< of the first sample, microseconds since 1970
  double rate = 0.0;          ///< samples per second; 0 where the record is of no series
  std::size_t samples = 0;    ///< as the header says
  std::size_t length = 0;     ///< bytes, 0 where the record has no blockette 1000 that tells
  std::size_t dataAt = 0;     ///< from the start of the record
  std::uint8_t encoding = 0;  ///< SEED's code
  ByteOrder order = ByteOrder::kBig;  ///< of the samples
};

/// Whether bytes begin like a record. Cheap: it is asked at many places of a damaged file.
bool looksLikeSeedRecord(std::string_view bytes);

/// The header at the front of the bytes; none where they do not look like a record.
std::optional<SeedRecord> seedRecord(std::string_view bytes);

/// Whether samples of an encoding are read: integers of 16 and 32 bits, IEEE floating point of 32
/// and 64 bits, and both compressions.
bool isSeedEncoding(std::uint8_t encoding);

/// How many samples the bytes of a record can hold in an encoding that is read.
std::size_t mostSeedSamples(const SeedRecord& record, std::size_t bytes);

/// Decodes up to `count` samples of a record into `values`.
/// \param data the bytes of the record from `dataAt` on
/// \return false where a compressed record does not end at the sample that it tells
bool decodeSeed(const SeedRecord& record, std::string_view data, std::size_t count, double* values);

}  // namespace talvesk
