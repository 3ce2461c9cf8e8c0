#include "io/standard/SegyTraceHeader.h"

#include <cmath>
#include <cstdlib>

namespace talvesk {
namespace {

constexpr double kBeyond = 1e9;  ///< no place on earth in metres, and no sample interval

/// The fields of one header, by the numbers that the standard gives its bytes.
class Fields {
 public:
  Fields(std::string_view bytes, std::uint64_t at, ByteOrder order)
      : mReader(bytes), mAt(at), mOrder(order) {}

  std::int16_t i16(std::uint64_t byte) { return mReader.i16(mAt + byte - 1, mOrder); }
  std::uint16_t u16(std::uint64_t byte) { return mReader.u16(mAt + byte - 1, mOrder); }
  std::int32_t i32(std::uint64_t byte) { return mReader.i32(mAt + byte - 1, mOrder); }
  std::uint32_t u32(std::uint64_t byte) { return mReader.u32(mAt + byte - 1, mOrder); }
  double f64(std::uint64_t byte) { return mReader.f64(mAt + byte - 1, mOrder); }

 private:
  ByteReader mReader;
  std::uint64_t mAt;
  ByteOrder mOrder;
};

}  // namespace

bool isSegyScalar(std::int16_t scalar) {
  switch (std::abs(scalar)) {
    case 0:
    case 1:
    case 10:
    case 100:
    case 1000:
    case 10000:
      return true;
    default:
      return false;
  }
}

double segyScaled(double value, std::int16_t scalar) {
  if (scalar == 0 || !isSegyScalar(scalar)) return value;
  return scalar > 0 ? value * scalar : value / -scalar;
}

SegyTraceHeader segyTraceHeader(std::string_view bytes, std::uint64_t at, ByteOrder order) {
  Fields fields(bytes, at, order);
  SegyTraceHeader header;
  header.fieldRecord = fields.i32(9);
  header.traceInRecord = fields.i32(13);
  header.sourcePoint = fields.i32(17);
  header.kind = fields.i16(29);
  header.offset = fields.i32(37);
  header.elevationScalar = fields.i16(69);
  header.receiverElevation = segyScaled(fields.i32(41), header.elevationScalar);
  header.sourceElevation = segyScaled(fields.i32(45), header.elevationScalar);
  header.sourceDepth = segyScaled(fields.i32(49), header.elevationScalar);
  header.coordinateScalar = fields.i16(71);
  header.sourceX = segyScaled(fields.i32(73), header.coordinateScalar);
  header.sourceY = segyScaled(fields.i32(77), header.coordinateScalar);
  header.receiverX = segyScaled(fields.i32(81), header.coordinateScalar);
  header.receiverY = segyScaled(fields.i32(85), header.coordinateScalar);
  header.coordinateUnits = fields.i16(89);
  header.delay = fields.i16(109);
  header.samples = fields.u16(115);
  header.interval = fields.u16(117);
  header.timeScalar = fields.i16(215);
  return header;
}

void extendSegyTraceHeader(std::string_view bytes, std::uint64_t at, ByteOrder order,
                           SegyTraceHeader& header) {
  Fields fields(bytes, at, order);
  const struct {
    std::uint64_t byte;
    double* value;
  } numbers[] = {
      {33, &header.receiverElevation}, {49, &header.sourceElevation}, {57, &header.sourceDepth},
      {97, &header.sourceX},           {105, &header.sourceY},        {113, &header.receiverX},
      {121, &header.receiverY},        {129, &header.offset},         {145, &header.interval}};
  for (const auto& number : numbers) {
    const double value = fields.f64(number.byte);
    if (std::abs(value) < kBeyond && value != 0.0) *number.value = value;
  }
  if (const std::uint32_t samples = fields.u32(137); samples != 0) header.samples = samples;
}

}  // namespace talvesk
