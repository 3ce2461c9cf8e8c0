#include "io/standard/SeedRecord.h"

#include "io/standard/Steim.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr std::size_t kHeaderBytes = 48;
constexpr std::size_t kStationAt = 8;
constexpr std::size_t kLocationAt = 13;
constexpr std::size_t kChannelAt = 15;
constexpr std::size_t kNetworkAt = 18;
constexpr std::size_t kTimeAt = 20;
constexpr std::size_t kSamplesAt = 30;
constexpr std::size_t kRateFactorAt = 32;
constexpr std::size_t kRateMultiplierAt = 34;
constexpr std::size_t kActivityAt = 36;
constexpr std::size_t kTimeCorrectionAt = 40;
constexpr std::size_t kDataAt = 44;
constexpr std::size_t kBlocketteAt = 46;
constexpr std::uint8_t kIsCorrected = 2;  ///< of the activity flags

enum Encoding : std::uint8_t {
  kInt16 = 1,
  kInt32 = 3,
  kFloat32 = 4,
  kFloat64 = 5,
  kSteim1 = 10,
  kSteim2 = 11
};

/// Bytes of a sample that is not compressed; 0 for other encodings.
std::size_t widthOf(std::uint8_t encoding) {
  switch (encoding) {
    case kInt16:
      return 2;
    case kInt32:
    case kFloat32:
      return 4;
    case kFloat64:
      return 8;
    default:
      return 0;
  }
}

bool isPlausibleTime(std::string_view bytes, ByteOrder order) {
  ByteReader reader(bytes);
  const auto year = reader.u16(kTimeAt, order);
  const auto day = reader.u16(kTimeAt + 2, order);
  return year >= 1900 && year <= 2100 && day >= 1 && day <= 366 && reader.u8(kTimeAt + 4) < 24 &&
         reader.u8(kTimeAt + 5) < 60 && reader.u8(kTimeAt + 6) <= 60 &&
         reader.u16(kTimeAt + 8, order) < 10000;
}

/// Days from 1970 to the first of January of a year since 1900.
std::int64_t daysTo(int year) {
  const int before = year - 1;
  const int leaps = before / 4 - before / 100 + before / 400;
  constexpr int kLeapsTo1970 = 477;
  return 365LL * (year - 1970) + leaps - kLeapsTo1970;
}

std::int64_t startOf(ByteReader& reader, ByteOrder order) {
  const std::int64_t days = daysTo(reader.u16(kTimeAt, order)) + reader.u16(kTimeAt + 2, order) - 1;
  const std::int64_t seconds =
      ((days * 24 + reader.u8(kTimeAt + 4)) * 60 + reader.u8(kTimeAt + 5)) * 60 +
      reader.u8(kTimeAt + 6);
  std::int64_t tenthsOfMilliseconds = reader.u16(kTimeAt + 8, order);
  if ((reader.u8(kActivityAt) & kIsCorrected) == 0) {
    tenthsOfMilliseconds += reader.i32(kTimeCorrectionAt, order);
  }
  return seconds * 1000000 + tenthsOfMilliseconds * 100;
}

/// Factor and multiplier are rates when positive, and periods or divisors when negative.
double rateOf(double factor, double multiplier) {
  if (factor == 0.0 || multiplier == 0.0) return 0.0;
  const double rate = factor > 0.0 ? factor : -1.0 / factor;
  return multiplier > 0.0 ? rate * multiplier : -rate / multiplier;
}

std::string_view trimmed(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\0'; };
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string channelOf(std::string_view bytes) {
  std::string channel(trimmed(bytes.substr(kNetworkAt, 2)));
  for (const std::string_view part :
       {bytes.substr(kStationAt, 5), bytes.substr(kLocationAt, 2), bytes.substr(kChannelAt, 3)}) {
    channel += '.';
    channel += trimmed(part);
  }
  std::replace_if(
      channel.begin(), channel.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
  return channel;
}

/// Takes what a blockette of use says.
void takeBlockette(ByteReader& reader, std::size_t at, ByteOrder order, SeedRecord& record) {
  switch (reader.u16(at, order)) {
    case 100: {
      const double rate = floatOf(reader.u32(at + 4, order));
      if (std::isfinite(rate) && rate > 0.0) record.rate = rate;
      break;
    }
    case 1000: {
      record.encoding = reader.u8(at + 4);
      record.order = reader.u8(at + 5) == 0 ? ByteOrder::kLittle : ByteOrder::kBig;
      const std::uint8_t exponent = reader.u8(at + 6);
      if (exponent >= 7 && exponent <= 24) record.length = std::size_t{1} << exponent;
      break;
    }
    case 1001:
      record.start += static_cast<std::int8_t>(reader.u8(at + 5));
      break;
    default:
      break;
  }
}

template <ByteOrder kOrder>
void decodePlain(std::uint8_t encoding, std::string_view data, std::size_t count, double* values) {
  ByteReader reader(data);
  switch (encoding) {
    case kInt16:
      reader.decode<2>(0, count, values, [](const char* bytes) -> double {
        return static_cast<std::int16_t>(assembled<kOrder, std::uint16_t>(bytes));
      });
      break;
    case kInt32:
      reader.decode<4>(0, count, values, [](const char* bytes) -> double {
        return static_cast<std::int32_t>(assembled<kOrder, std::uint32_t>(bytes));
      });
      break;
    case kFloat32:
      reader.decode<4>(0, count, values, [](const char* bytes) -> double {
        return floatOf(assembled<kOrder, std::uint32_t>(bytes));
      });
      break;
    case kFloat64:
      reader.decode<8>(0, count, values, [](const char* bytes) {
        return doubleOf(assembled<kOrder, std::uint64_t>(bytes));
      });
      break;
    default:
      break;
  }
}

}  // namespace

bool looksLikeSeedRecord(std::string_view bytes) {
  if (bytes.size() < kHeaderBytes) return false;
  const auto isDigit = [](char c) { return (c >= '0' && c <= '9') || c == ' ' || c == '\0'; };
  return std::all_of(bytes.begin(), bytes.begin() + 6, isDigit) &&
         std::string_view("DRQM").find(bytes[6]) != std::string_view::npos &&
         (bytes[7] == ' ' || bytes[7] == '\0') &&
         (isPlausibleTime(bytes, ByteOrder::kBig) || isPlausibleTime(bytes, ByteOrder::kLittle));
}

std::optional<SeedRecord> seedRecord(std::string_view bytes) {
  if (!looksLikeSeedRecord(bytes)) return std::nullopt;
  const ByteOrder order =
      isPlausibleTime(bytes, ByteOrder::kBig) ? ByteOrder::kBig : ByteOrder::kLittle;
  ByteReader reader(bytes);
  SeedRecord record;
  record.channel = channelOf(bytes);
  record.start = startOf(reader, order);
  record.rate = rateOf(reader.i16(kRateFactorAt, order), reader.i16(kRateMultiplierAt, order));
  record.samples = reader.u16(kSamplesAt, order);
  record.dataAt = reader.u16(kDataAt, order);
  // Each blockette tells where the next is: only one further on is believed, so that none repeats.
  for (std::size_t at = reader.u16(kBlocketteAt, order), before = kHeaderBytes - 1; at > before;) {
    before = at;
    takeBlockette(reader, at, order, record);
    at = reader.u16(at + 2, order);
  }
  return record;
}

bool isSeedEncoding(std::uint8_t encoding) {
  return widthOf(encoding) != 0 || encoding == kSteim1 || encoding == kSteim2;
}

std::size_t mostSeedSamples(const SeedRecord& record, std::size_t bytes) {
  if (record.encoding == kSteim1) return mostSteimSamples(Steim::kOne, bytes);
  if (record.encoding == kSteim2) return mostSteimSamples(Steim::kTwo, bytes);
  return bytes / widthOf(record.encoding);
}

bool decodeSeed(const SeedRecord& record, std::string_view data, std::size_t count,
                double* values) {
  if (record.encoding == kSteim1 || record.encoding == kSteim2) {
    const Steim kind = record.encoding == kSteim1 ? Steim::kOne : Steim::kTwo;
    const SteimOutcome outcome = decodeSteim(kind, data, record.order, count, values);
    return outcome.samples == count && outcome.endsAsItShould;
  }
  const auto decode = record.order == ByteOrder::kLittle ? decodePlain<ByteOrder::kLittle>
                                                         : decodePlain<ByteOrder::kBig>;
  decode(record.encoding, data, count, values);
  return true;
}

}  // namespace talvesk
